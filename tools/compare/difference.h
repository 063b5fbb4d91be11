/**
 * @file
 * The first difference between two recordings, and how two pictures differ.
 */
#pragma once

#include "compare/recording.h"

namespace AnimText::compare {

struct Difference
{
    QString words;          ///< what differs, on one line; empty when nothing does
    bool isPicture = false; ///< of two equal calls
    int session = 0;        ///< 0: a call that concerns no session
    int call = 0;           ///< its index in the session
    qint64 ms = 0;          ///< its time in the recording that continues
};

/** Whether two digests differ; an empty one is not known. */
bool AreKnownAndDiffer(const QString& sha1, const QString& other);

/**
 * The earliest difference. Times count from each session's first call.
 * @param tolerance milliseconds by which times may differ; negative: times do not matter
 */
Difference FirstDifference(const Recording& a, const Recording& b, qint64 tolerance);

/** Both pictures dimmed, with what only @p a has in red, and what only @p b has in green. */
QImage DifferenceOf(const QImage& a, const QImage& b);

} // namespace AnimText::compare
