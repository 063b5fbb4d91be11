#ifndef PICTURE_H
#define PICTURE_H

#include <cstddef>
#include <stdint.h>

namespace Lw {
namespace HNodeAnimationText {

/** A view of pixels in one of the two formats of the device's layers. */
struct Picture
{
    enum Format {
        Argb32, // words 0xAARRGGBB in the processor's byte order, not premultiplied
        Rgb888  // bytes red, green, blue
    };

    Format format;
    unsigned char* bits;
    size_t bytesPerLine;
    int width; // pixels
    int height;

    size_t BytesPerPixel() const { return format == Argb32 ? 4 : 3; }
    unsigned char* Row(int y) const { return bits + static_cast<size_t>(y) * bytesPerLine; }
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
