/**
 * @file
 * The light of a neon border, place by place: seven patterns, each in four palettes.
 */
#ifndef LW_NEONPATTERNS_H
#define LW_NEONPATTERNS_H

#include <QtGlobal>

namespace Lw {

/** Light that adds up: 1 is full, more than that glows towards white. */
struct NeonLight
{
    double red;
    double green;
    double blue;
};

/** A place in the band of light, which is a closed loop. */
struct NeonSpot
{
    double along;  ///< pixels clockwise from the left end of the top edge
    double across; ///< -1 at the outer edge, 0 in the middle, 1 at the inner edge
};

/**
 * @param style 1 .. 28; anything else is the first
 * @param length pixels round the middle of the band
 * @param thickness pixels, of the band
 * @param tick how many pictures there have been before
 */
NeonLight NeonLightAt(int style, double length, double thickness, const NeonSpot& spot,
                      qint64 tick);

} // namespace Lw

#endif
