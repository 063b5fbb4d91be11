#include "layout/styledtext.h"

#include <QRegularExpression>

#include <algorithm>

namespace AnimText {

const StyleRun& StyledText::At(int index) const
{
    const auto after =
        std::upper_bound(runs.begin(), runs.end(), index,
                         [](int unit, const StyleRun& run) { return unit < run.begin; });
    return after == runs.begin() ? runs.first() : *(after - 1);
}

void StyledText::Append(const QString& more, const StyleRun& run)
{
    if (more.isEmpty())
        return;
    if (runs.isEmpty() || runs.last().font != run.font || runs.last().color != run.color) {
        runs.append(run);
        runs.last().begin = text.size();
    }
    text += more;
}

StyledText StyledText::Scaled(qreal factor) const
{
    StyledText scaled = *this;
    for (StyleRun& run : scaled.runs)
        run.font.setPixelSize(qMax(1, qRound(run.font.pixelSize() * factor)));
    return scaled;
}

bool operator==(const StyledText& a, const StyledText& b)
{
    return a.text == b.text && std::equal(a.runs.begin(), a.runs.end(), b.runs.begin(),
                                          b.runs.end(), [](const StyleRun& x, const StyleRun& y) {
                                              return x.begin == y.begin && x.font == y.font &&
                                                     x.color == y.color;
                                          });
}

} // namespace AnimText
