// Outlines that reach very far out, beyond the numbers that the fill can compute with, are cut to
// the picture. Where exactly the device cuts a curve shows in the picture, so every step is done in
// its order and precision.
#include "paint/farcutting.h"

#include "paint/point.h"

#include <algorithm>
#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const float farLimit = 32767;

typedef Outline::Element Element;

Element At(float x, float y)
{
    const Element point = {x, y, Outline::Line};
    return point;
}

// A rectangle as the device keeps it, by its width and height: the far sides are sums.
struct Rectangle
{
    explicit Rectangle(const Bounds& bounds)
        : x(bounds.left)
        , y(bounds.top)
        , width(bounds.right - bounds.left)
        , height(bounds.bottom - bounds.top)
    {
    }

    float x;
    float y;
    float width;
    float height;

    float Right() const { return x + width; }
    float Bottom() const { return y + height; }
};

bool Intersect(const Rectangle& a, const Rectangle& b)
{
    return a.width != 0 && a.height != 0 && b.width != 0 && b.height != 0 && a.x < b.Right() &&
           b.x < a.Right() && a.y < b.Bottom() && b.y < a.Bottom();
}

bool Contains(const Rectangle& outer, const Rectangle& inner)
{
    return outer.width != 0 && outer.height != 0 && inner.width != 0 && inner.height != 0 &&
           inner.x >= outer.x && inner.Right() <= outer.Right() && inner.y >= outer.y &&
           inner.Bottom() <= outer.Bottom();
}

// A curve's coordinates along one axis.
struct Polynomial
{
    float p1;
    float p2;
    float p3;
    float p4;

    float Value(float t) const
    {
        // Part of it is computed in double even where all numbers are float.
        const float u = float(1. - double(t));
        float b = u * u;
        float c = t * t;
        const float d = c * t;
        const float a = b * u;
        b = float(double(b) * (3. * double(t)));
        c = float(double(c) * (3. * double(u)));
        return a * p1 + b * p2 + c * p3 + d * p4;
    }

    int StationaryPoints(float* at) const;
    float TimeOf(float value, float t0, float t1) const;
};

// Where it turns, in (0, 1) and ascending; how many there are, at most 2.
int Polynomial::StationaryPoints(float* at) const
{
    const float a = -p1 + 3 * p2 - 3 * p3 + p4;
    const float b = 2 * p1 - 4 * p2 + 2 * p3;
    const float c = -p1 + p2;
    if (NearlyZero(a)) {
        if (NearlyZero(b))
            return 0;
        at[0] = -c / b;
        return at[0] > 0 && at[0] < 1;
    }
    const float discriminant = b * b - 4 * a * c;
    if (NearlyZero(discriminant)) {
        at[0] = -b / (2 * a);
        return at[0] > 0 && at[0] < 1;
    }
    if (!(discriminant > 0))
        return 0;
    const float root = std::sqrt(discriminant);
    float first = (-b - root) / (2 * a);
    float second = (-b + root) / (2 * a);
    if (second < first)
        std::swap(first, second);
    int count = 0;
    if (first > 0 && first < 1)
        at[count++] = first;
    if (second > 0 && second < 1)
        at[count++] = second;
    return count;
}

// By bisection between t0 and t1; the end of the last bracket whose value is the smaller one.
float Polynomial::TimeOf(float value, float t0, float t1) const
{
    float low = Value(t0);
    float high = Value(t1);
    if (low > high) {
        std::swap(low, high);
        std::swap(t0, t1);
    }
    if (low >= value)
        return t0;
    if (high <= value)
        return t1;
    float before = t0;
    float step;
    do {
        const float t = 0.5f * (t0 + t1);
        if (Value(t) < value)
            t0 = t;
        else
            t1 = t;
        step = before - t;
        before = t;
    } while (std::fabs(step) > 1e-7f);
    return t0;
}

struct CurvePart
{
    Element p[4];

