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
    for (int x = 0; x < width; x += Plane::wordBits) {
        Plane::Word word = *words++;
        unsigned char* to = row + x * bytesPerPixel;
        const int whole = (width - x) / pixelsAtOnce;
        while (word != 0) {
            // The next eight pixels with ink.
            const int i = __builtin_ctzll(word) / pixelsAtOnce;
            const unsigned char* from = eights + (word >> i * pixelsAtOnce & 255) * atOnce;
            if (i >= whole) {
                std::memcpy(to + i * atOnce, from,
                            static_cast<size_t>((width - x) % pixelsAtOnce * bytesPerPixel));
                break;
            }
            std::memcpy(to + i * atOnce, from, atOnce);
            word &= ~(Plane::Word(255) << i * pixelsAtOnce);
        }
    }
}

void PictureWriter::Write(const Plane& ink, Format format, uint32_t argb, unsigned char* bits,
                          size_t bytesPerLine, int width, int height)
{
    SetColour(format, argb);
    const size_t bytes = static_cast<size_t>(width) * (format == Argb32 ? 4 : 3);
    for (int y = 0; y < height; ++y, bits += bytesPerLine) {
        std::memset(bits, 0, bytes);
        if (y < ink.InkTop() || y >= ink.InkBottom())
            continue;
        if (format == Argb32)
            WriteRow<4>(ink, y, bits, std::min(width, ink.Width()));
        else
            WriteRow<3>(ink, y, bits, std::min(width, ink.Width()));
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
