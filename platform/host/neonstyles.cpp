#include "neonstyles.h"

namespace Lw {

namespace {

const NeonPalette Spectrum = {6, {0xFF2040, 0xFF9A10, 0xE8FF20, 0x18FF70, 0x18A8FF, 0xA030FF}};
const NeonPalette Sunset = {4, {0xFF2D6F, 0xFF7A2F, 0xFFC53D, 0xFF4D8D}};
const NeonPalette PinkCyan = {2, {0xFF2BD6, 0x19E3FF}};
const NeonPalette Amber = {2, {0xFFB52E, 0xFF7A18}};
const NeonPalette Ice = {3, {0x38B6FF, 0xA6F0FF, 0x4F6DFF}};
const NeonPalette Fire = {3, {0xFFD23F, 0xFF5A1F, 0xFF1E3C}};
const NeonPalette Mint = {3, {0x1BFFB3, 0x2BD2FF, 0x7CFF5B}};
const NeonPalette Violet = {3, {0x8A3CFF, 0xFF3CC7, 0x4F5BFF}};
const NeonPalette Candy = {2, {0xFF2447, 0xFFE9E4}};
const NeonPalette Lagoon = {2, {0x12F0C0, 0x1268FF}};
const NeonPalette GoldRose = {2, {0xFFC44D, 0xFF4FA0}};

struct Look
{
    NeonLight (*pattern)(const NeonScene&);
    const NeonPalette& palette;
};

const Look Looks[NeonStyleCount] = {
    {Rainbow, Spectrum},        // 1
    {ChasingDots, Amber},       // 2
    {MarqueeBlocks, PinkCyan},  // 3
    {Comets, Ice},              // 4
    {TwinComets, PinkCyan},     // 5
    {Breathing, Violet},        // 6
    {DashedFlow, Mint},         // 7
    {CornerSparkles, GoldRose}, // 8
    {Braid, PinkCyan},          // 9
    {Ripples, Lagoon},          // 10
    {Fireflies, Spectrum},      // 11
    {SelfDrawing, Sunset},      // 12
    {BarberPole, Candy},        // 13
    {Lightning, Ice},           // 14
    {Rainbow, Sunset},          // 15
    {ChasingDots, Spectrum},    // 16
    {MarqueeBlocks, Spectrum},  // 17
    {Comets, Fire},             // 18
    {TwinComets, GoldRose},     // 19
    {Breathing, Spectrum},      // 20
    {DashedFlow, Spectrum},     // 21
    {CornerSparkles, Ice},      // 22
    {Braid, Fire},              // 23
    {Ripples, Violet},          // 24
    {Fireflies, Amber},         // 25
    {SelfDrawing, Mint},        // 26
    {BarberPole, Spectrum},     // 27
    {Lightning, Violet}         // 28
};

} // namespace

NeonLight NeonLightAt(int style, const NeonLoop& loop, const NeonSpot& spot, qint64 tick)
{
    const Look& look = Looks[style >= 1 && style <= NeonStyleCount ? style - 1 : 0];
    const NeonScene scene = {loop, spot, look.palette, double(tick), qMax(4.0, loop.thickness)};
    return look.pattern(scene);
}

} // namespace Lw