    Polynomial X() const
    {
        const Polynomial x = {p[0].x, p[1].x, p[2].x, p[3].x};
        return x;
    }
    Polynomial Y() const
    {
        const Polynomial y = {p[0].y, p[1].y, p[2].y, p[3].y};
        return y;
    }
    Element PointAt(float t) const { return At(X().Value(t), Y().Value(t)); }

    CurvePart Part(float t0, float t1) const;
    CurvePart SplitLeft(float t);
};

Element Toward(const Element& a, const Element& b, float t)
{
    return At(a.x + t * (b.x - a.x), a.y + t * (b.y - a.y));
}

// Gives the part before t and becomes the part after.
CurvePart CurvePart::SplitLeft(float t)
{
    CurvePart left;
    left.p[0] = p[0];
    left.p[1] = Toward(p[0], p[1], t);
    const Element between = Toward(p[1], p[2], t);
    p[2] = Toward(p[2], p[3], t);
    p[1] = Toward(between, p[2], t);
    left.p[2] = Toward(left.p[1], between, t);
    left.p[3] = p[0] = Toward(left.p[2], p[1], t);
    return left;
}

CurvePart CurvePart::Part(float t0, float t1) const
{
    CurvePart part = *this;
    if (!NearlyZero(t1 - 1.0f))
        part = part.SplitLeft(t1);
    if (!NearlyZero(t0))
        part.SplitLeft(t0 / t1);
    return part;
}

CurvePart CurveAt(const Outline& path, size_t i)
{
    const CurvePart curve = {{path.At(i - 1), path.At(i), path.At(i + 1), path.At(i + 2)}};
    return curve;
}

// How the device puts a path together: points that are nearly the one before are left out.

void JoinMove(Outline& path, const Element& p)
{
    if (path.Size() > 0 && path.At(path.Size() - 1).type == Outline::Move)
        path.RemoveLast();
    path.MoveTo(p.x, p.y);
}

void JoinLine(Outline& path, const Element& p)
{
    if (!NearlyEqual(p, path.At(path.Size() - 1)))
        path.LineTo(p.x, p.y);
}

void JoinCurve(Outline& path, const Element& p1, const Element& p2, const Element& p)
{
    if (NearlyEqual(path.At(path.Size() - 1), p1) && NearlyEqual(p1, p2) && NearlyEqual(p2, p))
        return;
    path.CurveTo(p1.x, p1.y, p2.x, p2.y, p.x, p.y);
}

void JoinStart(Outline& path, const Element& p)
{
    if (path.Size() > 0)
        JoinLine(path, p);
    else
        path.MoveTo(p.x, p.y);
}

void AddLine(Outline& path, const Element& a, const Element& b)
{
    JoinStart(path, a);
    JoinLine(path, b);
}

void AddCurve(Outline& path, const CurvePart& curve)
{
    JoinStart(path, curve.p[0]);
    JoinCurve(path, curve.p[1], curve.p[2], curve.p[3]);
}

Outline Rebuilt(const Outline& path)
{
    Outline rebuilt;
    rebuilt.fillRule = path.fillRule;
    for (size_t i = 0; i < path.Size(); ++i) {
        switch (path.At(i).type) {
        case Outline::Move: JoinMove(rebuilt, path.At(i)); break;
        case Outline::Line: JoinLine(rebuilt, path.At(i)); break;
        default:
            JoinCurve(rebuilt, path.At(i), path.At(i + 1), path.At(i + 2));
            i += 2;
            break;
        }
    }
    return rebuilt;
}

