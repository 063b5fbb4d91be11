#include "paint/glyph.h"

#include "paint/transform.h"

#include <vector>

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
        if (i - start < 2 || first.x != last.x || first.y != last.y)
            return false;
        start = i;
    }
    return true;
}

} // namespace

Glyph::Glyph()
    : isClosed(true)
{
}

Glyph::Glyph(const Outline& outline)
    : shape(outline)
    , isClosed(outline.IsWellFormed() && outline.IsFinite())
{
    if (shape.Size() == 0)
        return;
    std::vector<Point> points(shape.Size());
    Transform().map(shape, &points[0]);
    box = Bounds(&points[0], points.size());

    // Some fonts leave a move behind. At a path's end it paints nothing; what follows replaces it.
    const size_t last = shape.Size() - 1;
    const bool endsWithMove = last > 0 && shape.At(last).type == Outline::Move;
    isClosed = isClosed && AreSubpathsClosed(shape, endsWithMove ? last : last + 1);
    if (isClosed && endsWithMove)
        shape.RemoveLast();
}

} // namespace HNodeAnimationText
} // namespace Lw
