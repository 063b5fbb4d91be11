/**
 * @file
 * One play of a motion, as the gallery shows it.
 */
#pragma once

#include "gallery/picturesheets.h"
#include "player/player.h"
#include "timing/playlength.h"

#include <functional>

namespace AnimText::gallery {

/** A picture and for how many ticks it is seen. */
struct PictureRun
{
    int picture;
    int ticks;
};

struct MotionPlay
{
    QVector<PictureRun> runs;
    QVector<timing::PageTime> pages; ///< empty if the text is not cut into pages
    int ticks = 0;                   ///< of all runs
    qint64 planned = 0;              ///< planned time, milliseconds
    qint64 actual = -1; ///< actual time until it was finished; -1: the device keeps scrolling
};

/**
 * Plays @p scene, which has one text, from its start to its end, or once through its area where the
 * device scrolls it. Its pictures are added to @p sheets. Throws Failure when it cannot be played.
 * @param goOn called at every tick; throws to stop
 */
MotionPlay PlayMotion(player::Player* player, const scene::Scene& scene, uint seed,
                      const std::function<void()>& goOn, PictureSheets* sheets);

} // namespace AnimText::gallery