// Times at which a curve may turn; not the ones that StationaryPoints() finds, for these are
// computed another way and rounded differently.
int TurningTimes(const Polynomial& p, bool evenDouble, float* at)
{
    const float a = 3 * (-p.p1 + 3 * p.p2 - 3 * p.p3 + p.p4);
    const float b = 6 * (p.p1 - 2 * p.p2 + p.p3);
    const float c = 3 * (-p.p1 + p.p2);
    if (NearlyZero(a)) {
        if (NearlyZero(b))
            return 0;
        at[0] = -c / b;
        return 1;
    }
    const float discriminant = b * b - 4 * a * c;
    if (!(discriminant > 0 || (evenDouble && discriminant == 0)))
        return 0;
    const float root = std::sqrt(discriminant);
    const float reciprocal = 1 / (2 * a);
    at[0] = (-b + root) * reciprocal;
    at[1] = (-b - root) * reciprocal;
    return 2;
}

void Grow(Bounds& bounds, const Element& p)
{
    bounds.left = std::min(bounds.left, p.x);
    bounds.right = std::max(bounds.right, p.x);
    bounds.top = std::min(bounds.top, p.y);
    bounds.bottom = std::max(bounds.bottom, p.y);
}

Rectangle Around(const CurvePart& curve)
{
    Bounds bounds(&curve.p[0], 1);
    Grow(bounds, curve.p[3]);
    float times[4];
    int count = TurningTimes(curve.X(), true, times);
    count += TurningTimes(curve.Y(), false, times + count);
    for (int i = 0; i < count; ++i)
        if (times[i] >= 0 && times[i] <= 1)
            Grow(bounds, curve.PointAt(times[i]));
    return Rectangle(bounds);
}

// The bounds of a path with those of its curves, not of their control points.
Rectangle TrueBounds(const Outline& path)
{
    if (path.Size() == 0)
        return Rectangle(Bounds());
    Bounds bounds(&path.At(0), 1);
    for (size_t i = 1; i < path.Size(); ++i) {
        if (path.At(i).type != Outline::Curve) {
            Grow(bounds, path.At(i));
            continue;
        }
        const Rectangle box = Around(CurveAt(path, i));
        Grow(bounds, At(box.x, box.y));
        Grow(bounds, At(box.Right(), box.Bottom()));
        i += 2;
    }
    return Rectangle(bounds);
}

// One side of the rectangle that is cut along.
struct Side
{
    bool vertical; // left or right
    bool low;      // left or top
    float border;

    float Along(const Element& p) const { return vertical ? p.x : p.y; }
    bool IsOutside(const Element& p) const { return low ? Along(p) < border : Along(p) > border; }
    Element Crossing(const Element& a, const Element& b) const
    {
        const float t = (border - Along(a)) / (Along(b) - Along(a));
        return At(a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t);
    }

    void CutLine(const Element& a, const Element& b, Outline& result) const;
    void CutCurve(const CurvePart& curve, Outline& result) const;
    Outline Cut(const Outline& subpath) const;
};

void Side::CutLine(const Element& a, const Element& b, Outline& result) const
{
    const bool outA = IsOutside(a);
    const bool outB = IsOutside(b);
    if (outA && outB)
        return;
    AddLine(result, outA ? Crossing(a, b) : a, outB ? Crossing(a, b) : b);
}

void Side::CutCurve(const CurvePart& curve, Outline& result) const
{
    int outside = 0;
    for (int i = 0; i < 4; ++i)
        outside += IsOutside(curve.p[i]);
    if (outside == 4)
        return;
    if (outside == 0) {
        AddCurve(result, curve);
        return;
    }
    // Piece by piece between the turns.
    const Polynomial along = vertical ? curve.X() : curve.Y();
    float times[4] = {0, 0, 0, 0};
    const int turns = along.StationaryPoints(times + 1);
    times[turns + 1] = 1;
    Element from = curve.p[0];
    float entered = 0;
    bool out = false;
    for (int i = 0; i <= turns; ++i) {
        const Element to = i == turns ? curve.p[3] : curve.PointAt(times[i + 1]);
        out = IsOutside(to);
        if (IsOutside(from) != out) {
            const float crossing = along.TimeOf(border, times[i], times[i + 1]);
            if (out)
                AddCurve(result, curve.Part(entered, crossing));
            entered = crossing;
        }
        from = to;
    }
    if (!out)
        AddCurve(result, curve.Part(entered, 1));
}

