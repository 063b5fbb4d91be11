/**
 * @file
 * When the pages of a text come, stand and go.
 */
#ifndef ANIMTEXT_PAGETIMES_H
#define ANIMTEXT_PAGETIMES_H

#include <QVector>

namespace AnimText {

/** One page of a play, in ticks from its start. */
struct PageTime
{
    int from;    ///< its first picture
    int entered; ///< its last picture: from here on it is held
    int until;   ///< the next page, or the end of the play
};

/**
 * Finds the pages of a play by its pictures: between pages none comes for as long as a page is
 * held. Pages that are not held are not told apart.
 * @param pictures the ticks that brought a picture, rising
 * @param end      the tick at which the play is over
 */
QVector<PageTime> PageTimes(const QVector<int>& pictures, int end);

} // namespace AnimText

#endif
