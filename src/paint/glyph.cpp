#include "paint/glyph.h"

#include "paint/curves.h"

#include <cmath>
#include <stdint.h>
#include <utility>

namespace Lw {
namespace HNodeAnimationText {

namespace {

bool AreSubpathsClosed(const Outline& outline, size_t size)
{
    size_t start = 0;
    for (size_t i = 1; i <= size; ++i) {
        if (i < size && outline.At(i).type != Outline::Move)
            continue;
        const Outline::Element& first = outline.At(start);
        const Outline::Element& last = outline.At(i - 1);
        // Of a move alone at the beginning the hairline goes on from the glyph before.
        if (i == 1 || first.x != last.x || first.y != last.y)
            return false;
        start = i;
    }
    return true;
}

bool ArePointsSpaced(const Outline& outline)
{
    const float apart = 1.f / 64; // of floats up to 32768 neighbors are 1/256 apart
    for (size_t i = 1; i < outline.Size(); ++i) {
        const float dx = std::fabs(outline.At(i).x - outline.At(i - 1).x);
        const float dy = std::fabs(outline.At(i).y - outline.At(i - 1).y);
        if (dx < apart && dy < apart && (dx > 0 || dy > 0))
            return false;
    }
    return true;
}

/** Finds how fine the coordinates are that the outline's curves are halved to. */
class Fineness
{
public:
    Fineness()
        : bitsX(0)
        , bitsY(0)
        , isTooFine(false)
    {
    }

    void Add(const Outline& outline);
    Point ExactWithin() const;

private:
    struct ExactPoint
    {
        double x;
        double y;
    };
    friend ExactPoint Middle(const ExactPoint& a, const ExactPoint& b)
    {
        const ExactPoint middle = {(a.x + b.x) * 0.5, (a.y + b.y) * 0.5};
        return middle;
    }

    void Add(const ExactPoint& p);
    void Add(const ExactPoint* curve, int level);
    static float Within(int64_t bits);

    // All coordinates together, in the finest units.
    int64_t bitsX;
    int64_t bitsY;
    bool isTooFine;
};

const double finest = 1 << 20; // a pixel's parts that are looked at
const double farthest = 1 << 20;

void Fineness::Add(const ExactPoint& p)
{
    if (!(p.x > -farthest && p.x < farthest && p.y > -farthest && p.y < farthest)) {
        isTooFine = true;
        return;
    }
    const int64_t x = static_cast<int64_t>(p.x * finest);
    const int64_t y = static_cast<int64_t>(p.y * finest);
    bitsX |= x;
    bitsY |= y;
    isTooFine = isTooFine || double(x) != p.x * finest || double(y) != p.y * finest ||
                double(float(p.x)) != p.x || double(float(p.y)) != p.y;
}

/** Halved as the hairline halves it, in floats; the fill computes in integers. */
void Fineness::Add(const ExactPoint* curve, int level)
{
    Point p[4];
    for (int i = 0; i < 4; ++i) {
        p[i].x = float(curve[i].x);
        p[i].y = float(curve[i].y);
    }
    if (level == 0 || isTooFine || IsFlat(p[0], p[1], p[2], p[3]))
        return;
    ExactPoint halves[7] = {curve[0], curve[1], curve[2], curve[3], {0, 0}, {0, 0}, {0, 0}};
    Halve(halves);
    // A point on the way that is not among the halves.
    Add(Middle(curve[1], curve[2]));
    for (int i = 1; i < 6; ++i)
        Add(halves[i]);
    Add(halves, level - 1);
    Add(halves + 3, level - 1);
}

void Fineness::Add(const Outline& outline)
{
    for (size_t i = 0; i < outline.Size(); ++i) {
        const ExactPoint p = {outline.At(i).x, outline.At(i).y};
        Add(p);
    }
    for (size_t i = 1; i + 2 < outline.Size() && !isTooFine; ++i) {
        if (outline.At(i).type != Outline::Curve)
            continue;
        ExactPoint curve[4];
        for (size_t k = 0; k < 4; ++k) {
            curve[k].x = outline.At(i - 1 + k).x;
            curve[k].y = outline.At(i - 1 + k).y;
        }
        Add(curve, curveHalvings);
    }
}

/** How far out a coordinate whose lowest bit is the lowest of @p bits is still held by a float. */
float Fineness::Within(int64_t bits)
{
    const float mantissa = 1 << 24;
    float within = mantissa / float(finest);
    for (int64_t bit = 1; !(bits & bit) && within < mantissa; bit *= 2)
        within *= 2;
    return within;
}

Point Fineness::ExactWithin() const
{
    Point within = {0, 0};
    if (isTooFine)
        return within;
    within.x = Within(bitsX);
    within.y = Within(bitsY);
    return within;
}

} // namespace

Glyph::Glyph()
    : isClosed(true)
    , isSpaced(true)
    , isMeasured(false)
    , exactWithin()
{
}

Glyph::Glyph(Outline outline)
    : shape(std::move(outline))
    , isClosed(shape.IsWellFormed() && shape.IsFinite())
    , isSpaced(ArePointsSpaced(shape))
    , isMeasured(false)
    , exactWithin()
{
    if (shape.Size() == 0)
        return;
    box = Bounds(&shape.At(0), shape.Size());

    // Some fonts end a glyph with a move. It paints nothing: not at the end of a path, and before
    // another glyph that glyph's own move replaces it.
    const size_t last = shape.Size() - 1;
    const bool endsWithMove = last > 0 && shape.At(last).type == Outline::Move;
    isClosed = isClosed && AreSubpathsClosed(shape, endsWithMove ? last : last + 1);
    if (isClosed && endsWithMove)
        shape.RemoveLast();
}

Point Glyph::ExactWithin() const
{
    if (!isMeasured) {
        Fineness fineness;
        fineness.Add(shape);
        exactWithin = fineness.ExactWithin();
        isMeasured = true;
    }
    return exactWithin;
}

} // namespace HNodeAnimationText
} // namespace Lw
