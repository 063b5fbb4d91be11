#include "paint/picturewriter.h"

#include <algorithm>
#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

PictureWriter::PictureWriter()
    : tableFormat(Picture::Argb32)
    , tableColour(0)
    , hasTable(false)
{
}

void PictureWriter::SetColour(Picture::Format format, uint32_t argb)
{
    if (hasTable && tableFormat == format && tableColour == argb)
        return;
    hasTable = true;
    tableFormat = format;
    tableColour = argb;
    unsigned char pixel[4] = {static_cast<unsigned char>(argb >> 16 & 255),
                              static_cast<unsigned char>(argb >> 8 & 255),
                              static_cast<unsigned char>(argb & 255), 0};
    const size_t bytes = format == Picture::Argb32 ? 4 : 3;
    if (format == Picture::Argb32)
        std::memcpy(pixel, &argb, sizeof argb);
    std::memset(table, 0, sizeof table);
    unsigned char* to = reinterpret_cast<unsigned char*>(table);
    for (unsigned row = 0; row < 256; ++row)
        for (int i = 0; i < pixelsAtOnce; ++i, to += bytes)
            if (row >> i & 1)
                std::memcpy(to, pixel, bytes);
}

template <int bytesPerPixel>
void PictureWriter::WriteRow(const Plane& ink, int y, unsigned char* row, int width) const
{
    const int atOnce = bytesPerPixel * pixelsAtOnce;
    const unsigned char* const eights = reinterpret_cast<const unsigned char*>(table);
    const Plane::Word* words = ink.Row(y);
    const int whole = width / Plane::wordBits;
    // One large clearing is quicker than many small ones.
    std::memset(row, 0, static_cast<size_t>(width) * bytesPerPixel);
    for (int i = 0; i < whole; ++i) {
        Plane::Word word = words[i];
        if (word == 0)
            continue;
        unsigned char* to = row + i * Plane::wordBits * bytesPerPixel;
        for (int k = 0; k < Plane::wordBits / pixelsAtOnce; ++k, to += atOnce, word >>= 8)
            std::memcpy(to, eights + (word & 255) * atOnce, atOnce);
    }
    int rest = width - whole * Plane::wordBits;
    unsigned char* to = row + whole * Plane::wordBits * bytesPerPixel;
    for (Plane::Word word = rest > 0 ? words[whole] : 0; rest > 0; word >>= pixelsAtOnce) {
        const int pixels = rest < pixelsAtOnce ? rest : +pixelsAtOnce;
        std::memcpy(to, eights + (word & 255) * atOnce,
                    static_cast<size_t>(pixels) * bytesPerPixel);
        to += atOnce;
        rest -= pixels;
    }
}

void PictureWriter::Write(const Plane& ink, uint32_t argb, const Picture& to)
{
    SetColour(to.format, argb);
    const int inkWidth = std::min(to.width, ink.Width());
    const size_t inkBytes = static_cast<size_t>(inkWidth) * to.BytesPerPixel();
    const size_t bytes = static_cast<size_t>(to.width) * to.BytesPerPixel();
    for (int y = 0; y < to.height; ++y) {
        unsigned char* const row = to.Row(y);
        if (y < ink.InkTop() || y >= ink.InkBottom()) {
            std::memset(row, 0, bytes);
            continue;
        }
        if (to.format == Picture::Argb32)
            WriteRow<4>(ink, y, row, inkWidth);
        else
            WriteRow<3>(ink, y, row, inkWidth);
        std::memset(row + inkBytes, 0, bytes - inkBytes);
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
