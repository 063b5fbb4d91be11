#include "layout/fit.h"

#include "layout/shaping.h"

#include <algorithm>

namespace AnimText {

StyledText Fitted(const StyledText& text, Fit fit, QSize room)
{
    if (fit == Fit::None)
        return text;
    // Searches for the largest size; the others are in proportion to it.
    int largest = 1;
    int smallest = largestFontSize;
    for (const StyleRun& run : text.runs) {
        largest = qMax(largest, run.font.pixelSize());
        smallest = qMin(smallest, run.font.pixelSize());
    }
    const auto at = [&](int size) { return text.Scaled(qreal(size) / largest); };
    const auto fits = [&](int size) {
        const LineSize line = MeasureLine(at(size));
        return line.ascent + line.descent <= room.height() &&
               (fit == Fit::Height || line.width <= room.width());
    };
    // Measures grow nearly in proportion, so the first guess is nearly right.
    const LineSize line = MeasureLine(text);
    qreal ratio = qreal(room.height()) / qMax(1, line.ascent + line.descent);
    if (fit == Fit::Both)
        ratio = qMin(ratio, qreal(room.width()) / qMax(1, line.width));
    const int least = qMax(1, smallestReadableSize * largest / qMax(1, smallest));
    int size = qBound(least, qRound(largest * ratio), qMax(least, largestFontSize));
    while (size < largestFontSize && fits(size + 1))
        ++size;
    while (size > least && !fits(size))
        --size;
    return at(size);
}

} // namespace AnimText
