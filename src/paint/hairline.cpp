// A line is painted pixel by pixel along its long axis. Where lines meet, a pixel that would be
// painted twice is dropped and a missing one is added, depending on the last pixel of the previous
// line.
#include "paint/hairline.h"

#include <algorithm>
#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

namespace {

enum Cap { NoCap = 0, CapBegin = 1, CapEnd = 2 };

bool AreOpposite(Direction a, Direction b)
{
    return (a ^ b) == 1; // neighbors in the enumeration
}

int32_t Fixed(float v)
{
    return ToInt(double(v) * 64.) + 31;
}

/** The same of a number that an int can hold, 64 times as large too. */
int32_t FixedWithin(float v)
{
    return static_cast<int32_t>(v * 64.f) + 31;
}

} // namespace

/** A line in pixels: along its long axis from begin to end (outside), across in 16.16. */
struct Hairline::Trace
{
    bool steep;
    bool swapped; // ascends along, was drawn the other way
    bool aligned;
    Direction direction;
    int32_t a1; // along, in 1/64 pixel
    int32_t a2;
    int32_t c1; // across, in 1/64 pixel, where it begins
    int32_t rise;
    int32_t length; // without caps
    bool hasCapAtBegin;
    int32_t begin;
    int32_t end;
    int32_t across;
    int32_t step;

    /** In 1/64 pixel. False when the line has no length. */
    bool Take(int32_t x1, int32_t y1, int32_t x2, int32_t y2);
    void AddCaps(unsigned caps);
    /** False when there is no pixel. */
    bool FindPixels();

    Pixel At(int32_t along, int32_t at) const
    {
        const Pixel p = {steep ? at >> 16 : along, steep ? along : at >> 16};
        return p;
    }
    Pixel Low() const { return At(begin, across); }
    Pixel High() const { return At(end - 1, Sum(across, Product(end - begin - 1, step))); }
    Pixel First() const { return swapped ? High() : Low(); }
    Pixel Last() const { return swapped ? Low() : High(); }

    /** Moves the end where it was begun, by pixels in the direction of drawing. */
    void MoveBegin(int by);
};

inline bool Hairline::Trace::Take(int32_t x1, int32_t y1, int32_t x2, int32_t y2)
{
    steep = Magnitude(x2 - x1) < Magnitude(y2 - y1);
    swapped = steep ? y1 > y2 : x1 > x2;
    if (swapped) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    direction = steep ? (swapped ? Upward : Downward) : (swapped ? Leftward : Rightward);
    a1 = steep ? y1 : x1;
    a2 = steep ? y2 : x2;
    c1 = steep ? x1 : y1;
    rise = (steep ? x2 : y2) - c1;
    length = a2 - a1;
    hasCapAtBegin = false;
    return length != 0;
}

inline void Hairline::Trace::AddCaps(unsigned caps)
{
    if (caps & (swapped ? CapEnd : CapBegin)) {
        a1 -= 32;
        hasCapAtBegin = true;
    }
    if (caps & (swapped ? CapBegin : CapEnd))
        a2 += 32;
}

inline bool Hairline::Trace::FindPixels()
{
    begin = (a1 + 32) >> 6;
    end = (a2 + 32) >> 6;
    if (begin == end)
        return false;
    // A short division where it is enough.
    if (Magnitude(rise) <= 0x7fff)
        step = rise * 65536 / length;
    else
        step = static_cast<int32_t>(int64_t(rise) * 65536 / length);
    aligned = Magnitude(step) < (1 << 14);
    across = Difference(ShiftedLeft(c1, 10), hasCapAtBegin ? step >> 1 : 0);
    across = Sum(across, Product(ShiftedLeft(begin, 6) + 32 - a1, step) >> 6);
    return true;
}

inline void Hairline::Trace::MoveBegin(int by)
{
    if (swapped) {
        end -= by;
    } else {
        begin += by;
        across = Sum(across, Product(by, step));
    }
}

void Hairline::Begin(const Box& box, Plane& plane, Direction first, Coats* counted)
{
    clip = box;
    ink = &plane;
    coats = counted;
    left = float(box.left - 1);
    top = float(box.top - 1);
    right = float(box.right + 1);
    bottom = float(box.bottom + 1);
    direction = first;
}

