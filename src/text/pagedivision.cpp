#include "text/pagedivision.h"

#include "text/linewidths.h"
#include "text/wrapping.h"

namespace Lw {
namespace HNodeAnimationText {

void CutForward(const LineWidths& line, int length, int areaWidth, QList<int>& breaks,
                QList<int>& offsets)
{
    breaks.append(0);
    offsets.append(0);
    int lastCut = 0;
    int sum = 0;
    int count = 1;
    while (count <= length) {
        sum = WrappingSum(sum, line.Width(count - 1));
        if (sum <= areaWidth) {
            ++count;
            continue;
        }
        // The character that overflows begins the next page, unless it is alone on this one.
        const bool alone = count - lastCut == 1;
        lastCut = alone ? count : count - 1;
        breaks.append(lastCut);
        offsets.append(line.CountWith(lastCut));
        sum = 0;
        if (alone)
            ++count;
    }
}

void CutBackward(const LineWidths& line, int length, int areaWidth, QList<int>& breaks,
                 QList<int>& offsets)
{
    breaks.append(length - 1);
    offsets.append(line.CountWith(length - 1));
    int sum = 0;
    for (int i = length - 1; i >= 0; --i) {
        sum = WrappingSum(sum, line.Width(i));
        if (sum > areaWidth) {
            breaks.append(i);
            offsets.append(line.CountWith(i));
            sum = line.Width(i);
        }
    }
    breaks.append(-1);
    offsets.append(0);
    // A last character wider than the area has begun its own page.
    if (breaks.size() >= 2 && breaks.at(0) == breaks.at(1)) {
        breaks.removeFirst();
        offsets.removeFirst();
    }
}

QVector<int> PageStartsForward(const QVector<int>& widths, int areaWidth)
{
    QList<int> breaks, offsets;
    CutForward(LineWidths(widths), widths.size(), areaWidth, breaks, offsets);
    if (breaks.last() != widths.size())
        breaks.append(widths.size());
    return breaks.toVector();
}

QVector<int> PageStartsBackward(const QVector<int>& widths, int areaWidth)
{
    QList<int> breaks, offsets;
    CutBackward(LineWidths(widths), widths.size(), areaWidth, breaks, offsets);
    QVector<int> starts;
    for (int i = breaks.size() - 1; i >= 0; --i)
        starts.append(breaks.at(i) + 1);
    return starts;
}

} // namespace HNodeAnimationText
} // namespace Lw
