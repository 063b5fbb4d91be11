#ifndef BLEND_H
#define BLEND_H

#include "paint/picture.h"

#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

// Source-over as the device's painter computes it: premultiplied, rounded at every step.

/** All four channels times @p factor / 255. */
inline uint32_t TimesByte(uint32_t color, uint32_t factor)
{
    uint32_t redBlue = (color & 0xff00ffu) * factor;
    redBlue = (redBlue + (redBlue >> 8 & 0xff00ffu) + 0x800080u) >> 8 & 0xff00ffu;
    uint32_t alphaGreen = (color >> 8 & 0xff00ffu) * factor;
    alphaGreen = (alphaGreen + (alphaGreen >> 8 & 0xff00ffu) + 0x800080u) & 0xff00ff00u;
    return redBlue | alphaGreen;
}

/** @p argb 0xAARRGGBB */
inline uint32_t Premultiplied(uint32_t argb)
{
    const uint32_t alpha = argb >> 24;
    return alpha << 24 | (TimesByte(argb, alpha) & 0x00ffffffu);
}

inline uint32_t Unpremultiplied(uint32_t color)
{
    const uint32_t alpha = color >> 24;
    if (alpha == 0)
        return 0;
    return alpha << 24 | 255 * (color >> 16 & 255) / alpha << 16 |
           255 * (color >> 8 & 255) / alpha << 8 | 255 * (color & 255) / alpha;
}

/** @p over what is there; @p over is premultiplied, @p under and the result 0xAARRGGBB. */
inline uint32_t Blended(uint32_t over, uint32_t under)
{
    const uint32_t alpha = over >> 24;
    if (alpha == 255)
        return over;
    if (alpha == 0)
        return under;
    return Unpremultiplied(over + TimesByte(Premultiplied(under), 255 - alpha));
}

/** The pixel at @p at as 0xAARRGGBB; opaque if the format has no alpha. */
inline uint32_t LoadPixel(Picture::Format format, const unsigned char* at)
{
    uint32_t argb;
    if (format == Picture::Argb32) {
        std::memcpy(&argb, at, sizeof argb);
        return argb;
    }
    return 0xff000000u | uint32_t(at[0]) << 16 | uint32_t(at[1]) << 8 | at[2];
}

inline void StorePixel(Picture::Format format, unsigned char* at, uint32_t argb)
{
    if (format == Picture::Argb32) {
        std::memcpy(at, &argb, sizeof argb);
        return;
    }
    at[0] = static_cast<unsigned char>(argb >> 16 & 255);
    at[1] = static_cast<unsigned char>(argb >> 8 & 255);
    at[2] = static_cast<unsigned char>(argb & 255);
}

/** @p argb, not premultiplied, over pixel @p x of @p row. */
inline void BlendPixel(const Picture& picture, unsigned char* row, int x, uint32_t argb)
{
    unsigned char* const at = row + static_cast<size_t>(x) * picture.BytesPerPixel();
    StorePixel(picture.format, at, Blended(Premultiplied(argb), LoadPixel(picture.format, at)));
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
