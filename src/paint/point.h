#ifndef POINT_H
#define POINT_H

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Lw {
namespace HNodeAnimationText {

/** As Qt compares a float with 0: within 1e-5. */
inline bool NearlyZero(float v)
{
    return std::fabs(v) <= 0.00001f;
}

/** In pixels. */
struct Point
{
    float x;
    float y;
};

/** Of points, a curve's control points included. */
struct Bounds
{
    float left = 0;
    float top = 0;
    float right = 0;
    float bottom = 0;

    Bounds() {}
    /** Of points or elements. */
    template <typename T>
    Bounds(const T* points, size_t count);

    /** Outside the range of the device's fill, which clips such an outline to the picture first. */
    bool AreFar() const;
};

template <typename T>
Bounds::Bounds(const T* points, size_t count)
{
    if (count == 0)
        return;
    float x0 = points[0].x;
    float x1 = x0;
    float y0 = points[0].y;
    float y1 = y0;
    for (size_t i = 1; i < count; ++i) {
        const float x = points[i].x;
        const float y = points[i].y;
        x0 = std::min(x0, x);
        x1 = std::max(x1, x);
        y0 = std::min(y0, y);
        y1 = std::max(y1, y);
    }
    left = x0;
    top = y0;
    right = x1;
    bottom = y1;
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
