#ifndef HAIRLINE_H
#define HAIRLINE_H

#include "paint/coats.h"
#include "paint/curves.h"
#include "paint/outline.h"
#include "paint/plane.h"
#include "paint/point.h"

namespace Lw {
namespace HNodeAnimationText {

/** Where a line goes along its long axis. */
enum Direction { Downward, Upward, Rightward, Leftward };

/** Strokes outlines one pixel wide: the device's pen of width 0, with its caps and drop-out
 * control. */
class Hairline
{
public:
    /**
     * Pixels within @p clip are set in @p ink, which is no smaller, and added to @p coats, if any,
     * as often as lines cross them.
     * @param first the direction that the path starts with, unless it goes on from another one
     */
    void Begin(const Box& clip, Plane& ink, Direction first = Rightward, Coats* coats = 0);
    /**
     * The well formed outline, with its elements at @p points, which lie within @p box.
     * @return the direction of the last line, in which the next outline of the path goes on
     */
    Direction Draw(const Outline& outline, const Point* points, const Bounds& box);

private:
    struct Pixel
    {
        int x;
        int y;
    };
    struct Trace;

    size_t DrawSubpath(const Outline& outline, const Point* points, size_t begin);
    void FollowClosing(const Point& from, const Point& to);
    void DrawLine(const Point& a, const Point& b, unsigned caps);
    void DrawCurve(const Point* curve, unsigned caps);
    void StartAt(const Point& p);
    bool TakeLine(Point a, Point b, Trace& trace);
    bool Clip(Point& a, Point& b);
    bool ClipAxis(float& a1, float& c1, float& a2, float& c2, float low, float high);
    void DropOut(Trace& trace) const;
    void Paint(const Trace& trace);
    void PaintClipped(const Trace& trace, int32_t end);
    bool IsInClip(const Pixel& p) const
    {
        return p.x >= clip.left && p.x < clip.right && p.y >= clip.top && p.y < clip.bottom;
    }
    bool IsInside(const Point& p) const
    {
        return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom;
    }
    bool HasLast() const { return last.x >= 0; }
    void ForgetLast() { last.x = -1; }

    Box clip = Box();
    Plane* ink = 0;
    Coats* coats = 0;
    // In clipped coordinates a pixel more at each side.
    float left = 0;
    float top = 0;
    float right = 0;
    float bottom = 0;
    bool isWithin = false; // nothing of the outline is clipped, in these or in pixels

    Place at = Place();   // where the line before ended, if nothing is clipped
    Pixel last = Pixel(); // of the line before, without it x is -1
    Direction direction = Rightward;
    bool isAligned = false;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
