/**
 * @file
 * When a sign shows what: pages, runs, and the ends that are told and that are real.
 */
#ifndef ANIMTEXT_TIMING_H
#define ANIMTEXT_TIMING_H

#include "timing/pagetimes.h"

#include <QDataStream>
#include <QMetaType>
#include <QVector>

namespace AnimText {

/** The times of one text. */
struct TextTime
{
    Ending ending = Ending::TooLong;
    qint64 told = 0;         ///< what the host is told, milliseconds
    qint64 real = -1;        ///< when it is done, milliseconds; negative when it never is
    qint64 from = 0;         ///< when the host starts it, milliseconds
    qint64 until = -1;       ///< when the host stops it; negative: never
    QVector<PageTime> pages; ///< of all its runs
};

struct Timing
{
    QVector<TextTime> texts; ///< in the order of the file
    qint64 length = 0;       ///< of all of it, milliseconds
    bool isCut = false;      ///< it goes on for longer than was measured

    /** Ticks that there are to look at, from 0; at least 1. */
    int Ticks() const { return int(std::max<qint64>(1, (length + tickLength - 1) / tickLength)); }
};

/**
 * Measures @p scene by playing it without outlines.
 * @param schedule as the host plays it, by the times that it is told
 * @return false when @p watch broke off or, with @p error, when it cannot be played
 */
bool MeasureTiming(Player* player, const Scene& scene, bool schedule, const Watch& watch,
                   Timing* timing, QString* error);

QDataStream& operator<<(QDataStream& stream, const Timing& timing);
QDataStream& operator>>(QDataStream& stream, Timing& timing);

} // namespace AnimText

Q_DECLARE_METATYPE(AnimText::Timing)

#endif
