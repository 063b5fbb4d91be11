#ifndef FILL_H
#define FILL_H

#include "paint/curves.h"
#include "paint/farcutting.h"
#include "paint/outline.h"
#include "paint/plane.h"
#include "paint/transform.h"

#include <vector>

namespace Lw {
namespace HNodeAnimationText {

/** The inside of outlines. A picture is at most 32767 pixels wide and high. */
class Fill
{
public:
    void SetSize(int width, int height);

    /**
     * All that is inside @p outline and within @p clip is set in @p ink. The outline is finite and
     * well formed; it is closed, then mapped through @p transform.
     */
    void Paint(const Outline& outline, const Transform& transform, const Box& clip, Plane& ink);
    /** A closed glyph of a path that is far out, inside which the outline itself may be. */
    void PaintPartOfFar(const Outline& outline, Plane& ink);

    /**
     * Takes an outline to those that fill each other by the odd-even rule. It is well formed, each
     * of its subpaths ends where it begins, and none of its elements, at @p points within @p box,
     * is far out.
     */
    void Add(const Outline& outline, const Point* points, const Bounds& box);
    /** Inverts the inside of the collected outlines in @p plane, and starts a new collection. */
    void InvertInside(Plane& plane);

    size_t Bytes() const;

private:
    struct Crossing
    {
        int row;
        int column;
        int winding;

        bool operator<(const Crossing& other) const
        {
            return row < other.row || (row == other.row && column < other.column);
        }
    };
    struct Flips;
    struct FlipsWithin;
    struct Crossings;

    void Close(const Outline& outline);
    void CutClosed(bool isPart);
    void PaintClosed(const Box& clip, Plane& ink);
    bool HasGaps() const;
    template <typename Sink>
    void AddEdges(const Outline& outline, const Box& clip, Sink sink) const;
    template <typename Operation>
    void PourFlips(Plane& plane);
    void PaintCrossings(Plane& ink);

    Box picture = Box();
    Outline closed;
    std::vector<Place> places;
    Plane flips;         // empty once it is poured
    Box flipped = Box(); // what of it is not: words and rows
    std::vector<Crossing> crossings;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
