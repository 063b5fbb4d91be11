#include "paint/coats.h"

#include "paint/blend.h"

namespace Lw {
namespace HNodeAnimationText {

void Coats::Begin(int newWidth, int newHeight)
{
    width = newWidth;
    height = newHeight;
    counts.assign(Index(0, height), 0);
}

void Coats::Forget()
{
    width = height = 0;
    std::vector<unsigned char>().swap(counts);
}

void Coats::Add(const Plane& plane)
{
    for (int y = plane.InkTop(); y < plane.InkBottom(); ++y)
        for (int x = 0; x < width; ++x)
            if (plane.Has(x, y))
                Add(x, y);
}

void Coats::Write(uint32_t argb, const Picture& picture) const
{
    // Without alpha the picture is black, and so is what shows through.
    uint32_t colors[most + 1] = {picture.format == Picture::Argb32 ? 0 : 0xff000000u};
    const uint32_t paint = Premultiplied(argb);
    for (int i = 0; i < most; ++i)
        colors[i + 1] = Blended(paint, colors[i]);
    const size_t bytesPerPixel = picture.BytesPerPixel();
    for (int y = 0; y < picture.height; ++y) {
        unsigned char* to = picture.Row(y);
        for (int x = 0; x < picture.width; ++x, to += bytesPerPixel)
            StorePixel(picture.format, to,
                       colors[x < width && y < height ? counts[Index(x, y)] : 0]);
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
