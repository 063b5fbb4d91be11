#include "paint/dazzlepainter.h"

#include "paint/blend.h"

#include <algorithm>
#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

namespace {

// Text is read in the middle of the picture, so the colors step back there. Along the upper and the
// lower edge they stay pure; from each edge the scrim grows over these percent of the height.
const int darkDensity = 165; // of 255
const int lightDensity = 190;
const int scrimGrows = 22;

/** Of the scrim, in row @p y of @p height. */
int DensityAt(int y, int height, int densest)
{
    const int64_t nearest = std::min(y, height - 1 - y);
    const int64_t grownAt = 2 * int64_t(height) * scrimGrows;
    const int64_t at = std::min((2 * nearest + 1) * 100, grownAt);
    return static_cast<int>((2 * at * densest + grownAt) / (2 * grownAt));
}

uint32_t Mix(uint32_t a, uint32_t b, uint32_t ofB) // 0 .. 256
{
    const uint32_t redBlue = (a & 0xff00ffu) * (256 - ofB) + (b & 0xff00ffu) * ofB + 0x800080u;
    const uint32_t green = (a & 0xff00u) * (256 - ofB) + (b & 0xff00u) * ofB + 0x8000u;
    return (redBlue >> 8 & 0xff00ffu) | (green >> 8 & 0xff00u);
}

/** The word whose first bytes in memory are a pixel of the color. */
uint32_t WordOf(uint32_t color, Picture::Format format)
{
    uint32_t word = color;
    if (format == Picture::Rgb888)
        StorePixel(format, reinterpret_cast<unsigned char*>(&word), color);
    return word;
}

} // namespace

DazzlePainter::DazzlePainter()
{
    std::fill(ring, ring + DazzleMap::ringColors, 0u);
}

void DazzlePainter::SetColors(const uint32_t* colors)
{
    for (int i = 0; i < DazzleMap::ringColors; ++i)
        ring[i] = colors[i] & 0xffffffu;
    Repaint();
}

void DazzlePainter::Forget()
{
    map.Forget();
    std::vector<unsigned char>().swap(row);
    Repaint();
}

void DazzlePainter::MakeTable(int leading, Picture::Format format)
{
    opaque = format == Picture::Argb32 ? 0xff000000u : 0;
    // A stop is counted in so many parts: then the middle of each step is a whole number.
    const int parts = 2 * DazzleMap::steps;
    for (int i = 0; i < DazzleMap::steps; ++i) {
        // The color in the middle of the step. A plain dazzle has only the leading color.
        const int at = shape == DazzleMap::Plain ? 0 : (2 * i + 1) * DazzleMap::ringColors;
        const int stop = leading + at / parts;
        table[i] =
            WordOf(Mix(ring[stop % DazzleMap::ringColors], ring[(stop + 1) % DazzleMap::ringColors],
                       static_cast<uint32_t>(at % parts * 256 / parts)),
                   format);
    }
}

void DazzlePainter::MakeScrimmed(int density, bool isDark)
{
    // Byte by byte, which compilers turn into instructions for many at once. Toward white the rest
    // to white is scaled.
    const unsigned inverted = isDark ? 0 : 255;
    const unsigned factor = static_cast<unsigned>(255 - density);
    const unsigned char* const from = reinterpret_cast<const unsigned char*>(table);
    unsigned char* const to = reinterpret_cast<unsigned char*>(scrimmed);
    const int used = shape == DazzleMap::Plain ? 1 : +DazzleMap::steps;
    for (int i = 0; i < 4 * used; ++i) {
        const uint16_t product = static_cast<uint16_t>((from[i] ^ inverted) * factor);
        const uint16_t rounded = static_cast<uint16_t>(product + (product >> 8) + 128);
        to[i] = static_cast<unsigned char>((rounded >> 8) ^ inverted);
    }
    for (int i = 0; i < used; ++i)
        scrimmed[i] |= opaque;
}

/** The part of row @p y that is painted. */
void DazzlePainter::FillRow(int y, const Box& within, Picture::Format format)
{
    DazzleMap::Run runs[DazzleMap::mostRuns];
    const int count = map.Runs(y, runs);
    int begin = within.left;
    for (int i = 0; i < count; ++i) {
        const int end = std::min(runs[i].end, within.right);
        const uint32_t* const colors = scrimmed + runs[i].firstStep;
        if (format == Picture::Argb32)
            FillRun<4>(map.Row(y), colors, begin, end);
        else
            FillRun<3>(map.Row(y), colors, begin, end);
        begin = std::max(begin, end);
    }
}

/** Columns @p begin up to but without @p end; without steps they all have the first color. */
template <int bytesPerPixel>
void DazzlePainter::FillRun(const uint8_t* steps, const uint32_t* colors, int begin, int end)
{
    if (begin >= end)
        return;
    unsigned char* to = &row[static_cast<size_t>(begin) * bytesPerPixel];
    // Of three bytes the fourth is the next pixel's first one, which overwrites it.
    for (int x = begin; x < end; ++x, to += bytesPerPixel)
        std::memcpy(to, &colors[steps ? steps[x] : 0], 4);
    if (bytesPerPixel == 3)
        *to = 0;
}

bool DazzlePainter::Paint(const Frame& frame, const Picture& picture)
{
    if (hasPainted && frame == painted)
        return false;
    hasPainted = true;
    painted = frame;
    const size_t rowBytes = static_cast<size_t>(picture.width) * picture.BytesPerPixel();
    for (int y = 0; y < picture.height; ++y)
        if (frame.within.IsEmpty() || y < frame.within.top || y >= frame.within.bottom)
            std::memset(picture.Row(y), 0, rowBytes);
    if (frame.within.IsEmpty())
        return true;

    map.Make(shape, picture.width, picture.height);
    row.assign(rowBytes + 1, 0);
    MakeTable(frame.leading, picture.format);
    const int densest = frame.isLightText ? darkDensity : lightDensity;
    const int height = frame.within.bottom - frame.within.top;
    // The scrim is the same in the upper and the lower half, and so are most maps: each row is
    // filled once and copied. The picture is only written to; the device reads it slowly.
    int density = -1;
    int filled = -1;
    for (int i = 0; i < (height + 1) / 2; ++i) {
        const int upper = frame.within.top + i;
        const int lower = frame.within.bottom - 1 - i;
        const int rowDensity = DensityAt(i, height, densest);
        if (rowDensity != density) {
            MakeScrimmed(rowDensity, frame.isLightText);
            density = rowDensity;
            filled = -1;
        }
        for (const int y : {upper, lower}) {
            if (filled < 0 || !map.AreSame(y, filled)) {
                FillRow(y, frame.within, picture.format);
                filled = y;
            }
            std::memcpy(picture.Row(y), &row[0], rowBytes);
        }
    }
    return true;
}

} // namespace HNodeAnimationText
} // namespace Lw
