#include "paint/glyphcache.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

namespace {

typedef Plane::Word Word;

const size_t fewestEntries = 256;
const size_t mostEntries = 4096;
const size_t entriesInRow = 4; // where one key may lie
const uint8_t noDirection = 255;
const int16_t neverSeen = -2; // an entry's image, when it has none
const int16_t seenOnce = -1;
const size_t mostShaped = 256;
const uint32_t mostShapes = 1u << 30;
const size_t mostImageBytes = 256 * 1024;

// Once there is no more room, images stay as long as more than one lookup in so many finds one.
const unsigned lookupsForHit = 16;
const unsigned mostLookups = 1024; // that count

// A glyph that keeps this far from the borders is painted whole, with no coordinate below 0.
const float margin = 3;

// A place along an axis as a key: the bits of its float; or, for places that give the same pixels,
// bits that no number has: betweenPowers with the power of two below all coordinates, or anywhere.
const uint32_t betweenPowers = 0xff800000u;
const uint32_t anywhere = 0xffffffffu;

uint32_t BitsOf(float v)
{
    uint32_t bits;
    std::memcpy(&bits, &v, sizeof bits);
    return bits;
}

/** The power of two not above a positive number, as the float has it. */
uint32_t PowerBelow(float v)
{
    return BitsOf(v) >> 23;
}

uint32_t PlaceKey(float low, float high, float steadyWithin, float at)
{
    if (high + at <= steadyWithin)
        return anywhere;
    if (PowerBelow(low + at) == PowerBelow(high + at))
        return betweenPowers | PowerBelow(low + at);
    return BitsOf(at);
}

enum Part { Inside, Hairlines };

template <typename Operation>
void StampPart(const GlyphCache::Finding& found, Part part, Plane& plane)
{
    const GlyphCache::Image& image = *found.image;
    if (image.rows == 0)
        return;
    const int x = found.x + image.left;
    const int y = found.y + image.top;
    const Word* from = &image.bits[size_t(part) * size_t(image.rows * image.words)];
    Word* to = plane.Row(y) + x / Plane::wordBits;
    const int shift = x % Plane::wordBits;
    const size_t stride = plane.Stride();
    for (int row = 0; row < image.rows; ++row, to += stride)
        for (int i = 0; i < image.words; ++i) {
            const Word bits = *from++;
            Operation::Apply(to[i], bits << shift);
            // Past the image's right end these bits are 0; the plane has a word to spare after its
            // last row for them.
            Operation::Apply(to[i + 1], bits >> 1 >> (Plane::wordBits - 1 - shift));
        }
    plane.MarkRows(y, y + image.rows);
}

/** Where the planes have ink; they have none further than the margin from @p outline. */
Box InkOf(const Plane& a, const Plane& b, const Bounds& outline)
{
    Box ink = {a.Width(), a.Height(), 0, 0};
    const float width = float(a.Width());
    const size_t begin =
        static_cast<size_t>(std::max(0.f, std::min(outline.left - margin, width))) /
        Plane::wordBits;
    const size_t end = static_cast<size_t>(std::max(0.f, std::min(outline.right + margin, width))) /
                           Plane::wordBits +
                       1;
    for (int y = std::min(a.InkTop(), b.InkTop()); y < std::max(a.InkBottom(), b.InkBottom()); ++y)
        for (size_t i = begin; i < end; ++i) {
            const Word word = a.Row(y)[i] | b.Row(y)[i];
            if (word == 0)
                continue;
            const int column = static_cast<int>(i) * Plane::wordBits;
            ink.left = std::min(ink.left, column + __builtin_ctzll(word));
            ink.right = std::max(ink.right, column + Plane::wordBits - __builtin_clzll(word));
            ink.top = std::min(ink.top, y);
            ink.bottom = y + 1;
        }
    return ink;
}

/** The rows of a part, from the ink's left side on. */
void Gather(const Plane& plane, const Box& ink, int words, std::vector<Word>& to)
{
    const int shift = ink.left % Plane::wordBits;
    for (int y = ink.top; y < ink.bottom; ++y) {
        const Word* from = plane.Row(y) + ink.left / Plane::wordBits;
        const Word* const end = plane.Row(y) + plane.Stride();
        for (int i = 0; i < words; ++i, ++from) {
            const Word next = from + 1 < end ? from[1] : 0;
            to.push_back(*from >> shift | next << 1 << (Plane::wordBits - 1 - shift));
        }
    }
}

bool AreEqual(const GlyphCache::Image& a, const GlyphCache::Image& b)
{
    return a.left == b.left && a.top == b.top && a.words == b.words && a.rows == b.rows &&
           a.bits == b.bits;
}

size_t BytesOf(const GlyphCache::Image& image)
{
    return sizeof image + image.bits.capacity() * sizeof(Word);
}

} // namespace

