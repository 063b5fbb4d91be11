#include "paint/plane.h"

#include <algorithm>

namespace Lw {
namespace HNodeAnimationText {

void Plane::SetSize(int w, int h)
{
    width = std::max(w, 0);
    height = std::max(h, 0);
    stride = static_cast<size_t>(width) / wordBits + 1;
    words.assign(stride * static_cast<size_t>(height) + 1, 0);
    inkTop = inkBottom = 0;
}

void Plane::Clear()
{
    if (inkTop < inkBottom)
        std::fill(Row(inkTop), Row(inkBottom - 1) + stride, Word(0));
    inkTop = inkBottom = 0;
}

void Plane::SetRun(int y, int begin, int end)
{
    if (begin >= end)
        return;
    Word* row = Row(y);
    const int first = begin / wordBits;
    const int last = (end - 1) / wordBits;
    const Word fromBegin = ~Word(0) << (begin % wordBits);
    const Word toEnd = ~Word(0) >> (wordBits - 1 - (end - 1) % wordBits);
    if (first == last) {
        row[first] |= fromBegin & toEnd;
        return;
    }
    row[first] |= fromBegin;
    std::fill(row + first + 1, row + last, ~Word(0));
    row[last] |= toEnd;
}

void Plane::MarkRows(int top, int bottom)
{
    if (top >= bottom)
        return;
    if (inkTop >= inkBottom) {
        inkTop = top;
        inkBottom = bottom;
    } else {
        inkTop = std::min(inkTop, top);
        inkBottom = std::max(inkBottom, bottom);
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
