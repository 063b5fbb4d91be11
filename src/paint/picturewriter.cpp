#include "paint/picturewriter.h"

#include <algorithm>
#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

PictureWriter::PictureWriter()
    : tableFormat(Argb32)
    , tableColour(0)
    , hasTable(false)
{
}

void PictureWriter::SetColour(Format format, uint32_t argb)
{
    if (hasTable && tableFormat == format && tableColour == argb)
        return;
    hasTable = true;
    tableFormat = format;
    tableColour = argb;
    unsigned char pixel[4] = {static_cast<unsigned char>(argb >> 16 & 255),
                              static_cast<unsigned char>(argb >> 8 & 255),
                              static_cast<unsigned char>(argb & 255), 0};
    const size_t bytes = format == Argb32 ? 4 : 3;
    if (format == Argb32)
        std::memcpy(pixel, &argb, sizeof argb);
    std::memset(table, 0, sizeof table);
    unsigned char* to = table;
    for (unsigned row = 0; row < 256; ++row)
        for (int i = 0; i < pixelsAtOnce; ++i, to += bytes)
            if (row >> i & 1)
                std::memcpy(to, pixel, bytes);
}

template <int bytesPerPixel>
void PictureWriter::WriteRow(const Plane& ink, int y, unsigned char* row, int width) const
{
    const int atOnce = bytesPerPixel * pixelsAtOnce;
    const int pixels = std::min(width, ink.Width());
    const Plane::Word* words = ink.Row(y);
    unsigned char* to = row;
    for (int x = 0; x < pixels; x += Plane::wordBits) {
        Plane::Word word = *words++;
        const int count = std::min(+Plane::wordBits, pixels - x);
        if (word == 0) {
            std::memset(to, 0, static_cast<size_t>(count * bytesPerPixel));
            to += count * bytesPerPixel;
            continue;
        }
        for (int i = count / pixelsAtOnce; i > 0; --i, to += atOnce, word >>= pixelsAtOnce)
            std::memcpy(to, table + (word & 255) * atOnce, atOnce);
        const int rest = count % pixelsAtOnce * bytesPerPixel;
        std::memcpy(to, table + (word & 255) * atOnce, static_cast<size_t>(rest));
        to += rest;
    }
    std::memset(to, 0, static_cast<size_t>((width - pixels) * bytesPerPixel));
}

void PictureWriter::Write(const Plane& ink, Format format, uint32_t argb, unsigned char* bits,
                          size_t bytesPerLine, int width, int height)
{
    SetColour(format, argb);
    const size_t bytes = static_cast<size_t>(width) * (format == Argb32 ? 4 : 3);
    for (int y = 0; y < height; ++y, bits += bytesPerLine) {
        if (y < ink.InkTop() || y >= ink.InkBottom())
            std::memset(bits, 0, bytes);
        else if (format == Argb32)
            WriteRow<4>(ink, y, bits, width);
        else
            WriteRow<3>(ink, y, bits, width);
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
