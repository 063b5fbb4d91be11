#include "paint/glyph.h"

#include <cmath>
#include <utility>

namespace Lw {
namespace HNodeAnimationText {

namespace {

bool AreSubpathsClosed(const Outline& outline, size_t size)
{
    size_t start = 0;
    for (size_t i = 1; i <= size; ++i) {
        if (i < size && outline.At(i).type != Outline::Move)
            continue;
        const Outline::Element& first = outline.At(start);
        const Outline::Element& last = outline.At(i - 1);
        // Of a move alone at the beginning the hairline goes on from the glyph before.
        if (i == 1 || first.x != last.x || first.y != last.y)
            return false;
        start = i;
    }
    return true;
}

bool ArePointsSpaced(const Outline& outline)
{
    const float apart = 1.f / 64; // of floats up to 32768 neighbors are 1/256 apart
    for (size_t i = 1; i < outline.Size(); ++i) {
        const float dx = std::fabs(outline.At(i).x - outline.At(i - 1).x);
        const float dy = std::fabs(outline.At(i).y - outline.At(i - 1).y);
        if (dx < apart && dy < apart && (dx > 0 || dy > 0))
            return false;
    }
    return true;
}

} // namespace

Glyph::Glyph(Outline outline)
    : shape(std::move(outline))
    , isClosed(shape.IsWellFormed() && shape.IsFinite())
    , isSpaced(ArePointsSpaced(shape))
    , isMeasured(false)
    , steadiness()
{
    if (shape.Size() == 0)
        return;
    box = Bounds(&shape.At(0), shape.Size());

    // Some fonts end a glyph with a move. It paints nothing: not at the end of a path, and before
    // another glyph that glyph's own move replaces it.
    const size_t last = shape.Size() - 1;
    const bool endsWithMove = last > 0 && shape.At(last).type == Outline::Move;
    isClosed = isClosed && AreSubpathsClosed(shape, endsWithMove ? last : last + 1);
    if (isClosed && endsWithMove)
        shape.RemoveLast();
}

const Steadiness& Glyph::Steady() const
{
    if (!isMeasured)
        steadiness = SteadinessOf(shape);
    isMeasured = true;
    return steadiness;
}

} // namespace HNodeAnimationText
} // namespace Lw
