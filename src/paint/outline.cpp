#include "paint/outline.h"

#include "paint/point.h"

namespace Lw {
namespace HNodeAnimationText {

void Outline::Add(float x, float y, Type type)
{
    const Element element = {x, y, type};
    elements.push_back(element);
}

void Outline::CurveTo(float x1, float y1, float x2, float y2, float x, float y)
{
    Add(x1, y1, Curve);
    Add(x2, y2, CurveData);
    Add(x, y, CurveData);
}

void Outline::Append(const Outline& other)
{
    if (other.IsEmpty())
        return;
    if (!elements.empty() && elements.back().type == Move)
        elements.pop_back();
    elements.insert(elements.end(), other.elements.begin(), other.elements.end());
}

bool Outline::IsEmpty() const
{
    return elements.empty() || (elements.size() == 1 && elements.front().type == Move);
}

bool Outline::IsWellFormed() const
{
    if (!elements.empty() && elements.front().type != Move)
        return false;
    for (size_t i = 0; i < elements.size(); ++i) {
        if (elements[i].type == CurveData)
            return false;
        if (elements[i].type != Curve)
            continue;
        if (elements.size() - i < 3 || elements[i + 1].type != CurveData ||
            elements[i + 2].type != CurveData)
            return false;
        i += 2;
    }
    return true;
}

bool Outline::IsFinite() const
{
    // Sums of zeros unless a coordinate is infinite or not a number.
    float x = 0;
    float y = 0;
    for (size_t i = 0; i < elements.size(); ++i) {
        x += elements[i].x * 0;
        y += elements[i].y * 0;
    }
    return x == 0 && y == 0;
}

void Outline::Clear()
{
    elements.clear();
    fillRule = OddEven;
}

bool NearlyEqual(const Outline::Element& a, const Outline::Element& b)
{
    return NearlyZero(a.x - b.x) && NearlyZero(a.y - b.y);
}

} // namespace HNodeAnimationText
} // namespace Lw
