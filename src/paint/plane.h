#ifndef PLANE_H
#define PLANE_H

#include <cstddef>
#include <stdint.h>
#include <vector>

namespace Lw {
namespace HNodeAnimationText {

/**
 * A picture of one bit a pixel. The leftmost pixel of a word is its lowest bit; a row has room for
 * one bit beyond the picture, where runs that reach the right border end. One word follows the last
 * row.
 */
class Plane
{
public:
    typedef uint64_t Word;
    static const int wordBits = 64;

    /** Removes all ink. */
    void SetSize(int w, int h);
    void Clear();

    int Width() const { return width; }
    int Height() const { return height; }
    /** Words a row. */
    size_t Stride() const { return stride; }
    Word* Row(int y) { return &words[static_cast<size_t>(y) * stride]; }
    const Word* Row(int y) const { return &words[static_cast<size_t>(y) * stride]; }

    static void SetIn(Word* row, int x)
    {
        const unsigned column = static_cast<unsigned>(x);
        row[column / wordBits] |= Word(1) << column % wordBits;
    }
    void Set(int x, int y) { SetIn(Row(y), x); }
    bool Has(int x, int y) const { return Row(y)[x / wordBits] >> (x % wordBits) & 1; }
    /** Columns @p begin up to but without @p end. */
    void SetRun(int y, int begin, int end);

    /** What ink does to what is there. */
    struct Unite
    {
        static void Apply(Word& to, Word ink) { to |= ink; }
    };
    struct Invert
    {
        static void Apply(Word& to, Word ink) { to ^= ink; }
    };
    /** The ink of @p other, which has the same size. */
    template <typename Operation>
    void Take(const Plane& other);

    /** Call after setting bits in rows @p top to @p bottom - 1. */
    void MarkRows(int top, int bottom);
    /** First row with ink. */
    int InkTop() const { return inkTop; }
    /** Row after the last with ink. */
    int InkBottom() const { return inkBottom; }

    size_t Bytes() const { return words.capacity() * sizeof(Word); }

private:
    int width = 0;
    int height = 0;
    size_t stride = 0;
    int inkTop = 0;
    int inkBottom = 0;
    std::vector<Word> words;
};

template <typename Operation>
void Plane::Take(const Plane& other)
{
    if (other.inkTop >= other.inkBottom)
        return;
    Word* to = Row(other.inkTop);
    const Word* from = other.Row(other.inkTop);
    const size_t count = static_cast<size_t>(other.inkBottom - other.inkTop) * stride;
    for (size_t i = 0; i < count; ++i)
        Operation::Apply(to[i], from[i]);
    MarkRows(other.inkTop, other.inkBottom);
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
