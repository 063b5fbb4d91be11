// Rows are sampled at whole coordinates. An edge is a run of rows with a column that grows by a
// fixed step in 16.16; a pixel is inside when the edges to its left say so.
#include "paint/fill.h"

#include <algorithm>
#include <utility>

namespace Lw {
namespace HNodeAnimationText {

namespace {

typedef Plane::Word Word;

const int unitsPerPixel = 64;
const int halvings = 32;

/** Rows top to bottom, both included; x is the column in the first one. */
struct Run
{
    int32_t x;
    int32_t step;
    int top;
    int bottom;
    int winding;
};

__attribute__((always_inline)) inline bool IsFlat(const Place* p)
{
    const int32_t flatness = 16;
    const int32_t chordX = Difference(p[3].x, p[0].x);
    const int32_t chordY = Difference(p[3].y, p[0].y);
    const int32_t length = Sum(Magnitude(chordX), Magnitude(chordY));
    const int32_t x1 = Difference(p[1].x, p[0].x);
    const int32_t y1 = Difference(p[1].y, p[0].y);
    const int32_t x2 = Difference(p[2].x, p[0].x);
    const int32_t y2 = Difference(p[2].y, p[0].y);
    if (length <= unitsPerPixel)
        return Sum(Sum(Magnitude(x1), Magnitude(y1)), Sum(Magnitude(x2), Magnitude(y2))) <=
               flatness;
    const int64_t cross1 = int64_t(x1) * chordY - int64_t(y1) * chordX;
    const int64_t cross2 = int64_t(x2) * chordY - int64_t(y2) * chordX;
    const int64_t distance = (cross1 < 0 ? -cross1 : cross1) + (cross2 < 0 ? -cross2 : cross2);
    return distance <= int64_t(flatness) * length;
}

/** Whether a row is sampled between the points: else no line between them has one. */
inline bool CrossesRow(const Place* p)
{
    const int32_t high = std::min(std::min(p[0].y, p[1].y), std::min(p[2].y, p[3].y));
    const int32_t low = std::max(std::max(p[0].y, p[1].y), std::max(p[2].y, p[3].y));
    return Sum(high, unitsPerPixel - 1) >> 6 <= Difference(low, 1) >> 6;
}

/** Makes runs of edges, within a clip, for a sink. */
template <typename Sink>
class Edges
{
public:
    Edges(const Box& box, const Sink& to)
        : clip(box)
        , left(ShiftedLeft(box.left, 16))
        , right(ShiftedLeft(box.right, 16))
        , sink(to)
    {
    }

    void Line(Place a, Place b);
    void Curve(const Place& a, const Place& b, const Place& c, const Place& d);

private:
    void AddBorder(int32_t border, int top, int bottom, int winding);
    bool CutAtBorder(int32_t border, bool isRight, Run& run);

