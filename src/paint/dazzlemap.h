#ifndef DAZZLEMAP_H
#define DAZZLEMAP_H

#include <cstddef>
#include <stdint.h>
#include <vector>

namespace Lw {
namespace HNodeAnimationText {

/**
 * Where each pixel of an area is in the dazzle's ring of colors. The ring has 30 colors, a stop is
 * the distance between two of them, and 1024 steps go once around, so that no color is more than
 * one of 255 away. A pixel's byte is a step within a quarter of the ring; which quarter is known
 * for runs of pixels.
 *
 * All in integers, so that every processor and compiler makes the same map.
 */
class DazzleMap
{
public:
    enum Shape {
        Plain,  // one color
        Linear, // 40 stops from the left edge to the right one, the last one to its end
        Radial, // 30 stops from the middle to half the width away, the last one from there on
        Conical // 30 stops around the middle of the bottom edge, from the right by the top
    };

    static const int ringColors = 30;
    static const int steps = 1024; // around the ring
    static const int quarter = steps / 4;
    static const int mostRuns = 7; // in a row

    /** Pixels up to but without column @a end. */
    struct Run
    {
        int end;
        int firstStep; // of their quarter
    };

    /** Width and height in pixels, at least 0. The same again costs nothing. */
    void Make(Shape newShape, int newWidth, int newHeight);
    /** Frees the map. */
    void Forget();

    /** One byte a pixel. Null for Plain, where all are 0. */
    const uint8_t* Row(int y) const;
    /** Sets @p runs to those of the row, from left to right. @return their number */
    int Runs(int y, Run* runs) const;
    /** Whether the two rows have the same bytes because the shape is symmetric. */
    bool AreSame(int y1, int y2) const;

    size_t Bytes() const { return map.capacity() + reaches.capacity() * sizeof(int); }

private:
    void MakeLinear();
    void MakeRadial();
    void MakeConical();
    size_t StoredRow(int y) const;
    int ColumnRightOf(int y, int64_t cosine, int64_t sine) const;

    Shape shape = Plain;
    int width = 0;
    int height = 0;
    std::vector<uint8_t> map;
    // How many pixels are in the first quarter of the ring, in the first two, and so on: of Linear
    // from the left edge, of Radial from the middle, row by row.
    std::vector<int> reaches;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
