/**
 * @file
 * When each page of a sign is shown, and the planned and actual end of each text.
 */
#pragma once

#include "timing/playlength.h"

#include <QVector>

namespace AnimText::studio::worker {

/** The times of one text. */
struct TextTime
{
    timing::Ending ending = timing::Ending::TooLong;
    qint64 planned = 0;              ///< planned time: what the plugin tells the host, milliseconds
    qint64 actual = -1;              ///< actual time, milliseconds; negative if it never ends
    qint64 from = 0;                 ///< when the host starts it, milliseconds
    qint64 until = -1;               ///< when the host stops it, milliseconds; negative for never
    QVector<timing::PageTime> pages; ///< of all its plays
};

struct Timing
{
    QVector<TextTime> texts; ///< in the order of the file
    qint64 length = 0;       ///< of the whole sign, milliseconds
    bool isCut = false;      ///< it is longer than what was measured

    /** Number of ticks; at least 1. */
    int Ticks() const
    {
        return int(std::max<qint64>(1, (length + player::tickLength - 1) / player::tickLength));
    }
};

/**
 * Measures @p scene by playing it without outlines.
 * @param schedule page by page for the planned times, as the host plays
 * Throws Failure if it cannot be played.
 */
Timing MeasureTiming(player::Player* player, const scene::Scene& scene, bool schedule,
                     const timing::Watch& watch);

} // namespace AnimText::studio::worker
