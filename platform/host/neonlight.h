/**
 * @file
 * Coloured light, and the palettes that it is taken from.
 */
#ifndef LW_NEONLIGHT_H
#define LW_NEONLIGHT_H

namespace Lw {

/** Light that adds up: 1 is full, more than that glows towards white. */
struct NeonLight
{
    double red;
    double green;
    double blue;
};

inline NeonLight operator*(const NeonLight& light, double factor)
{
    const NeonLight scaled = {light.red * factor, light.green * factor, light.blue * factor};
    return scaled;
}

inline NeonLight operator+(const NeonLight& a, const NeonLight& b)
{
    const NeonLight sum = {a.red + b.red, a.green + b.green, a.blue + b.blue};
    return sum;
}

/** Colours 0xRRGGBB that follow one another and begin again. */
struct NeonPalette
{
    int count;
    unsigned int colours[6];
};

/** The colour at a place on the ring of colours: 0 the first one, 1 the first one again. */
NeonLight ColourAt(const NeonPalette& palette, double place);

/** One of the colours, counted from 0 and beginning again after the last. */
NeonLight ColourOf(const NeonPalette& palette, int index);

} // namespace Lw

#endif
