#ifndef GLYPHCACHE_H
#define GLYPHCACHE_H

#include "paint/hairline.h"
#include "paint/plane.h"
#include "paint/textpath.h"

#include <vector>

namespace Lw {
namespace HNodeAnimationText {

/**
 * Pixels of glyphs that are painted again and again: kept from the second time on, at once where
 * they are the same at all whole pixels. Only where the device's float arithmetic gives them:
 *
 * - at the very same place, fractions included;
 * - whole pixels away, when the glyph lies within the picture and all its coordinates along an axis
 *   stay between two neighboring powers of two. Floats lie equally dense there, so every sum, half
 *   and difference is rounded alike;
 * - within the picture and whole pixels away along an axis on which the outline is steady: what
 *   floats round there does not matter (steadiness.h).
 */
class GlyphCache
{
public:
    /** A glyph's pixels; its leftmost column and its topmost row have ink. */
    struct Image
    {
        int left; // relative to the glyph's place, rounded down
        int top;
        int words; // a row
        int rows;
        std::vector<Plane::Word> bits; // of both parts
    };

    /** What is known of a glyph at a place. */
    struct Finding
    {
        const Image* image;  // null: it is to be painted, ...
        bool isWorthKeeping; // ... and then kept
        int x;               // the place, rounded down
        int y;
        Direction next; // in which the outline of the next glyph goes on
    };

    /** Of the picture. */
    void SetSize(int width, int height);
    /** The glyphs are others, or painted another way. */
    void Forget();

    /** @p direction is the one in which the outline goes on. */
    Finding Find(const TextPath::Item& item, bool isWinding, Direction direction);
    /** Keeps what was looked for last, painted alone, of an outline within @p box. */
    const Image& Keep(const Plane& inside, const Plane& hairlines, const Bounds& box,
                      Direction next);

    /** A glyph alone. */
    static void Stamp(const Finding& found, Plane& ink);
    /** One of a path: the insides of its glyphs invert each other. */
    static void Stamp(const Finding& found, Plane& inside, Plane& hairlines);

    size_t Bytes() const;

private:
    // A glyph at a place.
    struct Entry
    {
        uint32_t glyph;
        uint32_t x;
        uint32_t y;
        uint8_t direction; // and the fill rule
        uint8_t next;
        int16_t image; // its number; less than 0: it has none

        bool IsSamePlace(const Entry& other) const
        {
            return glyph == other.glyph && x == other.x && y == other.y &&
                   direction == other.direction;
        }
    };
    // A glyph under a transform, as it was seen last.
    struct Shaped
    {
        int number;
        uint32_t glyph;
        Transform transform;
        bool hasBox;
        Bounds box;
    };

    bool IsFull() const;
    void Count(bool isFound);
    void ForgetImages();
    const Bounds* FindShape(const TextPath::Item& item);
    void FindPlace(const TextPath::Item& item, const Bounds& box);
    Entry& EntryLookedFor();
    int NumberOf(const Image& image);

    int pictureWidth = 0;
    int pictureHeight = 0;
    std::vector<Entry> entries;
    std::vector<Shaped> shaped;
    std::vector<Image> images;
    size_t imageBytes = 0;
    unsigned lookups = 0; // of late
    unsigned hits = 0;
    uint32_t nextShape = 0;
    size_t entered = 0;

    Entry lookedFor = Entry();
    int wholeX = 0;
    int wholeY = 0;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
