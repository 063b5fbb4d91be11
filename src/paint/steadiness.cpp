// A glyph that moves by whole pixels keeps the fractions of its coordinates, but floats round them
// differently at different places. The error of a coordinate is counted in units of half the
// distance between two neighboring floats just below the largest coordinate.
#include "paint/steadiness.h"

#include "paint/curves.h"
#include "paint/outline.h"

#include <algorithm>
#include <cmath>
#include <stdint.h>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const float everywhere = 1 << 24; // from here on floats do not even hold all whole numbers
const float units = 1 << 25;      // in the largest coordinate

/** How far out floats hold what lies in such a place behind the point. */
float ExactWithin(double v)
{
    const double finest = 1 << 20; // parts of a pixel that are checked
    const int64_t bits = static_cast<int64_t>(v * finest);
    if (double(bits) != v * finest)
        return 0;
    return bits == 0 ? everywhere : everywhere / float(finest) * float(bits & -bits);
}

/** A coordinate as it would be without rounding. */
struct Coordinate
{
    double v;
    float exact; // not rounded when no coordinate is larger
};

Coordinate Middle(const Coordinate& a, const Coordinate& b)
{
    Coordinate middle = {(a.v + b.v) * 0.5, std::min(a.exact, b.exact)};
    if (middle.exact > 0)
        middle.exact = std::min(middle.exact, ExactWithin(middle.v));
    return middle;
}

struct SteadyPoint
{
    Coordinate x;
    Coordinate y;
    float error; // at most, in units
};

SteadyPoint Middle(const SteadyPoint& a, const SteadyPoint& b)
{
    const SteadyPoint middle = {Middle(a.x, b.x), Middle(a.y, b.y), (a.error + b.error) * 0.5f + 1};
    return middle;
}

SteadyPoint PointOf(const Outline::Element& element)
{
    // Moving it rounds it once; a little more for what doubles round here.
    const SteadyPoint p = {{double(element.x), ExactWithin(double(element.x))},
                           {double(element.y), ExactWithin(double(element.y))},
                           1.0625f};
    return p;
}

/** Takes all that the device decides by a glyph's coordinates. */
class Decisions
{
public:
    Decisions()
    {
        const Steadiness all = {{everywhere, everywhere}, {everywhere, everywhere}, everywhere};
        found = all;
    }

    void Add(const Outline& outline);
    Steadiness Found() const;

private:
    static void Truncate(const Coordinate& c, float error, float& exact, float& rounded);
    void Truncate(const SteadyPoint& p);
    void Flatten(const SteadyPoint* curve, int level);
    static float FlatWithin(const SteadyPoint* p, bool& isFlat);

    Steadiness found;
};

void Decisions::Truncate(const Coordinate& c, float error, float& exact, float& rounded)
{
    const double scaled = c.v * 64;
    const double part = std::fabs(scaled - double(static_cast<int64_t>(scaled)));
    const float distance = float(std::min(part, 1 - part)) / 64;
    exact = std::min(exact, c.exact);
    rounded = std::min(rounded, std::max(c.exact, distance * units / error));
}

/** A point at which a line ends. */
void Decisions::Truncate(const SteadyPoint& p)
{
    Truncate(p.x, p.error, found.exact.x, found.rounded.x);
    Truncate(p.y, p.error, found.exact.y, found.rounded.y);
}

/** As IsFlat(), and how far out that holds. */
float Decisions::FlatWithin(const SteadyPoint* p, bool& isFlat)
{
    const double dx = p[0].x.v - p[3].x.v;
    const double dy = p[0].y.v - p[3].y.v;
    const double length = std::fabs(dx) + std::fabs(dy);
    const double limit = 0.25 * length;
    const float error =
        std::max(std::max(p[0].error, p[1].error), std::max(p[2].error, p[3].error));
    isFlat = true;
    double within[2] = {double(everywhere), 0}; // if it is flat, if it is not
    for (int i = 1; i < 3; ++i) {
        const double x = p[3].x.v - p[i].x.v;
        const double y = p[3].y.v - p[i].y.v;
        const double distance = std::fabs(x) + std::fabs(y);
        const double bend = std::fabs(dx * y - dy * x);
        // Differences are off by two errors, and all that is computed by its own rounding.
        const double rounding = 16 / double(units) * length * (distance + 1);
        const double margin = std::max(0.0, std::fabs(bend - limit) - rounding) /
                              (2 * double(error) * (length + distance + 1));
        if (bend < limit)
            within[0] = std::min(within[0], margin * double(units));
        else
            within[1] = std::max(within[1], margin * double(units));
        isFlat = isFlat && bend < limit;
    }
    return float(within[isFlat ? 0 : 1]);
}

void Decisions::Flatten(const SteadyPoint* curve, int level)
{
    if (level == 0)
        return;
    bool isFlat = true;
    const float flat = FlatWithin(curve, isFlat);
    found.flat = std::min(found.flat, flat);
    if (isFlat && flat > 0) // at 0 it is not certain
        return;
    SteadyPoint halves[7] = {curve[0], curve[1], curve[2], curve[3]};
    Halve(halves);
    Truncate(halves[3]); // as exact as all that it comes from
    Flatten(halves, level - 1);
    Flatten(halves + 3, level - 1);
}

void Decisions::Add(const Outline& outline)
{
    SteadyPoint curve[4] = {};
    for (size_t i = 0; i < outline.Size();) {
        const int first = outline.At(i).type == Outline::Curve ? 1 : 3;
        curve[0] = curve[3];
        for (int k = first; k < 4; ++k, ++i) {
            curve[k] = PointOf(outline.At(i));
            Truncate(curve[k]);
        }
        if (first == 1)
            Flatten(curve, curveHalvings);
    }
}

Steadiness Decisions::Found() const
{
    Steadiness steadiness = found;
    float* const all[] = {&steadiness.exact.x, &steadiness.exact.y, &steadiness.rounded.x,
                          &steadiness.rounded.y, &steadiness.flat};
    // Errors double at each power of two.
    for (float* within : all) {
        int exponent = 0;
        std::frexp(*within, &exponent);
        *within = std::ldexp(0.5f, exponent);
    }
    return steadiness;
}

} // namespace

Steadiness SteadinessOf(const Outline& outline)
{
    Decisions decisions;
    decisions.Add(outline);
    return decisions.Found();
}

} // namespace HNodeAnimationText
} // namespace Lw