Direction Hairline::Draw(const Outline& outline, const Point* points, const Bounds& box)
{
    if (clip.IsEmpty())
        return direction;
    // Pixels lie within one of the points; caps and rounding add a little.
    const float margin = 3;
    isWithin = box.left >= left + margin && box.right <= right - margin &&
               box.top >= top + margin && box.bottom <= bottom - margin;
    for (size_t begin = 0; begin < outline.Size();)
        begin = DrawSubpath(outline, points, begin);
    if (isWithin)
        ink->MarkRows(static_cast<int>(box.top) - 2,
                      std::min(static_cast<int>(box.bottom) + 3, clip.bottom));
    else
        ink->MarkRows(clip.top, clip.bottom);
    return direction;
}

inline void Hairline::StartAt(const Point& p)
{
    if (isWithin) {
        at.x = FixedWithin(p.x);
        at.y = FixedWithin(p.y);
    }
}

/** Gives where the next one begins. */
size_t Hairline::DrawSubpath(const Outline& outline, const Point* points, size_t begin)
{
    size_t end = begin + 1;
    while (end < outline.Size() && outline.At(end).type != Outline::Move)
        ++end;
    ForgetLast();
    const Outline::Element& first = outline.At(begin);
    const bool isClosed = first.x == outline.At(end - 1).x && first.y == outline.At(end - 1).y;
    // Of a move alone this is the way there from the subpath before, on the device too.
    if (isClosed && end > 1)
        FollowClosing(points[end - 2], points[end - 1]);
    unsigned caps = isClosed ? NoCap : CapBegin;
    StartAt(points[begin]);
    for (size_t i = begin + 1; i < end; ++i) {
        const bool isCurve = outline.At(i).type == Outline::Curve;
        const size_t last = isCurve ? i + 2 : i;
        if (!isClosed && last + 1 == end)
            caps |= CapEnd;
        if (isCurve)
            DrawCurve(points + i - 1, caps);
        else
            DrawLine(points[i - 1], points[i], caps);
        i = last;
        caps = NoCap;
    }
    return end;
}

/** The last line of a closed subpath, unpainted: what the first line goes on from. */
void Hairline::FollowClosing(const Point& from, const Point& to)
{
    Trace trace;
    StartAt(from);
    const bool hasLength = TakeLine(from, to, trace);
    ForgetLast();
    if (!hasLength || !trace.FindPixels())
        return;
    last = trace.Last();
    direction = trace.direction;
    isAligned = trace.aligned;
}

/** Cuts along one axis: a is the coordinate that is cut. True when nothing is left. */
bool Hairline::ClipAxis(float& a1, float& c1, float& a2, float& c2, float low, float high)
{
    const float begin = std::max(low, std::min(a1, high));
    if (a1 != begin) {
        if (std::max(low, std::min(a2, high)) == begin)
            return true;
        c1 += (c2 - c1) / (a2 - a1) * (begin - a1);
        a1 = begin;
    }
    const float end = std::max(low, std::min(a2, high));
    if (a2 != end) {
        ForgetLast();
        c2 += (c2 - c1) / (a2 - a1) * (end - a2);
        a2 = end;
    }
    return false;
}

/** In float, so that numbers stay small. True when nothing is left. */
bool Hairline::Clip(Point& a, Point& b)
{
    // Most lines are inside already.
    if (IsInside(a) && IsInside(b))
        return false;
    if (ClipAxis(a.x, a.y, b.x, b.y, left, right) || ClipAxis(a.y, a.x, b.y, b.x, top, bottom)) {
        ForgetLast();
        return true;
    }
    return false;
}

/** A line from where the last one ended. False when nothing is left of it, or it has no length. */
inline bool Hairline::TakeLine(Point a, Point b, Trace& trace)
{
    if (isWithin) {
        const Place from = at;
        StartAt(b);
        return trace.Take(from.x, from.y, at.x, at.y);
    }
    return !Clip(a, b) && trace.Take(Fixed(a.x), Fixed(a.y), Fixed(b.x), Fixed(b.y));
}

