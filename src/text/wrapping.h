#ifndef WRAPPING_H
#define WRAPPING_H

#include <QtGlobal>

namespace Lw {
namespace HNodeAnimationText {

// Sums and products of attributes wrap at 32 bits, as they do on the device; signed overflow is
// undefined.

inline int Wrapped(qint64 value)
{
    return static_cast<int>(static_cast<quint32>(static_cast<quint64>(value)));
}

inline int WrappingSum(int a, int b)
{
    return Wrapped(qint64(a) + b);
}

inline int WrappingProduct(int a, int b)
{
    return Wrapped(qint64(a) * b);
}

/** @p value truncated toward zero, within the ints; not a number gives 0. */
inline int Truncated(double value)
{
    if (!(value == value))
        return 0;
    if (value >= 2147483647.0)
        return 2147483647;
    if (value <= -2147483648.0)
        return -2147483647 - 1;
    return static_cast<int>(value);
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
