#ifndef POINT_H
#define POINT_H

#include <cstddef>

namespace Lw {
namespace HNodeAnimationText {

/** In pixels. */
struct Point
{
    float x;
    float y;
};

/** Of points, a curve's control points included. */
struct Bounds
{
    float left;
    float top;
    float right;
    float bottom;

    Bounds()
        : left(0)
        , top(0)
        , right(0)
        , bottom(0)
    {
    }
    Bounds(const Point* points, size_t count);

    /** Beyond what the device's fill computes with: it cuts the outline to the picture first. */
    bool AreFar() const;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
