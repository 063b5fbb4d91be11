#include "scene/pages.h"

namespace AnimText {

QVector<int> PagesFromBeginning(const QVector<int>& widths, int areaWidth)
{
    QVector<int> starts = {0};
    int sum = 0;
    for (int i = 0; i < widths.size(); ++i) {
        sum += widths[i];
        if (sum <= areaWidth)
            continue;
        if (i == starts.last()) { // too wide for any page
            starts.append(i + 1);
            sum = 0;
        } else {
            starts.append(i);
            sum = 0;
            --i; // measured again as the first of its page
        }
    }
    if (starts.last() != widths.size())
        starts.append(widths.size());
    return starts;
}

QVector<int> PagesFromEnd(const QVector<int>& widths, int areaWidth)
{
    QVector<int> starts = {widths.size()};
    int sum = 0;
    for (int i = widths.size() - 1; i >= 0; --i) {
        sum += widths[i];
        if (sum > areaWidth && i + 1 < starts.first()) {
            starts.prepend(i + 1);
            sum = widths[i];
        }
    }
    if (starts.first() != 0)
        starts.prepend(0);
    return starts;
}

} // namespace AnimText
