#ifndef TEXTCANVAS_H
#define TEXTCANVAS_H

#include "paint/coats.h"
#include "paint/fill.h"
#include "paint/glyphcache.h"
#include "paint/hairline.h"
#include "paint/outline.h"
#include "paint/picturewriter.h"
#include "paint/plane.h"
#include "paint/textpath.h"
#include "paint/transform.h"

namespace Lw {
namespace HNodeAnimationText {

/**
 * A frame of text in one color. Paints what the device's QPainter paints without antialiasing, with
 * a brush and a pen of width 0 in that color, and writes it to a picture once.
 *
 *     canvas.SetSize(width, height);
 *     canvas.Clear();                      // for each frame
 *     canvas.DrawText(page);               // one after the other, as with QPainter
 *     canvas.DrawGlyph(inFlight);
 *     canvas.Write(argb, picture);
 *
 * Glyphs are painted one by one and cached where that equals painting the whole path; elsewhere the
 * whole path is painted.
 */
class TextCanvas
{
public:
    /**
     * In pixels; a size <= 0 has none. As on the device nothing is painted beyond 32767. Begins a
     * frame; the same size again costs nothing.
     */
    void SetSize(int width, int height);
    /** Begins a frame: no ink, no clip. */
    void Clear();
    /** Hollow text has its outline only. From the next path on. */
    void SetHollow(bool hollow);
    /**
     * Translucent text: each path is blended over the ones before it, and nothing is cached. For
     * one frame, before anything is drawn.
     */
    void SetTranslucent(bool translucent);
    /** Only this rectangle is painted from now on, as after QPainter::setClipRect(). */
    void SetClip(const Box& rectangle);

    /** Forgets the numbers of the glyphs, by which they are cached. */
    void ForgetGlyphs() { cache.Forget(); }

    /**
     * Fill, then outline, as one path. Not finite or not well formed: paints nothing. Under a
     * painter's transform points are mapped, the pen stays a hairline.
     */
    void DrawText(const TextPath& text, const Transform& painterTransform = Transform());
    /** A path of one glyph, filled by its own rule. */
    void DrawGlyph(const TextPath::Item& item);
    /** Fill by the outline's rule, then outline. */
    void DrawPath(const Outline& path, const Transform& painterTransform = Transform());

    /**
     * All pixels of the frame, from 0xAARRGGBB, those without ink 0. The picture has the canvas's
     * size; bytes between the last pixel of a row and the next row stay as they are.
     */
    void Write(uint32_t argb, const Picture& to);

    /** The frame's pixels with ink. */
    const Plane& Ink();
    /** The memory of the canvas, in bytes. */
    size_t Bytes() const;

private:
    Bounds Place(const TextPath::Item& item, const Transform& painterTransform);
    void DrawOneByOne(const TextPath& text, const Transform& painterTransform, bool isFar);
    bool IsInside(const TextPath::Item& item) const;
    void PaintCut(const TextPath::Item& item, Direction& direction);
    GlyphCache::Finding FindOrKeep(const TextPath::Item& item, bool isWinding, Direction direction);
    const GlyphCache::Image& PaintToKeep(const TextPath::Item& item, bool isWinding,
                                         Direction& direction);
    bool IsOutside(const Bounds& box) const;
    void PaintHairline(const Outline& outline, const Bounds& box, Plane& plane,
                       Direction& direction);

    int pictureWidth = 0; // as told; what is painted may be less
    int pictureHeight = 0;
    Box picture = Box();
    Box clip = Box();
    bool isHollow = false;
    bool isTranslucent = false;
    bool isFirst = true;
    Plane ink;
    Plane inside; // of the glyphs of the frame's first path
    Fill fill;
    Hairline hairline;
    std::vector<Point> points;
    GlyphCache cache;
    Plane keptInside; // a glyph alone; empty otherwise
    Plane keptHairlines;
    PictureWriter writer;
    Coats coats; // of translucent text
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
