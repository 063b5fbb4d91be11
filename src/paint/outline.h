#ifndef OUTLINE_H
#define OUTLINE_H

#include <cstddef>
#include <vector>

namespace Lw {
namespace HNodeAnimationText {

/**
 * A path of lines and cubic curves in pixels, computed in float as on the device. It behaves
 * like QPainterPath there: the same elements, the same result for an empty path or a trailing move.
 */
class Outline
{
public:
    enum Type { Move, Line, Curve, CurveData };
    enum FillRule { OddEven, Winding };

    /** A curve is a Curve, its first control point, and two CurveData, the second and the end. */
    struct Element
    {
        float x;
        float y;
        Type type;
    };

    void MoveTo(float x, float y) { Add(x, y, Move); }
    void LineTo(float x, float y) { Add(x, y, Line); }
    void CurveTo(float x1, float y1, float x2, float y2, float x, float y);

    /** Takes over @p other, which is another outline; the fill rule stays. */
    void Append(const Outline& other);

    /** Empty, or only a move. */
    bool IsEmpty() const;
    /** The elements begin with a move and curves are complete, so it can be painted. */
    bool IsWellFormed() const;
    /** All coordinates are finite numbers. */
    bool IsFinite() const;
    void Clear();

    size_t Size() const { return elements.size(); }
    size_t Bytes() const { return elements.capacity() * sizeof(Element); }
    const Element& At(size_t i) const { return elements[i]; }
    Element& At(size_t i) { return elements[i]; }
    void Reserve(size_t size) { elements.reserve(size); }
    void Add(float x, float y, Type type);
    void RemoveLast() { elements.pop_back(); }

    FillRule fillRule = OddEven;

private:
    std::vector<Element> elements;
};

/** Points that the device takes for one: each coordinate within 1e-5. */
bool NearlyEqual(const Outline::Element& a, const Outline::Element& b);

} // namespace HNodeAnimationText
} // namespace Lw

#endif
