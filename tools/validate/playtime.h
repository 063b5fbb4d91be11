/**
 * @file
 * The time that a node tells the host it plays, without the limits of 32-bit numbers.
 */
#ifndef ANIMTEXT_PLAYTIME_H
#define ANIMTEXT_PLAYTIME_H

#include <QSize>
#include <QVector>

namespace AnimText {

/** What the play time depends on. */
struct PlayTimeInput
{
    int mode = 0;   ///< 0 entrance effect, 1 scrolling, anything else static text
    int motion = 0; ///< number of the effect, or of the scroll
    int speed = 0;
    int hold = 0; ///< units of 100 ms
    int plays = 0;
    QSize area;              ///< pixels
    QVector<int> widths;     ///< by character, pixels
    QVector<int> heights;    ///< by character, pixels
    QVector<int> descents;   ///< by character, pixels
    QVector<int> pageStarts; ///< first character of each page, and at last the number of characters
};

/** The play time in milliseconds. A whole number as long as it can be told in 32 bits. */
double PlayTime(const PlayTimeInput& input);

} // namespace AnimText

#endif
