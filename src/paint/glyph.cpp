#include "paint/glyph.h"

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

Glyph::Glyph(Outline outline)
    : shape(std::move(outline))
    , isClosed(shape.IsWellFormed() && shape.IsFinite())
{
    if (shape.Size() == 0)
        return;
    box = Bounds(&shape.At(0), shape.Size());

    // Some fonts leave a move behind. At a path's end it paints nothing; what follows replaces it.
    const size_t last = shape.Size() - 1;
    const bool endsWithMove = last > 0 && shape.At(last).type == Outline::Move;
    isClosed = isClosed && AreSubpathsClosed(shape, endsWithMove ? last : last + 1);
    if (isClosed && endsWithMove)
        shape.RemoveLast();
}

} // namespace HNodeAnimationText
} // namespace Lw
