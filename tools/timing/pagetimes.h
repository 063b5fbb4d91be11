/**
 * @file
 * When the pages of a text enter, are held and end.
 */
#ifndef ANIMTEXT_PAGETIMES_H
#define ANIMTEXT_PAGETIMES_H

#include "timing/playlength.h"

#include <QVector>

namespace AnimText {

/** A page's time on the display, in ticks from the start of its text. */
struct PageTime
{
    int begin = 0; ///< its first picture
    int hold = 0;  ///< the tick after its last picture
    int end = 0;   ///< the first tick of what follows
};

/** One play of a scene. */
struct PagedPlay
{
    QVector<NodePlay> nodes;          ///< in the order of the file
    QVector<QVector<PageTime>> pages; ///< of each node, of all its runs; none unless it finishes
};

/**
 * Plays @p scene without outlines, twice: once with every page held so long that holds are
 * unmistakable, then as it is. The player is then at the end of the second play.
 * @param longest ticks after which the second play is stopped
 * @return false when @p watch stopped it or, with @p error, when the scene cannot be played
 */
bool MeasurePages(Player* player, const Scene& scene, int longest, const Watch& watch,
                  PagedPlay* play, QString* error);

/**
 * Divides a play into pages.
 * @param actual the ticks that brought a picture, rising
 * @param held those of the same pictures, while pages were held for longer
 * @param end  the tick at which the play is over
 */
QVector<PageTime> PageTimes(const QVector<int>& actual, const QVector<int>& held, int end);

} // namespace AnimText

#endif