    Box clip;
    int32_t left;
    int32_t right;
    Sink sink;
};

template <typename Sink>
void Edges<Sink>::Line(Place a, Place b)
{
    int winding = 1;
    if (a.y > b.y) {
        std::swap(a, b);
        winding = -1;
    }
    int top = Sum(a.y, unitsPerPixel - 1) >> 6;
    int bottom = Difference(b.y, 1) >> 6;
    if (!Sink::isWithin) {
        top = std::max(clip.top, top);
        bottom = std::min(clip.bottom - 1, bottom);
    }
    if (top > bottom)
        return;
    const int32_t start = Sum(ShiftedLeft(a.x, 10), 65535);
    if (!Sink::isWithin && a.x == b.x) {
        AddBorder(std::max(left, std::min(start, right)), top, bottom, winding);
        return;
    }
    const float slope = float(Difference(b.x, a.x)) / float(Difference(b.y, a.y));
    const int32_t step = ToInt(slope * 65536.0f);
    const int32_t below = Difference(ShiftedLeft(top, 16), ShiftedLeft(a.y, 10));
    const int32_t moved = static_cast<int32_t>((int64_t(step) * below) >> 16);
    Run run = {Sum(start, moved), step, top, bottom, winding};
    if (Sink::isWithin) {
        sink.Add(run);
        return;
    }
    const int64_t last = run.x + int64_t(step) * (bottom - top);
    const bool isInside = run.x > left && run.x < right && last > left && last < right;
    if (isInside)
        sink.AddInside(run, static_cast<int32_t>(last));
    else if (CutAtBorder(left, false, run) && CutAtBorder(right, true, run))
        sink.Add(run);
}

template <typename Sink>
void Edges<Sink>::AddBorder(int32_t border, int top, int bottom, int winding)
{
    const Run run = {border, 0, top, bottom, winding};
    sink.Add(run);
}

/** What of the run lies outside moves onto the border; false when that is all of it. */
template <typename Sink>
bool Edges<Sink>::CutAtBorder(int32_t border, bool isRight, Run& run)
{
    const int rows = run.bottom - run.top;
    const int32_t last = Sum(run.x, Product(run.step, rows));
    const bool startsOutside = (run.x < border) != isRight;
    const bool endsOutside = (last < border) != isRight;
    if (!startsOutside && !endsOutside)
        return true;
    if (startsOutside && endsOutside) {
        AddBorder(border, run.top, run.bottom, run.winding);
        return false;
    }
    const float perRow = float(run.step) / 65536.0f;
    const int32_t crossing = ToInt(float(Difference(border, run.x)) / perRow);
    const int inFirstPart =
        std::max(0, std::min((startsOutside ? Sum(crossing, 1) : crossing) >> 16, rows));
    const int middle = run.top + inFirstPart;
    if (startsOutside) {
        AddBorder(border, run.top, middle, run.winding);
        run.x = Sum(run.x, Product(run.step, inFirstPart + 1));
        run.top = middle + 1;
        return run.top <= run.bottom;
    }
    if (middle != run.bottom)
        AddBorder(border, middle + 1, run.bottom, run.winding);
    run.bottom = middle;
    return true;
}

template <typename Sink>
void Edges<Sink>::Curve(const Place& a, const Place& b, const Place& c, const Place& d)
{
    // A stack of halves; the second half lies on top.
    Place points[4 + 3 * halvings];
    Place* p = points;
    p[0] = a;
    p[1] = b;
    p[2] = c;
    p[3] = d;
    while (p >= points) {
        if (!CrossesRow(p)) {
            p -= 3;
        } else if (IsFlat(p) || p == points + 3 * halvings) {
            Line(p[0], p[3]);
            p -= 3;
        } else {
            Halve(p);
            p += 3;
        }
    }
}

/** Of a plane's words and rows. */
Box NothingIn(const Plane& plane)
{
    const Box nothing = {static_cast<int>(plane.Stride()), plane.Height(), 0, 0};
    return nothing;
}

void ExclusiveOr(Word& word, Word& inside)
{
    // The bits of a word from each set one to the next, by a running exclusive or.
    Word bits = word;
    bits ^= bits << 1;
    bits ^= bits << 2;
    bits ^= bits << 4;
    bits ^= bits << 8;
    bits ^= bits << 16;
    bits ^= bits << 32;
    bits ^= inside;
    inside = bits >> (Plane::wordBits - 1) ? ~Word(0) : Word(0);
    word = bits;
}

void Flip(Word* row, int column)
{
    const unsigned x = static_cast<unsigned>(column);
    row[x / Plane::wordBits] ^= Word(1) << x % Plane::wordBits;
}

/** A run that stays within the plane. */
void Flip(const Run& run, Plane& flips)
{
    const size_t stride = flips.Stride();
    Word* row = flips.Row(run.top);
    int32_t x = run.x;
    if (run.step == 0) {
        const unsigned column = static_cast<unsigned>(x >> 16);
        const Word bit = Word(1) << column % Plane::wordBits;
        row += column / Plane::wordBits;
        for (int y = run.top; y <= run.bottom; ++y, row += stride)
            *row ^= bit;
        return;
    }
    for (int y = run.top; y <= run.bottom; ++y, row += stride) {
        Flip(row, x >> 16);
        x = Sum(x, run.step);
    }
}

} // namespace

/** Quick way for odd-even outlines without gaps: every row has an even number of crossings. */
struct Fill::Flips
{
    static const bool isWithin = false;

    void Add(const Run& run);
    void AddInside(const Run& run, int32_t last);
    void Touch(const Run& run, int firstColumn, int lastColumn);

