/**
 * @file
 * Where two recordings first part.
 */
#ifndef ANIMTEXT_DIFFERENCE_H
#define ANIMTEXT_DIFFERENCE_H

#include "compare/recording.h"

namespace AnimText {

struct Parting
{
    enum class Kind { None, Call, Order, Argument, Picture, Background, Time, End };

    Kind kind = Kind::None;
    int session = 0; ///< 0: a call that concerns no session
    int call = 0;    ///< its index in the session
    qint64 ms = 0;   ///< when it was in the recording that went on
    QString words;   ///< what differs, on one line
};

/**
 * The earliest difference. Times count from each session's first call.
 * @param tolerance milliseconds by which times may differ; negative: times do not matter
 */
Parting FirstParting(const Recording& a, const Recording& b, qint64 tolerance);

} // namespace AnimText

#endif