Outline Side::Cut(const Outline& subpath) const
{
    Outline result;
    if (subpath.Size() == 0)
        return result;
    for (size_t i = 1; i < subpath.Size(); ++i) {
        if (subpath.At(i).type == Outline::Line) {
            CutLine(subpath.At(i - 1), subpath.At(i), result);
        } else {
            CutCurve(CurveAt(subpath, i), result);
            i += 2;
        }
    }
    const Element& first = subpath.At(0);
    const Element& last = subpath.At(subpath.Size() - 1);
    if (!NearlyEqual(first, last))
        CutLine(last, first, result);
    return result;
}

void CutSubpath(Outline subpath, const Rectangle& to, Outline& result)
{
    Rectangle bounds = TrueBounds(subpath);
    if (!Intersect(bounds, to))
        return;
    const Side left = {true, true, to.x};
    const Side right = {true, false, to.Right()};
    const Side top = {false, true, to.y};
    const Side bottom = {false, false, to.Bottom()};
    if (bounds.x < left.border)
        subpath = left.Cut(subpath);
    if (bounds.Right() > right.border)
        subpath = right.Cut(subpath);
    bounds = TrueBounds(subpath);
    if (bounds.y < top.border)
        subpath = top.Cut(subpath);
    if (bounds.Bottom() > bottom.border)
        subpath = bottom.Cut(subpath);
    result.Append(subpath); // unless nothing is left of it
}

Outline CutTo(const Outline& path, const Rectangle& to)
{
    Outline result;
    result.fillRule = path.fillRule;
    for (size_t i = 0; i < path.Size();) {
        Outline subpath;
        do {
            subpath.Add(path.At(i).x, path.At(i).y, path.At(i).type);
            ++i;
        } while (i < path.Size() && path.At(i).type != Outline::Move);
        if (subpath.Size() > 1)
            CutSubpath(subpath, to, result);
    }
    return result;
}

// Five elements that go round an upright rectangle, horizontally first.
bool IsRectangle(const Outline& path)
{
    if (path.Size() != 5)
        return false;
    for (size_t i = 1; i < 5; ++i)
        if (path.At(i).type != Outline::Line)
            return false;
    const Element& a = path.At(0);
    const Element& c = path.At(2);
    return path.At(1).y == a.y && c.x == path.At(1).x && path.At(3).x == a.x &&
           path.At(3).y == c.y && path.At(4).x == a.x && path.At(4).y == a.y;
}

Outline PathAround(const Rectangle& r)
{
    Outline path;
    path.MoveTo(r.x, r.y);
    path.LineTo(r.Right(), r.y);
    path.LineTo(r.Right(), r.Bottom());
    path.LineTo(r.x, r.Bottom());
    path.LineTo(r.x, r.y);
    return path;
}

} // namespace

bool Bounds::AreFar() const
{
    const Rectangle r(*this);
    return r.x < -farLimit || r.Right() > farLimit || r.width > farLimit || r.y < -farLimit ||
           r.Bottom() > farLimit || r.height > farLimit;
}

Outline CutToPicture(const Outline& closed, const Box& picture, bool isPart)
{
    const Element corners[] = {At(float(picture.left), float(picture.top)),
                               At(float(picture.right), float(picture.bottom))};
    const Rectangle to(Bounds(corners, 2));
    const Outline path = Rebuilt(closed);
    const Rectangle bounds = TrueBounds(path);
    if (!Intersect(to, bounds))
        return Outline();
    if (Contains(to, bounds))
        return path;
    if (isPart || !IsRectangle(path))
        return CutTo(path, to);
    // Of two rectangles the device cuts the picture's to the other's bounds.
    return Contains(bounds, to) ? PathAround(to) : CutTo(PathAround(to), bounds);
}

} // namespace HNodeAnimationText
} // namespace Lw