    Box clip;
    Plane& flips;
    Box& flipped;
};

void Fill::Flips::Touch(const Run& run, int firstColumn, int lastColumn)
{
    flipped.left = std::min(flipped.left, firstColumn / Plane::wordBits);
    flipped.right = std::max(flipped.right, lastColumn / Plane::wordBits + 1);
    flipped.top = std::min(flipped.top, run.top);
    flipped.bottom = std::max(flipped.bottom, run.bottom + 1);
}

void Fill::Flips::Add(const Run& run)
{
    Touch(run, clip.left, clip.right);
    Word* row = flips.Row(run.top);
    int32_t x = run.x;
    for (int y = run.top; y <= run.bottom; ++y, row += flips.Stride()) {
        Flip(row, std::max(clip.left, std::min(x >> 16, clip.right)));
        x = Sum(x, run.step);
    }
}

/** A run that stays between the borders. */
void Fill::Flips::AddInside(const Run& run, int32_t last)
{
    Touch(run, std::min(run.x, last) >> 16, std::max(run.x, last) >> 16);
    Flip(run, flips);
}

/** The same for an outline within the picture: nothing to cut, and what it touches is known. */
struct Fill::FlipsWithin
{
    static const bool isWithin = true;

    void Add(const Run& run) { Flip(run, flips); }
    void AddInside(const Run& run, int32_t) { Add(run); }

    Plane& flips;
};

/** For all others: the crossings themselves. */
struct Fill::Crossings
{
    static const bool isWithin = false;

    void AddInside(const Run& run, int32_t) { Add(run); }
    void Add(const Run& run)
    {
        int32_t x = run.x;
        for (int y = run.top; y <= run.bottom; ++y) {
            const Crossing crossing = {y, std::max(clip.left, std::min(x >> 16, clip.right)),
                                       run.winding};
            crossings.push_back(crossing);
            x = Sum(x, run.step);
        }
    }

