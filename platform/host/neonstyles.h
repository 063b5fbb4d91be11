/**
 * @file
 * The light of a neon border, place by place: fourteen patterns, each in two looks.
 */
#ifndef LW_NEONSTYLES_H
#define LW_NEONSTYLES_H

#include <QtGlobal>

namespace Lw {

/** A border is a closed loop of light. */
struct NeonLoop
{
    double length;     ///< pixels round the middle of the band
    double thickness;  ///< pixels, of the band
    double corners[4]; ///< where the corners are, pixels along the loop
};

/** A place in the band. */
struct NeonSpot
{
    double along;  ///< pixels clockwise from the left end of the top edge
    double across; ///< -1 at the outer edge, 0 in the middle, 1 at the inner edge
};

/** Light that adds up: 1 is full, more than that glows towards white. */
struct NeonLight
{
    double red;
    double green;
    double blue;
};

const int NeonStyleCount = 28;

/**
 * @param style 1 .. NeonStyleCount; anything else is the first
 * @param tick how many pictures there have been before
 */
NeonLight NeonLightAt(int style, const NeonLoop& loop, const NeonSpot& spot, qint64 tick);

} // namespace Lw

#endif
