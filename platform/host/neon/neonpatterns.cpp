#include "neonpatterns.h"

#include <cmath>

namespace Lw {

namespace {

const double Pi = 3.14159265358979323846;

NeonLight operator*(const NeonLight& light, double factor)
{
    const NeonLight scaled = {light.red * factor, light.green * factor, light.blue * factor};
    return scaled;
}

NeonLight operator+(const NeonLight& a, const NeonLight& b)
{
    const NeonLight sum = {a.red + b.red, a.green + b.green, a.blue + b.blue};
    return sum;
}

/** Colours 0xRRGGBB that follow one another and begin again. */
struct Palette
{
    int count;
    unsigned int colours[6];
};

const Palette Palettes[] = {
    {6, {0xFF2040, 0xFF9A10, 0xE8FF20, 0x18FF70, 0x18A8FF, 0xA030FF}}, // spectrum
    {2, {0xFF2BD6, 0x19E3FF}},                                         // pink and cyan
    {4, {0xFF2D6F, 0xFF7A2F, 0xFFC53D, 0xFF4D8D}},                     // sunset
    {3, {0x38B6FF, 0xA6F0FF, 0x4F6DFF}},                               // ice
};
const int PaletteCount = sizeof(Palettes) / sizeof(Palettes[0]);

NeonLight ColourOf(const Palette& palette, int index)
{
    const unsigned int colour = palette.colours[index % palette.count];
    const NeonLight light = {(colour >> 16 & 0xFF) / 255.0, (colour >> 8 & 0xFF) / 255.0,
                             (colour & 0xFF) / 255.0};
    return light;
}

/** The colour at a place on the ring of colours: 0 the first one, 1 the first one again. */
NeonLight ColourAt(const Palette& palette, double place)
{
    const double position = (place - std::floor(place)) * palette.count;
    const int index = int(position);
    const double mix = position - index;
    return ColourOf(palette, index) * (1 - mix) + ColourOf(palette, index + 1) * mix;
}

/** What a pattern is told. */
struct Scene
{
    const NeonSpot& spot;
    const Palette& palette;
    double length; // pixels round the loop
    double tick;
    double unit; // pixels; patterns are as large as the band is thick
};

double Square(double x)
{
    return x * x;
}

/** The part of x beyond whole multiples of period; 0 <= result < period. */
double Wrap(double x, double period)
{
    const double rest = std::fmod(x, period);
    return rest < 0 ? rest + period : rest;
}

/** A glowing tube seen from the side: a core that is too bright and a soft rim. */
double Tube(double across)
{
    return std::exp(-4.5 * Square(across)) + 0.5 * std::exp(-30 * Square(across));
}

/** 1 within the edges, 0 beyond them, with a soft step between. */
double Window(double x, double from, double to, double softness)
{
    const double rise = qBound(0.0, (x - from) / softness + 0.5, 1.0);
    const double fall = qBound(0.0, (to - x) / softness + 0.5, 1.0);
    return rise * fall;
}

/** One of the equal parts that a pattern cuts the loop into. */
struct Cell
{
    int index;
    int count;     // of all cells
    double place;  // in the cell, 0 .. 1
    double length; // pixels
};

/** Cells of about @p units that fill the loop without a seam, a multiple of @p group of them. */
Cell CellAt(const Scene& s, double units, int group, double shift)
{
    const double wanted = s.length / (units * s.unit * group);
    const int count = group * qMax(1, int(std::floor(wanted + 0.5)));
    const double length = s.length / count;
    const double position = Wrap(s.spot.along - shift, s.length) / length;
    const Cell cell = {qMin(int(position), count - 1), count, position - int(position), length};
    return cell;
}

/** The whole palette runs round. */
NeonLight Rainbow(const Scene& s)
{
    const double turn = s.spot.along / s.length;
    const double wave = 0.85 + 0.15 * std::sin(2 * Pi * (3 * turn - s.tick / 20));
    return ColourAt(s.palette, turn - s.tick / 90) * (Tube(s.spot.across) * wave);
}

/** Round lamps that stand still; every third one is lit in turn. */
NeonLight ChasingDots(const Scene& s)
{
    const Cell cell = CellAt(s, 1.7, 3, 0);
    const double dx = (cell.place - 0.5) * cell.length / (s.unit / 2);
    const double distance = Square(dx) + Square(s.spot.across);
    const double lamp = std::exp(-Square(distance / 0.7)) + 0.35 * std::exp(-distance / 0.15);
    const double turn = Wrap(cell.index - s.tick / 5, 3.0);
    const double lit = std::exp(-Square(qMin(turn, 3 - turn) / 0.6));
    return ColourAt(s.palette, double(cell.index) / cell.count) * (lamp * (0.16 + 0.95 * lit));
}

/** Blocks of alternating colour that march. */
NeonLight MarqueeBlocks(const Scene& s)
{
    const Cell cell = CellAt(s, 3.5, s.palette.count, s.tick * 0.3 * s.unit);
    const double strip = 1 - Square(Square(s.spot.across));
    const double block = Window(cell.place, 0.08, 0.92, 1.5 / cell.length) * strip;
    const double sheen = 0.8 + 0.35 * std::exp(-Square((s.spot.across + 0.35) / 0.3));
    return ColourOf(s.palette, cell.index) * (block * sheen);
}

/** Comets with long tails, all one way, along a faint rail. */
NeonLight Comets(const Scene& s)
{
    const NeonLight white = {1, 1, 1};
    const double tailUnits = 9;
    const int count = qBound(1, int(s.length / (60 * s.unit)), 6);
    NeonLight light =
        ColourAt(s.palette, s.spot.along / s.length) * (0.07 * Tube(1.6 * s.spot.across));
    for (int i = 0; i < count; ++i) {
        const double head = s.length * i / count + s.tick * 0.7 * s.unit;
        const double behind = Wrap(head - s.spot.along, s.length);
        if (behind > 6 * tailUnits * s.unit && s.length - behind > 2 * s.unit)
            continue; // nothing of it is to be seen here
        const double tail = std::exp(-behind / (tailUnits * s.unit));
        const double nose = std::exp(-Square(qMin(behind, s.length - behind) / (0.5 * s.unit)));
        const double thin = s.spot.across / (0.35 + 0.65 * tail); // the tail tapers
        light = light +
                ColourAt(s.palette, double(i) / count + 0.25 * (1 - tail)) * (Tube(thin) * tail) +
                white * (0.8 * nose * Tube(s.spot.across));
    }
    return light;
}

/** The whole tube breathes while its colour drifts. */
NeonLight Breathing(const Scene& s)
{
    const double breath = 0.5 - 0.5 * std::cos(2 * Pi * (s.tick + 8) / 48);
    const double width = 1.5 - 0.7 * breath; // it swells with its light
    return ColourAt(s.palette, s.tick / 144) *
           ((0.2 + 0.95 * breath) * Tube(width * s.spot.across));
}

/** Dashes with a sharp front and a fading end flow round. */
NeonLight DashedFlow(const Scene& s)
{
    const Cell cell = CellAt(s, 5, 1, s.tick * 0.4 * s.unit);
    const double front = Window(cell.place, 0, 0.8, 1.5 / cell.length);
    const double fade = Square(cell.place / 0.8);
    return ColourAt(s.palette, double(cell.index) / cell.count) *
           (1.25 * front * fade * Tube(s.spot.across));
}

/** Slanted stripes turn like a barber's pole. */
NeonLight BarberPole(const Scene& s)
{
    const double slant = 0.5 * s.unit * s.spot.across;
    const Cell cell = CellAt(s, 2, s.palette.count, s.tick * 0.18 * s.unit - slant);
    const double soft = 1.5 / cell.length;
    const double own = Window(cell.place, 0, 2, soft) * Window(cell.place, -1, 1, soft);
    const int beside = cell.place < 0.5 ? s.palette.count - 1 : 1;
    const double round = std::sqrt(qMax(0.0, 1 - Square(s.spot.across))) * 0.85 + 0.1;
    return (ColourOf(s.palette, cell.index) * own +
            ColourOf(s.palette, cell.index + beside) * (1 - own)) *
           round;
}

NeonLight (*const Patterns[])(const Scene&) = {Rainbow,   ChasingDots, MarqueeBlocks, Comets,
                                               Breathing, DashedFlow,  BarberPole};
const int PatternCount = sizeof(Patterns) / sizeof(Patterns[0]);

} // namespace

NeonLight NeonLightAt(int style, double length, double thickness, const NeonSpot& spot, qint64 tick)
{
    const int look = style >= 1 && style <= PatternCount * PaletteCount ? style - 1 : 0;
    const Scene scene = {spot, Palettes[look / PatternCount], length, double(tick),
                         qMax(4.0, thickness)};
    return Patterns[look % PatternCount](scene);
}

} // namespace Lw