void GlyphCache::SetSize(int width, int height)
{
    pictureWidth = width;
    pictureHeight = height;
    Forget();
}

void GlyphCache::Forget()
{
    shaped.clear();
    ForgetImages();
}

void GlyphCache::ForgetImages()
{
    entries.clear();
    entered = 0;
    images.clear();
    imageBytes = 0;
    lookups = 0;
    hits = 0;
}

bool GlyphCache::IsFull() const
{
    return imageBytes > mostImageBytes;
}

void GlyphCache::Count(bool isFound)
{
    if (lookups >= mostLookups) {
        lookups /= 2;
        hits /= 2;
    }
    ++lookups;
    hits += isFound ? 1 : 0;
}

void GlyphCache::Stamp(const Finding& found, Plane& ink)
{
    StampPart<Plane::Unite>(found, Inside, ink);
    StampPart<Plane::Unite>(found, Hairlines, ink);
}

void GlyphCache::Stamp(const Finding& found, Plane& inside, Plane& hairlines)
{
    StampPart<Plane::Invert>(found, Inside, inside);
    StampPart<Plane::Unite>(found, Hairlines, hairlines);
}

/** The glyph under its transform; null when it was not seen like that the last time. */
const Bounds* GlyphCache::FindShape(const TextPath::Item& item)
{
    if (item.shape.IsIdentity()) {
        lookedFor.glyph = static_cast<uint32_t>(item.number) << 1;
        return &item.glyph->Box();
    }
    if (shaped.empty()) {
        const Shaped none = {-1, 0, Transform(), false, Bounds()};
        shaped.assign(mostShaped, none);
    }
    Shaped& known = shaped[static_cast<size_t>(item.number) % mostShaped];
    if (known.number != item.number || !(known.transform == item.shape)) {
        if (nextShape > mostShapes) {
            nextShape = 0;
            ForgetImages(); // shapes are numbered from the start again
        }
        known.number = item.number;
        known.glyph = nextShape++ << 1 | 1;
        known.transform = item.shape;
        known.hasBox = false;
        return 0;
    }
    if (!known.hasBox) {
        std::vector<Point> points(item.glyph->Shape().Size());
        item.shape.map(item.glyph->Shape(), &points[0]);
        known.box = Bounds(&points[0], points.size());
        known.hasBox = true;
    }
    lookedFor.glyph = known.glyph;
    return &known.box;
}

void GlyphCache::FindPlace(const TextPath::Item& item, const Bounds& box)
{
    const float x = item.x;
    const float y = item.y;
    wholeX = static_cast<int>(std::floor(x));
    wholeY = static_cast<int>(std::floor(y));
    lookedFor.x = BitsOf(x);
    lookedFor.y = BitsOf(y);
    if (box.left + x < margin || box.right + x > float(pictureWidth) - margin ||
        box.top + y < margin || box.bottom + y > float(pictureHeight) - margin)
        return;
    Point steady = {0, 0};
    if (item.shape.IsIdentity()) {
        const Steadiness& steadiness = item.glyph->Steady();
        const bool isFlat = std::max(box.right + x, box.bottom + y) <= steadiness.flat;
        steady = isFlat ? steadiness.rounded : steadiness.exact;
    }
    if (x == float(wholeX))
        lookedFor.x = PlaceKey(box.left, box.right, steady.x, x);
    if (y == float(wholeY))
        lookedFor.y = PlaceKey(box.top, box.bottom, steady.y, y);
}

