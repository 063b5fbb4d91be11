#include "neonlight.h"

#include <cmath>

namespace Lw {

NeonLight ColourAt(const NeonPalette& palette, double place)
{
    const double position = (place - std::floor(place)) * palette.count;
    const int index = int(position);
    const double mix = position - index;
    return ColourOf(palette, index) * (1 - mix) + ColourOf(palette, index + 1) * mix;
}

NeonLight ColourOf(const NeonPalette& palette, int index)
{
    const unsigned int colour = palette.colours[index % palette.count];
    const NeonLight light = {(colour >> 16 & 0xFF) / 255.0, (colour >> 8 & 0xFF) / 255.0,
                             (colour & 0xFF) / 255.0};
    return light;
}

} // namespace Lw
