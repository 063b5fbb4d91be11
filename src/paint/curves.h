#ifndef CURVES_H
#define CURVES_H

#include "paint/fixedpoint.h"
#include "paint/point.h"

#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

/** In 1/64 pixel, as the fill computes. */
struct Place
{
    int32_t x;
    int32_t y;
};

inline Place Middle(const Place& a, const Place& b)
{
    // Halves are truncated toward zero: to the right and down left of and above the picture, to the
    // left and up within it.
    const Place middle = {Sum(a.x, b.x) / 2, Sum(a.y, b.y) / 2};
    return middle;
}

inline Point Middle(const Point& a, const Point& b)
{
    const Point middle = {(a.x + b.x) * 0.5f, (a.y + b.y) * 0.5f};
    return middle;
}

/** Halves the curve of points 0 to 3 into one of 0 to 3 and one of 3 to 6. */
template <typename T>
void Halve(T* points)
{
    const T between = Middle(points[1], points[2]);
    points[6] = points[3];
    points[1] = Middle(points[0], points[1]);
    points[5] = Middle(points[2], points[3]);
    points[2] = Middle(points[1], between);
    points[4] = Middle(points[5], between);
    points[3] = Middle(points[2], points[4]);
}

/** How often the hairline halves a curve at most. */
const int curveHalvings = 6;

/** Whether the hairline takes the curve for a line. */
inline bool IsFlat(const Point& a, const Point& b, const Point& c, const Point& d)
{
    const float dx = a.x - d.x;
    const float dy = a.y - d.y;
    const float limit = 0.25f * (std::fabs(dx) + std::fabs(dy));
    return !(std::fabs(dx * (d.y - b.y) - dy * (d.x - b.x)) >= limit ||
             std::fabs(dx * (d.y - c.y) - dy * (d.x - c.x)) >= limit);
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
