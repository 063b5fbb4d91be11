#include "neonpatterns.h"

#include <QtGlobal>

#include <cmath>

namespace Lw {

namespace {

const double Pi = 3.14159265358979323846;

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

/** A flat strip with soft edges. */
double Strip(double across)
{
    return 1 - Square(Square(across));
}

/** 1 within the edges, 0 beyond them, with a soft step between. */
double Window(double x, double from, double to, double softness)
{
    const double rise = qBound(0.0, (x - from) / softness + 0.5, 1.0);
    const double fall = qBound(0.0, (to - x) / softness + 0.5, 1.0);
    return rise * fall;
}

/** A fixed arbitrary number 0 .. 1 for every pair. */
double Noise(int a, int b)
{
    unsigned int hash = unsigned(a) * 0x9E3779B1u ^ unsigned(b) * 0x85EBCA77u;
    hash = (hash ^ hash >> 15) * 0x2C1B3C6Du;
    hash = (hash ^ hash >> 12) * 0x297A2D39u;
    hash ^= hash >> 15;
    return (hash & 0xFFFF) / 65535.0;
}

/** Of the way round, 0 .. 1. */
double Turn(const NeonScene& scene)
{
    return scene.spot.along / scene.loop.length;
}

/** How many cells of about @p units fill the loop without a seam, a multiple of @p group. */
int CellCount(const NeonScene& scene, double units, int group)
{
    const double length = units * scene.unit * group;
    return group * qMax(1, int(std::floor(scene.loop.length / length + 0.5)));
}

/** One of the equal parts that a pattern cuts the loop into. */
struct Cell
{
    int index;
    double place;  ///< in the cell, 0 .. 1
    double length; ///< pixels
};

Cell CellAt(const NeonScene& scene, int count, double shift)
{
    const double length = scene.loop.length / count;
    const double position = Wrap(scene.spot.along - shift, scene.loop.length) / length;
    const Cell cell = {qMin(int(position), count - 1), position - int(position), length};
    return cell;
}

/** A round lamp in the middle of its cell, as wide as the band. */
double Lamp(const NeonScene& scene, const Cell& cell)
{
    const double dx = (cell.place - 0.5) * cell.length / (scene.unit / 2);
    const double distance = Square(dx) + Square(scene.spot.across);
    return std::exp(-Square(distance / 0.7)) + 0.35 * std::exp(-distance / 0.15);
}

/** The light of a comet whose head is at @p head; behind it is where @p sense points away from. */
NeonLight CometLight(const NeonScene& s, double head, double sense, double tailUnits, double place)
{
    const double behind = Wrap(sense * (head - s.spot.along), s.loop.length);
    const double ahead = s.loop.length - behind;
    if (behind > 6 * tailUnits * s.unit && ahead > 2 * s.unit) {
        const NeonLight dark = {0, 0, 0};
        return dark;
    }
    const double tail = std::exp(-behind / (tailUnits * s.unit));
    const double nose = std::exp(-Square(qMin(behind, ahead) / (0.5 * s.unit)));
    const double thin = s.spot.across / (0.35 + 0.65 * tail); // the tail tapers
    const NeonLight white = {1, 1, 1};
    return ColourAt(s.palette, place + 0.25 * (1 - tail)) * (Tube(thin) * tail) +
           white * (0.8 * nose * Tube(s.spot.across));
}

NeonLight Rail(const NeonScene& s, double brightness)
{
    return ColourAt(s.palette, Turn(s)) * (brightness * Tube(1.6 * s.spot.across));
}

/** Noise that flows between fixed arbitrary values, -1 .. 1. */
double SmoothNoise(double x, int count, int seed)
{
    const int index = int(std::floor(x));
    const double mix = x - index;
    const double smooth = mix * mix * (3 - 2 * mix);
    const double from = Noise(index % count, seed);
    const double to = Noise((index + 1) % count, seed);
    return 2 * (from + (to - from) * smooth) - 1;
}

} // namespace

NeonLight Rainbow(const NeonScene& s)
{
    const double wave = 0.85 + 0.15 * std::sin(2 * Pi * (3 * Turn(s) - s.tick / 20));
    return ColourAt(s.palette, Turn(s) - s.tick / 90) * (Tube(s.spot.across) * wave);
}

NeonLight ChasingDots(const NeonScene& s)
{
    const int count = CellCount(s, 1.7, 3);
    const Cell cell = CellAt(s, count, 0);
    const double turn = Wrap(cell.index - s.tick / 5, 3.0);
    const double lit = std::exp(-Square(qMin(turn, 3 - turn) / 0.6));
    return ColourAt(s.palette, double(cell.index) / count) * (Lamp(s, cell) * (0.16 + 0.95 * lit));
}

NeonLight MarqueeBlocks(const NeonScene& s)
{
    const Cell cell = CellAt(s, CellCount(s, 3.5, s.palette.count), s.tick * 0.3 * s.unit);
    const double edge = 1.5 / cell.length;
    const double block = Window(cell.place, 0.08, 0.92, edge) * Strip(s.spot.across);
    const double sheen = 0.8 + 0.35 * std::exp(-Square((s.spot.across + 0.35) / 0.3));
    return ColourOf(s.palette, cell.index) * (block * sheen);
}

NeonLight Comets(const NeonScene& s)
{
    const int count = qBound(1, int(s.loop.length / (60 * s.unit)), 6);
    NeonLight light = Rail(s, 0.07);
    for (int i = 0; i < count; ++i) {
        const double head = s.loop.length * i / count + s.tick * 0.7 * s.unit;
        light = light + CometLight(s, head, 1, 9, double(i) / count);
    }
    return light;
}

NeonLight TwinComets(const NeonScene& s)
{
    const double way = s.tick * 0.6 * s.unit;
    return Rail(s, 0.07) + CometLight(s, way, 1, 12, 0) +
           CometLight(s, s.loop.length / 2 - way, -1, 12, 0.5);
}

NeonLight Breathing(const NeonScene& s)
{
    const double breath = 0.5 - 0.5 * std::cos(2 * Pi * (s.tick + 8) / 48);
    const double width = 1.5 - 0.7 * breath; // it swells with its light
    return ColourAt(s.palette, s.tick / 144) *
           ((0.2 + 0.95 * breath) * Tube(width * s.spot.across));
}

NeonLight DashedFlow(const NeonScene& s)
{
    const int count = CellCount(s, 5, 1);
    const Cell cell = CellAt(s, count, s.tick * 0.4 * s.unit);
    const double front = Window(cell.place, 0, 0.8, 1.5 / cell.length);
    const double fade = Square(cell.place / 0.8);
    return ColourAt(s.palette, double(cell.index) / count) *
           (1.25 * front * fade * Tube(s.spot.across));
}

NeonLight CornerSparkles(const NeonScene& s)
{
    NeonLight light = Rail(s, 0.16);
    for (int i = 0; i < 4; ++i) {
        const double ahead = Wrap(s.spot.along - s.loop.corners[i], s.loop.length);
        const double distance = qMin(ahead, s.loop.length - ahead) / s.unit;
        if (distance > 30)
            continue;
        const double phase = Wrap(s.tick / 40 + 0.25 * Noise(i, 1) + 0.5 * (i % 2), 1.0);
        const double twinkle = std::exp(-5 * phase) * (1 - std::exp(-30 * (phase + 0.02)));
        const double glint = std::exp(-Square((distance - 14 * phase) / 1.2)) * Square(1 - phase);
        const double star =
            2.2 * twinkle * std::exp(-Square(distance / 2.2)) * Tube(s.spot.across) +
            1.6 * twinkle * std::exp(-distance / 6) * Tube(3 * s.spot.across);
        light = light + ColourAt(s.palette, 0.25 * i) * (star + 0.9 * glint * Tube(s.spot.across));
    }
    return light;
}

NeonLight Braid(const NeonScene& s)
{
    const double angle = 2 * Pi * (CellCount(s, 9, 1) * Turn(s) - s.tick / 22);
    NeonLight light = {0, 0, 0};
    for (int strand = 0; strand < 2; ++strand) {
        const double place = angle + strand * Pi;
        const double depth = 0.65 + 0.35 * std::cos(place); // the nearer strand is brighter
        const double line = std::exp(-Square((s.spot.across - 0.55 * std::sin(place)) / 0.3));
        light = light + ColourAt(s.palette, 0.5 * strand) * (1.1 * depth * line);
    }
    return light;
}

NeonLight Ripples(const NeonScene& s)
{
    const double half = s.loop.length / 2;
    const double middle = (s.loop.corners[0] + s.loop.corners[3] - s.loop.length) / 2;
    const double from = Wrap(s.spot.along - middle, half);
    const double distance = qMin(from, half - from);
    const double phase = Wrap((s.tick * 0.45 * s.unit - distance) / (9 * s.unit), 1.0);
    const double ring = std::exp(-2.5 * phase) * Window(phase, 0.02, 1, 0.04);
    const double far = 1 - 0.4 * distance / (half / 2);
    return ColourAt(s.palette, 2 * distance / half - s.tick / 120) *
           ((0.1 + ring * far) * Tube(s.spot.across));
}

NeonLight Fireflies(const NeonScene& s)
{
    const int count = CellCount(s, 1.8, 1);
    const Cell cell = CellAt(s, count, 0);
    const double pace = 26 + 30 * Noise(cell.index, 1);
    const double time = s.tick / pace + Noise(cell.index, 2);
    const double glow = std::pow(0.5 - 0.5 * std::cos(2 * Pi * time), 5.0);
    return ColourAt(s.palette, Noise(cell.index, 3) + std::floor(time) * 0.38) *
           ((0.06 + 1.2 * glow) * Lamp(s, cell));
}

NeonLight SelfDrawing(const NeonScene& s)
{
    const double period = 64;
    const double time = Wrap(s.tick, 2 * period) / period;
    const double step = time - std::floor(time);
    const double eased = step * step * (3 - 2 * step);
    const double pen = eased * s.loop.length;
    const bool isDrawing = time < 1;
    const double soft = s.unit / 2;
    const double line = isDrawing ? Window(s.spot.along, -s.unit, pen, soft)
                                  : Window(s.spot.along, pen, s.loop.length + s.unit, soft);
    const double toPen = Wrap(s.spot.along - pen, s.loop.length);
    const double spark = std::exp(-Square(qMin(toPen, s.loop.length - toPen) / s.unit));
    const NeonLight white = {1, 1, 1};
    return ColourAt(s.palette, Turn(s) + s.tick / 256) *
               ((0.05 + 0.95 * line) * Tube(s.spot.across)) +
           white * (0.9 * spark * Tube(s.spot.across));
}

NeonLight BarberPole(const NeonScene& s)
{
    const int count = CellCount(s, 2, s.palette.count);
    const double slant = 0.5 * s.unit * s.spot.across;
    const Cell cell = CellAt(s, count, s.tick * 0.18 * s.unit - slant);
    const double edge = 0.75 / cell.length;
    const double own = Window(cell.place, 0, 2, 2 * edge) * Window(cell.place, -1, 1, 2 * edge);
    const NeonLight before = ColourOf(s.palette, cell.index + s.palette.count - 1);
    const NeonLight after = ColourOf(s.palette, cell.index + 1);
    const NeonLight beside = cell.place < 0.5 ? before : after;
    const double round = std::sqrt(qMax(0.0, 1 - Square(s.spot.across))) * 0.85 + 0.1;
    return (ColourOf(s.palette, cell.index) * own + beside * (1 - own)) * round;
}

NeonLight Lightning(const NeonScene& s)
{
    const int count = CellCount(s, 2.2, 1);
    const int leap = int(Wrap(std::floor(s.tick / 2), 9973));
    const double x = Turn(s) * count;
    const double coarse = SmoothNoise(x, count, 2 * leap);
    const double fine = SmoothNoise(3 * x, 3 * count, 2 * leap + 1);
    const double distance = s.spot.across - 0.5 * coarse - 0.25 * fine;
    const double flicker = 0.75 + 0.25 * Noise(leap, 7);
    const double surge = 0.7 + 0.3 * std::sin(2 * Pi * (2 * Turn(s) - s.tick / 30));
    const double arc =
        std::exp(-Square(distance / 0.16)) + 0.35 * std::exp(-Square(distance / 0.5));
    const NeonLight white = {1, 1, 1};
    return ColourAt(s.palette, Turn(s) + s.tick / 200) * (1.1 * arc * flicker * surge) +
           white * (0.5 * std::exp(-Square(distance / 0.09)) * flicker);
}

} // namespace Lw
