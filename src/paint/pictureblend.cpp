#include "paint/pictureblend.h"

#include "paint/blend.h"

#include <algorithm>

namespace Lw {
namespace HNodeAnimationText {

namespace {

uint32_t PixelOf(const Picture& picture, int x, int y)
{
    return LoadPixel(Picture::Argb32, picture.Row(y) + static_cast<size_t>(x) * 4);
}

/** Columns @p begin up to but without @p end of row @p y. */
void BlendTiles(const Picture& tile, int y, int begin, int end, const Picture& picture)
{
    unsigned char* const row = picture.Row(y);
    for (int x = begin; x < end; ++x)
        BlendPixel(picture, row, x, PixelOf(tile, x % tile.width, y % tile.height));
}

} // namespace

void BlendPicture(const Picture& over, int x, int y, const Picture& picture)
{
    // In 64 bits: a character may be placed anywhere.
    const int64_t left = std::max<int64_t>(0, -int64_t(x));
    const int64_t top = std::max<int64_t>(0, -int64_t(y));
    const int64_t right = std::min<int64_t>(over.width, int64_t(picture.width) - x);
    const int64_t bottom = std::min<int64_t>(over.height, int64_t(picture.height) - y);
    for (int64_t row = top; row < bottom; ++row)
        for (int64_t column = left; column < right; ++column)
            BlendPixel(picture, picture.Row(static_cast<int>(y + row)),
                       static_cast<int>(x + column),
                       PixelOf(over, static_cast<int>(column), static_cast<int>(row)));
}

void BlendBorder(const Picture& tile, const Box& edge, int thickness, const Picture& picture)
{
    if (tile.width <= 0 || tile.height <= 0)
        return;
    const int innerLeft = std::min(edge.left + thickness, edge.right);
    const int innerRight = std::max(edge.right - thickness, innerLeft);
    for (int y = edge.top; y < edge.bottom; ++y) {
        if (y < edge.top + thickness || y >= edge.bottom - thickness) {
            BlendTiles(tile, y, edge.left, edge.right, picture);
            continue;
        }
        BlendTiles(tile, y, edge.left, innerLeft, picture);
        BlendTiles(tile, y, innerRight, edge.right, picture);
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
