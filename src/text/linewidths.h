#ifndef LINEWIDTHS_H
#define LINEWIDTHS_H

#include <QVector>

namespace Lw {
namespace HNodeAnimationText {

/**
 * The widths of a line's characters with their running sums, in pixels, so the time to lay out a
 * line is proportional to its length. Sums wrap at 32 bits.
 */
class LineWidths
{
public:
    explicit LineWidths(const QVector<int>& itemWidths);

    /** Of character @p index; 0 beyond the items. */
    int Width(int index) const { return widths.value(index); }

    /**
     * Of the first @p count characters; 0 when @p count is below 1, and also when it is not below
     * the number of items: the width of the whole line is Total() alone.
     */
    int CountWith(int count) const;

    int Total() const { return sums.last(); }

private:
    QVector<int> widths;
    QVector<int> sums; // sums[i] is the width before item i; one more entry than widths
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
