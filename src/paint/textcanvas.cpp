#include "paint/textcanvas.h"

#include <algorithm>
#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int mostPixels = 32767; // wide and high: the device paints no further

// Outlines that reach no further are not cut, however many of them one path has.
const float nearEnough = 16000;

bool IsPaintable(const Outline& path)
{
    return !path.IsEmpty() && path.IsWellFormed() && path.IsFinite();
}

/** Upper bound of |x|, |y| after mapping points within `reach`. */
Point ReachThrough(const Transform& t, const Point& reach)
{
    const Point mapped = {
        std::fabs(t.m11()) * reach.x + std::fabs(t.m21()) * reach.y + std::fabs(t.dx()),
        std::fabs(t.m12()) * reach.x + std::fabs(t.m22()) * reach.y + std::fabs(t.dy())};
    return mapped;
}

/** Whether a path of such glyphs is not cut, however many there are. */
bool IsNear(const TextPath::Item& item, const Transform& painterTransform)
{
    const Bounds& box = item.glyph->Box();
    const Point own = {std::max(std::fabs(box.left), std::fabs(box.right)),
                       std::max(std::fabs(box.top), std::fabs(box.bottom))};
    Point reach = ReachThrough(item.shape, own);
    reach.x += std::fabs(item.x);
    reach.y += std::fabs(item.y);
    reach = ReachThrough(painterTransform, reach);
    return reach.x <= nearEnough && reach.y <= nearEnough;
}

/** Whether the glyph painted alone looks the same as in a path with others. */
bool IsIndependent(const TextPath::Item& item)
{
    return item.glyph->IsClosed() && IsNear(item, Transform());
}

Bounds PlacedBox(const TextPath::Item& item)
{
    Bounds box = item.glyph->Box();
    box.left += item.x;
    box.right += item.x;
    box.top += item.y;
    box.bottom += item.y;
    return box;
}

enum Cutting { NotCut, CutBySubpaths, Unknown };

/** How the device cuts the path; unknown where its glyphs are not painted one by one. */
Cutting CuttingOf(const TextPath& text, const Transform& painterTransform)
{
    bool isNear = true;
    bool isMapped = !painterTransform.IsIdentity();
    for (size_t i = 0; i < text.Size(); ++i) {
        const TextPath::Item& item = text.At(i);
        if (!item.glyph->IsClosed())
            return Unknown;
        isNear = isNear && IsNear(item, painterTransform);
        isMapped = isMapped || !item.shape.IsIdentity();
    }
    if (isNear)
        return NotCut;
    if (isMapped)
        return Unknown;
    // Where sums are rounded the largest coordinate still is the largest, so these are exact.
    Bounds all = PlacedBox(text.At(0));
    for (size_t i = 1; i < text.Size(); ++i) {
        const Bounds box = PlacedBox(text.At(i));
        all.left = std::min(all.left, box.left);
        all.top = std::min(all.top, box.top);
        all.right = std::max(all.right, box.right);
        all.bottom = std::max(all.bottom, box.bottom);
    }
    if (!all.AreFar())
        return NotCut;
    return text.Size() > 1 ? CutBySubpaths : Unknown; // a single rectangle is cut another way
}

} // namespace

void TextCanvas::SetSize(int width, int height)
{
    width = std::max(width, 0);
    height = std::max(height, 0);
    if (width != pictureWidth || height != pictureHeight) {
        pictureWidth = width;
        pictureHeight = height;
        const Box box = {0, 0, std::min(width, mostPixels), std::min(height, mostPixels)};
        picture = box;
        Plane* const planes[] = {&ink, &inside, &keptInside, &keptHairlines};
        for (Plane* plane : planes)
            plane->SetSize(box.right, box.bottom);
        fill.SetSize(box.right, box.bottom);
        cache.SetSize(box.right, box.bottom);
    }
    Clear();
}

void TextCanvas::SetHollow(bool hollow)
{
    if (isHollow != hollow)
        cache.Forget();
    isHollow = hollow;
}

void TextCanvas::SetTranslucent(bool translucent)
{
    if (translucent)
        coats.Begin(picture.right, picture.bottom);
    else if (isTranslucent)
        coats.Forget();
    isTranslucent = translucent;
}

void TextCanvas::Clear()
{
    ink.Clear();
    inside.Clear();
    clip = picture;
    isFirst = true;
}

void TextCanvas::SetClip(const Box& rectangle)
{
    clip = Intersection(picture, rectangle);
}

void TextCanvas::DrawText(const TextPath& text, const Transform& painterTransform)
{
    if (picture.IsEmpty() || text.Size() == 0)
        return;
    const Cutting cutting =
        isFirst && !isTranslucent && clip == picture ? CuttingOf(text, painterTransform) : Unknown;
    if (cutting == Unknown)
        DrawPath(text.Path(), painterTransform);
    else
        DrawOneByOne(text, painterTransform, cutting == CutBySubpaths);
    isFirst = false;
}

void TextCanvas::DrawGlyph(const TextPath::Item& item)
{
    const Outline& outline = item.glyph->Shape();
    if (outline.IsEmpty())
        return;
    const bool isWinding = outline.fillRule == Outline::Winding;
    if (!picture.IsEmpty() && !isTranslucent && clip == picture && IsIndependent(item)) {
        const GlyphCache::Finding found = FindOrKeep(item, isWinding, Rightward);
        if (found.image) {
            GlyphCache::Stamp(found, ink);
            return;
        }
    }
    DrawPath(item.Placed());
}

