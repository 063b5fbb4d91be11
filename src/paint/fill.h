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

/**
 * The inside of outlines. Take() an outline, ask about it, then paint it: once.
 * A picture is at most 32767 pixels wide and high.
 */
class Fill
{
public:
    Fill();

    void SetSize(int width, int height);

    /**
     * The outline from its element @p first on, a move. It is finite and well formed; it is closed,
     * and mapped through @p transform when there is one.
     */
    void Take(const Outline& outline, size_t first, const Transform* transform);
    /** Of the outline in the picture, with its control points. */
    const Bounds& OutlineBounds() const { return bounds; }

    /** All that is inside and within @p clip is set in @p ink. */
    void Paint(const Box& clip, Plane& ink);
    /**
     * All that is inside by the odd-even rule is inverted in @p plane, so that outlines painted one
     * by one look like one outline. False and nothing painted where that would not hold: far
     * outlines are cut as a whole, and gaps between ends are not closed.
     */
    bool Invert(Plane& plane);

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
    class Flips;
    class Crossings;

    void Close(const Outline& outline, size_t from);
    void CutFar();
    void Convert();
    template <typename Sink>
    void AddEdges(const Box& clip, Sink& sink) const;
    void PaintCrossings(Plane& ink);

    Box picture;
    Outline closed;
    Bounds bounds;
    std::vector<Place> places;
    bool hasGaps;
    Plane flips; // empty between two paintings
    std::vector<Crossing> crossings;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