    Box clip;
    std::vector<Crossing>& crossings;
};

void Fill::SetSize(int width, int height)
{
    const Box box = {0, 0, width, height};
    picture = box;
    flips.SetSize(width, height);
    flipped = NothingIn(flips);
}

void Fill::Close(const Outline& outline)
{
    closed.Clear();
    closed.fillRule = outline.fillRule;
    size_t start = 0;
    for (size_t i = 0; i <= outline.Size(); ++i) {
        const bool atEnd = i == outline.Size();
        if (i > 0 && (atEnd || outline.At(i).type == Outline::Move)) {
            // The device leaves gaps open that are smaller than its comparison of floats tells.
            const Outline::Element first = closed.At(start);
            if (!NearlyEqual(closed.At(closed.Size() - 1), first))
                closed.LineTo(first.x, first.y);
            start = closed.Size();
        }
        if (atEnd || (i + 1 == outline.Size() && outline.At(i).type == Outline::Move && i > 0))
            break;
        closed.Add(outline.At(i).x, outline.At(i).y, outline.At(i).type);
    }
}

void Fill::CutClosed(bool isPart)
{
    const Outline cut = CutToPicture(closed, picture, isPart);
    closed.Clear();
    if (!cut.IsEmpty())
        Close(cut);
}

bool Fill::HasGaps() const
{
    size_t start = 0;
    for (size_t i = 0; i < places.size(); ++i) {
        if (closed.At(i).type == Outline::Move)
            start = i;
        if ((i + 1 == places.size() || closed.At(i + 1).type == Outline::Move) &&
            (places[i].x != places[start].x || places[i].y != places[start].y))
            return true;
    }
    return false;
}

template <typename Sink>
void Fill::AddEdges(const Outline& outline, const Box& clip, Sink sink) const
{
    Edges<Sink> edges(clip, sink);
    for (size_t i = 1; i < outline.Size(); ++i) {
        const Place* p = &places[i - 1];
        switch (outline.At(i).type) {
        case Outline::Line: edges.Line(p[0], p[1]); break;
        case Outline::Curve:
            edges.Curve(p[0], p[1], p[2], p[3]);
            i += 2;
            break;
        default: break;
        }
    }
}

void Fill::Paint(const Outline& outline, const Transform& transform, const Box& clip, Plane& ink)
{
    Close(outline);
    closed = transform.map(std::move(closed));
    if (closed.Size() > 0 && Bounds(&closed.At(0), closed.Size()).AreFar())
        CutClosed(false);
    PaintClosed(clip, ink);
}

void Fill::PaintPartOfFar(const Outline& outline, Plane& ink)
{
    Close(outline);
    CutClosed(true);
    PaintClosed(picture, ink);
}

void Fill::PaintClosed(const Box& clip, Plane& ink)
{
    places.resize(closed.Size());
    for (size_t i = 0; i < places.size(); ++i) {
        const Place place = {ToInt(closed.At(i).x * 64), ToInt(closed.At(i).y * 64)};
        places[i] = place;
    }
    if (clip.IsEmpty() || places.size() < 3)
        return;
    if (closed.fillRule == Outline::OddEven && !HasGaps()) {
        const Flips quick = {clip, flips, flipped};
        AddEdges(closed, clip, quick);
        PourFlips<Plane::Unite>(ink);
        return;
    }
    crossings.clear();
    const Crossings sorted = {clip, crossings};
    AddEdges(closed, clip, sorted);
    PaintCrossings(ink);
}

void Fill::Add(const Outline& outline, const Point* points, const Bounds& box)
{
    const size_t size = outline.Size();
    if (places.size() < size)
        places.resize(size);
    for (size_t i = 0; i < size; ++i) {
        const Place place = {static_cast<int32_t>(points[i].x * 64),
                             static_cast<int32_t>(points[i].y * 64)};
        places[i] = place;
    }
    // A run may leave its edge's columns by a fraction of a pixel.
    const float margin = 2;
    if (box.left >= margin && box.right <= float(picture.right) - margin && box.top >= 0 &&
        box.bottom <= float(picture.bottom)) {
        flipped.left = std::min(flipped.left, (static_cast<int>(box.left) - 1) / Plane::wordBits);
        flipped.right =
            std::max(flipped.right, (static_cast<int>(box.right) + 2) / Plane::wordBits + 1);
        flipped.top = std::min(flipped.top, static_cast<int>(box.top));
        flipped.bottom =
            std::max(flipped.bottom, std::min(static_cast<int>(box.bottom) + 1, picture.bottom));
        const FlipsWithin quick = {flips};
        AddEdges(outline, picture, quick);
        return;
    }
    const Flips quick = {picture, flips, flipped};
    AddEdges(outline, picture, quick);
}

void Fill::InvertInside(Plane& plane)
{
    PourFlips<Plane::Invert>(plane);
}

/** Into what lies between flips; takes these away. */
template <typename Operation>
void Fill::PourFlips(Plane& plane)
{
    for (int y = flipped.top; y < flipped.bottom; ++y) {
        Word* from = flips.Row(y);
        Word* to = plane.Row(y);
        Word inside = 0;
        for (int i = flipped.left; i < flipped.right; ++i) {
            Word bits = from[i];
            if ((bits | inside) == 0)
                continue;
            from[i] = 0;
            ExclusiveOr(bits, inside);
            Operation::Apply(to[i], bits);
        }
    }
    plane.MarkRows(flipped.top, flipped.bottom);
    flipped = NothingIn(flips);
}

void Fill::PaintCrossings(Plane& ink)
{
    const int inside = closed.fillRule == Outline::Winding ? ~0 : 1;
    std::sort(crossings.begin(), crossings.end());
    int winding = 0;
    for (size_t i = 0; i < crossings.size(); ++i) {
        const Crossing& c = crossings[i];
        if (i == 0 || crossings[i - 1].row != c.row)
            winding = 0; // a new row begins outside
        else if (winding & inside)
            ink.SetRun(c.row, crossings[i - 1].column, c.column);
        winding += c.winding;
    }
    if (!crossings.empty())
        ink.MarkRows(crossings.front().row, crossings.back().row + 1);
}

size_t Fill::Bytes() const
{
    return flips.Bytes() + places.capacity() * sizeof(Place) +
           crossings.capacity() * sizeof(Crossing) + closed.Bytes();
}

} // namespace HNodeAnimationText
} // namespace Lw
