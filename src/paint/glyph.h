#ifndef GLYPH_H
#define GLYPH_H

#include "paint/outline.h"
#include "paint/point.h"
#include "paint/steadiness.h"

namespace Lw {
namespace HNodeAnimationText {

/** A character's outline, and what is known of it once and for all. */
class Glyph
{
public:
    Glyph() {}
    explicit Glyph(Outline outline);

    const Outline& Shape() const { return shape; }
    /** Of its elements. */
    const Bounds& Box() const { return box; }
    /**
     * Whether it can be painted by itself and be the same as in a path with others: it is finite
     * and well formed, and every subpath has a line or a curve and ends where it begins.
     */
    bool IsClosed() const { return isClosed; }
    /**
     * Whether no two neighboring points are so close that the device takes them for one, or might
     * where floats are coarse. Equal points do not count.
     */
    bool IsSpaced() const { return isSpaced; }
    /** How far out it is the same whole pixels away. Measured when first asked for. */
    const Steadiness& Steady() const;

private:
    Outline shape;
    Bounds box;
    bool isClosed = true;
    bool isSpaced = true;
    mutable bool isMeasured = false;
    mutable Steadiness steadiness = Steadiness();
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
