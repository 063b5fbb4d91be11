#ifndef FARCUTTING_H
#define FARCUTTING_H

#include "paint/fixedpoint.h"
#include "paint/outline.h"

namespace Lw {
namespace HNodeAnimationText {

/** Of an outline's points, control points included. */
struct Bounds
{
    float left;
    float top;
    float right;
    float bottom;

    explicit Bounds(const Outline& outline);
    void Unite(const Bounds& other);
    /** Beyond what the device's fill computes with: it cuts the outline to the picture first. */
    bool AreFar() const;
};

/**
 * The outline cut to the picture, as the device cuts it. @p closed is finite and its subpaths are
 * closed. What comes back may be open, empty, or a little outside.
 */
Outline CutToPicture(const Outline& closed, const Box& picture);

} // namespace HNodeAnimationText
} // namespace Lw

#endif
