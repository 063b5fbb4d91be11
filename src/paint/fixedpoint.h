#ifndef FIXEDPOINT_H
#define FIXEDPOINT_H

#include <stdint.h>

namespace Lw {
namespace HNodeAnimationText {

/** A rectangle of pixels; right and bottom lie outside. */
struct Box
{
    int left;
    int top;
    int right;
    int bottom;

    bool IsEmpty() const { return right <= left || bottom <= top; }
    bool operator==(const Box& other) const
    {
        return left == other.left && top == other.top && right == other.right &&
               bottom == other.bottom;
    }
};

inline Box Intersection(const Box& a, const Box& b)
{
    const Box both = {a.left > b.left ? a.left : b.left, a.top > b.top ? a.top : b.top,
                      a.right < b.right ? a.right : b.right,
                      a.bottom < b.bottom ? a.bottom : b.bottom};
    return both;
}

/**
 * Toward zero, as the device's processor does it: what no int can hold becomes the nearest that
 * can, no number becomes 0. Others give the smallest int instead, and compilers may do as they
 * like, so it is spelled out.
 */
inline int32_t ToInt(double v)
{
    if (v >= 2147483647.0)
        return INT32_MAX;
    if (v <= -2147483648.0)
        return INT32_MIN;
    return v == v ? static_cast<int32_t>(v) : 0;
}

inline int32_t ToInt(float v)
{
    if (v >= 2147483648.0f)
        return INT32_MAX;
    if (v <= -2147483648.0f)
        return INT32_MIN;
    return v == v ? static_cast<int32_t>(v) : 0;
}

// 32-bit arithmetic wraps around on the device; in C++ only that of unsigned numbers does.

inline int32_t Sum(int32_t a, int32_t b)
{
    return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}

inline int32_t Difference(int32_t a, int32_t b)
{
    return static_cast<int32_t>(static_cast<uint32_t>(a) - static_cast<uint32_t>(b));
}

inline int32_t Product(int32_t a, int32_t b)
{
    return static_cast<int32_t>(static_cast<uint32_t>(a) * static_cast<uint32_t>(b));
}

inline int32_t ShiftedLeft(int32_t a, int bits)
{
    return static_cast<int32_t>(static_cast<uint32_t>(a) << bits);
}

inline int32_t Magnitude(int32_t a)
{
    return a < 0 ? Difference(0, a) : a;
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
