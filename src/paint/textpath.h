#ifndef TEXTPATH_H
#define TEXTPATH_H

#include "paint/glyph.h"
#include "paint/transform.h"

#include <vector>

namespace Lw {
namespace HNodeAnimationText {

/** Glyphs, shaped and placed: together one path, whose inside is by the odd-even rule. */
class TextPath
{
public:
    /** A glyph, which lives as long as the path; its number among those of the text. */
    struct Item
    {
        const Glyph* glyph;
        int number;
        Transform shape;
        float x;
        float y;

        Outline Placed() const { return shape.map(glyph->Shape(), x, y); }
    };

    void Clear() { items.clear(); }
    /** Mapped by @p shape, then moved. */
    void Add(const Glyph& glyph, int number, const Transform& shape, float x, float y);

    size_t Size() const { return items.size(); }
    const Item& At(size_t i) const { return items[i]; }
    /** All of it as an outline. */
    Outline Path() const;

    size_t Bytes() const { return items.capacity() * sizeof(Item); }

private:
    std::vector<Item> items;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
