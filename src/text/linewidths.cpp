#include "text/linewidths.h"

#include "text/wrapping.h"

namespace Lw {
namespace HNodeAnimationText {

LineWidths::LineWidths(const QVector<int>& itemWidths)
    : widths(itemWidths)
{
    sums.reserve(widths.size() + 1);
    sums.append(0);
    for (int i = 0; i < widths.size(); ++i)
        sums.append(WrappingSum(sums.at(i), widths.at(i)));
}

int LineWidths::CountWith(int count) const
{
    return count < 1 || count >= widths.size() ? 0 : sums.at(count);
}

} // namespace HNodeAnimationText
} // namespace Lw