/** The entry of what is looked for; a new one when there is none. */
GlyphCache::Entry& GlyphCache::EntryLookedFor()
{
    const bool isFull = entered >= entries.size() && entries.size() < mostEntries;
    if (isFull) {
        // The larger table begins empty; entries in use return within a few frames.
        const Entry none = {0, 0, 0, noDirection, 0, neverSeen};
        entries.assign(std::max(fewestEntries, 4 * entries.size()), none);
        entered = 0;
    }
    uint32_t hash =
        lookedFor.glyph * 0x9e3779b1u ^ lookedFor.x * 0x85ebca77u ^ lookedFor.y * 0xc2b2ae3du;
    hash ^= hash >> 15;
    hash = hash * 0x2c1b3c6du + lookedFor.direction;
    hash ^= hash >> 16;
    Entry* const row = &entries[hash % (entries.size() / entriesInRow) * entriesInRow];
    for (size_t i = 0; i < entriesInRow; ++i)
        if (row[i].IsSamePlace(lookedFor))
            return row[i];
    // Replace the oldest of the row.
    std::copy_backward(row, row + entriesInRow - 1, row + entriesInRow);
    row[0] = lookedFor;
    row[0].image = neverSeen;
    ++entered;
    return row[0];
}

GlyphCache::Finding GlyphCache::Find(const TextPath::Item& item, bool isWinding,
                                     Direction direction)
{
    Finding finding = {0, false, 0, 0, direction};
    const Bounds* const box = FindShape(item);
    if (!box)
        return finding;
    FindPlace(item, *box);
    finding.x = wholeX;
    finding.y = wholeY;
    lookedFor.direction = static_cast<uint8_t>(direction << 1 | (isWinding ? 1 : 0));
    Entry& entry = EntryLookedFor();
    if (entry.image >= 0) {
        finding.image = &images[static_cast<size_t>(entry.image)];
        finding.next = static_cast<Direction>(entry.next);
    }
    Count(finding.image != 0);
    const bool isLikelySeenAgain =
        entry.image == seenOnce || (lookedFor.x == anywhere && lookedFor.y == anywhere);
    finding.isWorthKeeping =
        !finding.image && isLikelySeenAgain && !(IsFull() && hits * lookupsForHit > lookups);
    if (entry.image == neverSeen)
        entry.image = seenOnce;
    return finding;
}

const GlyphCache::Image& GlyphCache::Keep(const Plane& inside, const Plane& hairlines,
                                          const Bounds& box, Direction next)
{
    if (IsFull())
        ForgetImages();
    const Box ink = InkOf(inside, hairlines, box);
    Image image = {ink.left - wholeX, ink.top - wholeY, 0, 0, std::vector<Word>()};
    if (!ink.IsEmpty()) {
        image.words = (ink.right - ink.left + Plane::wordBits - 1) / Plane::wordBits;
        image.rows = ink.bottom - ink.top;
        image.bits.reserve(2 * static_cast<size_t>(image.words) * static_cast<size_t>(image.rows));
        Gather(inside, ink, image.words, image.bits);
        Gather(hairlines, ink, image.words, image.bits);
    }
    const int number = NumberOf(image);
    Entry& entry = EntryLookedFor();
    entry.image = static_cast<int16_t>(number);
    entry.next = static_cast<uint8_t>(next);
    return images[static_cast<size_t>(number)];
}

/** The number of an equal kept image; otherwise of this one, which is kept from now on. */
int GlyphCache::NumberOf(const Image& image)
{
    for (size_t i = 0; i < images.size(); ++i)
        if (AreEqual(images[i], image))
            return static_cast<int>(i);
    images.push_back(image);
    imageBytes += BytesOf(image);
    return static_cast<int>(images.size()) - 1;
}

size_t GlyphCache::Bytes() const
{
    return entries.capacity() * sizeof(Entry) + shaped.capacity() * sizeof(Shaped) +
           (images.capacity() - images.size()) * sizeof(Image) + imageBytes;
}

} // namespace HNodeAnimationText
} // namespace Lw
