#include "paint/picturewriter.h"

#include "paint/blend.h"

#include <algorithm>
#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

void PictureWriter::SetColor(Picture::Format format, uint32_t argb)
{
    if (hasTable && tableFormat == format && tableColor == argb)
        return;
    hasTable = true;
    tableFormat = format;
    tableColor = argb;
    unsigned char pixel[4] = {};
    StorePixel(format, pixel, argb);
    const size_t bytes = format == Picture::Argb32 ? 4 : 3;
    std::memset(table, 0, sizeof table);
    unsigned char* to = reinterpret_cast<unsigned char*>(table);
    for (unsigned row = 0; row < 256; ++row)
        for (int i = 0; i < pixelsAtOnce; ++i, to += bytes)
            if (row >> i & 1)
                std::memcpy(to, pixel, bytes);
}

/** Onto a row of zeros. */
template <int bytesPerPixel>
void PictureWriter::WriteRow(const Plane& ink, int y, unsigned char* row, int width) const
{
    const int atOnce = bytesPerPixel * pixelsAtOnce;
    const unsigned char* const eights = reinterpret_cast<const unsigned char*>(table);
    const Plane::Word* words = ink.Row(y);
    const int whole = width / Plane::wordBits;
    for (int i = 0; i < whole; ++i) {
        Plane::Word word = words[i];
        unsigned char* to = row + i * Plane::wordBits * bytesPerPixel;
        if (word == 0)
            continue;
        // A test for each byte would cost more time than it saves: text is hard to predict.
        for (int k = 0; k < Plane::wordBits / pixelsAtOnce; ++k, to += atOnce, word >>= 8)
            std::memcpy(to, eights + (word & 255) * atOnce, atOnce);
    }
    int rest = width - whole * Plane::wordBits;
    unsigned char* to = row + whole * Plane::wordBits * bytesPerPixel;
    for (Plane::Word word = words[whole]; rest > 0 && word != 0; word >>= pixelsAtOnce) {
        const int pixels = rest < pixelsAtOnce ? rest : +pixelsAtOnce;
        std::memcpy(to, eights + (word & 255) * atOnce,
                    static_cast<size_t>(pixels) * bytesPerPixel);
        to += atOnce;
        rest -= pixels;
    }
}

void PictureWriter::Write(const Plane& ink, uint32_t argb, const Picture& to)
{
    SetColor(to.format, argb);
    const int inkWidth = std::min(to.width, ink.Width());
    const size_t bytes = static_cast<size_t>(to.width) * to.BytesPerPixel();
    // Rows that follow each other without a gap are cleared together, as many as stay in the cache.
    const size_t cached = 8192;
    const int rows =
        bytes == to.bytesPerLine && bytes > 0 ? std::max(1, static_cast<int>(cached / bytes)) : 1;
    for (int top = 0; top < to.height; top += rows) {
        const int bottom = std::min(top + rows, to.height);
        std::memset(to.Row(top), 0, static_cast<size_t>(bottom - top) * bytes);
        for (int y = std::max(top, ink.InkTop()); y < std::min(bottom, ink.InkBottom()); ++y)
            if (to.format == Picture::Argb32)
                WriteRow<4>(ink, y, to.Row(y), inkWidth);
            else
                WriteRow<3>(ink, y, to.Row(y), inkWidth);
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