void TextCanvas::DrawPath(const Outline& path, const Transform& painterTransform)
{
    isFirst = false;
    if (picture.IsEmpty() || !IsPaintable(path) || !painterTransform.map(path).IsFinite())
        return;
    if (!isHollow)
        fill.Paint(path, painterTransform, clip, isTranslucent ? keptInside : ink);
    points.resize(path.Size());
    painterTransform.map(path, &points[0]);
    if (isTranslucent) {
        coats.Add(keptInside);
        ink.Take<Plane::Unite>(keptInside);
        keptInside.Clear();
    }
    hairline.Begin(clip, ink, Rightward, isTranslucent ? &coats : 0);
    hairline.Draw(path, &points[0], Bounds(&points[0], points.size()));
}

/** Takes the glyph's points; gives their bounds. */
Bounds TextCanvas::Place(const TextPath::Item& item, const Transform& painterTransform)
{
    points.resize(item.glyph->Shape().Size());
    item.shape.map(item.glyph->Shape(), &points[0], item.x, item.y);
    if (!painterTransform.IsIdentity())
        painterTransform.map(&points[0], points.size());
    return Bounds(&points[0], points.size());
}

/** Paints the frame's first path, glyph by glyph: their insides invert each other. */
void TextCanvas::DrawOneByOne(const TextPath& text, const Transform& painterTransform, bool isFar)
{
    const bool isMapped = !painterTransform.IsIdentity();
    Direction direction = Rightward;
    for (size_t i = 0; i < text.Size(); ++i) {
        const TextPath::Item& item = text.At(i);
        if (isFar && !IsInside(item)) {
            PaintCut(item, direction);
            continue;
        }
        GlyphCache::Finding found = {0, false, 0, 0, direction};
        if (!isMapped)
            found = FindOrKeep(item, false, direction);
        if (found.image) {
            GlyphCache::Stamp(found, inside, ink);
            direction = found.next;
            continue;
        }
        const Outline& outline = item.glyph->Shape();
        const Bounds box = Place(item, painterTransform);
        if (IsOutside(box))
            continue;
        if (!isHollow)
            fill.Add(outline, &points[0], box);
        PaintHairline(outline, box, ink, direction);
    }
    fill.InvertInside(inside);
}

/** Whether a path of which the glyph is one is cut without any change to it. */
bool TextCanvas::IsInside(const TextPath::Item& item) const
{
    const Bounds box = PlacedBox(item);
    return item.glyph->IsSpaced() && box.left >= 0 && box.right <= float(picture.right) &&
           box.top >= 0 && box.bottom <= float(picture.bottom);
}

/** A glyph that crosses the border, of a path that is far out. */
void TextCanvas::PaintCut(const TextPath::Item& item, Direction& direction)
{
    const Bounds box = Place(item, Transform());
    if (IsOutside(box))
        return;
    if (!isHollow) {
        fill.InvertInside(inside); // what was taken before
        fill.PaintPartOfFar(item.Placed(), keptInside);
        inside.Take<Plane::Invert>(keptInside);
        keptInside.Clear();
    }
    PaintHairline(item.glyph->Shape(), box, ink, direction);
}

/** Whether a closed outline within @p box leaves no trace, not even a direction. */
bool TextCanvas::IsOutside(const Bounds& box) const
{
    // Lines are clipped a pixel further out.
    return box.left > float(picture.right + 1) || box.right < float(picture.left - 1) ||
           box.top > float(picture.bottom + 1) || box.bottom < float(picture.top - 1);
}

/** Strokes the glyph whose points are in `points`. */
void TextCanvas::PaintHairline(const Outline& outline, const Bounds& box, Plane& plane,
                               Direction& direction)
{
    hairline.Begin(picture, plane, direction);
    direction = hairline.Draw(outline, &points[0], box);
}

/** The cache entry of the glyph; without an image, the glyph must be painted. */
GlyphCache::Finding TextCanvas::FindOrKeep(const TextPath::Item& item, bool isWinding,
                                           Direction direction)
{
    GlyphCache::Finding found = cache.Find(item, isWinding, direction);
    if (found.isWorthKeeping)
        found.image = &PaintToKeep(item, isWinding, found.next);
    return found;
}

/** The glyph alone; its hairline goes on in @p direction, which becomes the one that it leaves. */
const GlyphCache::Image& TextCanvas::PaintToKeep(const TextPath::Item& item, bool isWinding,
                                                 Direction& direction)
{
    const Outline& outline = item.glyph->Shape();
    const Bounds box = Place(item, Transform());
    if (!isHollow && isWinding) {
        fill.Paint(item.Placed(), Transform(), picture, keptInside);
    } else if (!isHollow) {
        fill.InvertInside(inside); // what was taken before
        fill.Add(outline, &points[0], box);
        fill.InvertInside(keptInside);
    }
    PaintHairline(outline, box, keptHairlines, direction);
    const GlyphCache::Image& image = cache.Keep(keptInside, keptHairlines, box, direction);
    keptInside.Clear();
    keptHairlines.Clear();
    return image;
}

const Plane& TextCanvas::Ink()
{
    ink.Take<Plane::Unite>(inside);
    inside.Clear();
    return ink;
}

void TextCanvas::Write(uint32_t argb, const Picture& to)
{
    if (isTranslucent)
        coats.Write(argb, to);
    else
        writer.Write(Ink(), argb, to);
}

size_t TextCanvas::Bytes() const
{
    return sizeof *this + 4 * ink.Bytes() + fill.Bytes() + points.capacity() * sizeof(Point) +
           cache.Bytes() + coats.Bytes();
}

} // namespace HNodeAnimationText
} // namespace Lw