void Hairline::DrawLine(const Point& a, const Point& b, unsigned caps)
{
    Trace trace;
    if (!TakeLine(a, b, trace))
        return;
    if (AreOpposite(direction, trace.direction))
        caps |= CapBegin;
    if (caps != NoCap)
        trace.AddCaps(caps);
    if (!trace.FindPixels())
        return;
    const Pixel endsWith = trace.Last(); // does not know of pixels dropped or added
    DropOut(trace);
    direction = trace.direction;
    isAligned = trace.aligned;
    Paint(trace);
    last = endsWith;
}

inline void Hairline::DropOut(Trace& trace) const
{
    if (!HasLast())
        return;
    const Pixel first = trace.First();
    const int gapX = Magnitude(Difference(last.x, first.x));
    const int gapY = Magnitude(Difference(last.y, first.y));
    if (gapX == 0 && gapY == 0) {
        trace.MoveBegin(1);
    } else if (direction != trace.direction &&
               ((trace.aligned && isAligned && gapX != 0 && gapY != 0) || gapX > 1 || gapY > 1)) {
        trace.MoveBegin(-1);
    }
}

/** Of which some may be outside; pixel by pixel, as coats are counted. */
void Hairline::PaintClipped(const Trace& trace, int32_t end)
{
    int32_t across = trace.across;
    for (int32_t along = trace.begin; along < end; ++along) {
        const Pixel p = trace.At(along, across);
        if (IsInClip(p)) {
            ink->Set(p.x, p.y);
            if (coats)
                coats->Add(p.x, p.y);
        }
        across = Sum(across, trace.step);
    }
}

__attribute__((always_inline)) inline void Hairline::Paint(const Trace& trace)
{
    // A line that lost its only pixel still paints one: the device paints before it checks.
    const int32_t end = std::max(trace.end, trace.begin + 1);
    int32_t across = trace.across;
    if (coats ||
        (!isWithin &&
         !(IsInClip(trace.Low()) &&
           IsInClip(trace.At(end - 1, Sum(across, Product(end - 1 - trace.begin, trace.step))))))) {
        PaintClipped(trace, end);
        return;
    }
    const size_t stride = ink->Stride();
    if (trace.step == 0 && trace.steep) {
        const unsigned column = static_cast<unsigned>(across >> 16);
        Plane::Word* word = ink->Row(trace.begin) + column / Plane::wordBits;
        const Plane::Word bit = Plane::Word(1) << column % Plane::wordBits;
        for (int32_t y = trace.begin; y < end; ++y, word += stride)
            *word |= bit;
    } else if (trace.step == 0) {
        ink->SetRun(across >> 16, trace.begin, end);
    } else if (trace.steep) {
        Plane::Word* row = ink->Row(trace.begin);
        for (int32_t y = trace.begin; y < end; ++y, row += stride) {
            Plane::SetIn(row, across >> 16);
            across = Sum(across, trace.step);
        }
    } else {
        Plane::Word* const words = ink->Row(0);
        for (int32_t x = trace.begin; x < end; ++x) {
            Plane::SetIn(words + static_cast<size_t>(across >> 16) * stride, x);
            across = Sum(across, trace.step);
        }
    }
}

void Hairline::DrawCurve(const Point* curve, unsigned caps)
{
    // A stack of parts, the next one on top; each goes on at an end that it shares with the one
    // below, so they lie there backwards.
    Point points[4 + 3 * curveHalvings];
    std::reverse_copy(curve, curve + 4, points);
    int halvings[1 + curveHalvings];
    halvings[0] = 0;
    unsigned begin = caps & CapBegin;
    for (int top = 0; top >= 0;) {
        Point* const p = points + 3 * top;
        if (halvings[top] < curveHalvings && !IsFlat(p[3], p[2], p[1], p[0])) {
            Halve(p);
            halvings[top + 1] = ++halvings[top];
            ++top;
            continue;
        }
        DrawLine(p[3], p[0], begin | (top == 0 ? caps & CapEnd : 0));
        begin = 0;
        --top;
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
