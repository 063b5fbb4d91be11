#ifndef STEADINESS_H
#define STEADINESS_H

#include "paint/point.h"

namespace Lw {
namespace HNodeAnimationText {

class Outline;

/**
 * How far out a closed outline is the same, pixel by pixel, whole pixels away from its origin: as
 * long as no coordinate is less than 0 or more than these. In pixels; below 1 where that is
 * nowhere.
 */
struct Steadiness
{
    /** All that its curves are halved to is computed without rounding. */
    Point exact;
    /**
     * Rounding carries no point from one 1/64 pixel to the next; the device computes in those from
     * there on. Only while the coordinates of both axes are within flat.
     */
    Point rounded;
    /** Rounding does not change where curves are taken for lines. */
    float flat;
};

/** Of an outline of finite numbers. Takes almost as long as painting it. */
Steadiness SteadinessOf(const Outline& outline);

} // namespace HNodeAnimationText
} // namespace Lw

#endif
