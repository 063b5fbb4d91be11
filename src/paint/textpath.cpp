#include "paint/textpath.h"

namespace Lw {
namespace HNodeAnimationText {

void TextPath::Add(const Glyph& glyph, int number, const Transform& shape, float x, float y)
{
    if (glyph.Shape().IsEmpty())
        return; // as QPainterPath::addPath() does
    const Item item = {&glyph, number, shape, x, y};
    items.push_back(item);
}

Outline TextPath::Path() const
{
    Outline path;
    for (size_t i = 0; i < items.size(); ++i)
        path.Append(items[i].Placed());
    return path;
}

} // namespace HNodeAnimationText
} // namespace Lw
