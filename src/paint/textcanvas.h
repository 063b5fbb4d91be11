#ifndef TEXTCANVAS_H
#define TEXTCANVAS_H

#include "paint/fill.h"
#include "paint/hairline.h"
#include "paint/outline.h"
#include "paint/picturewriter.h"
#include "paint/plane.h"
#include "paint/transform.h"

namespace Lw {
namespace HNodeAnimationText {

/**
 * A frame of text in one opaque colour. Paints what the device's QPainter paints without
 * antialiasing, with a brush and a pen of width 0 in that colour, and writes it to a picture in
 * one go.
 *
 *     canvas.SetSize(width, height);
 *     canvas.Clear();                      // for each frame
 *     canvas.DrawPath(page);               // one after the other, as with QPainter
 *     canvas.DrawPath(glyphInFlight);
 *     canvas.Write(PictureWriter::Argb32, colour, bits, bytesPerLine);
 *
 * What the first paths of two frames in a row begin with is kept: the next frame paints only what
 * its first path has more. So characters that stand cost little. What is painted is the same.
 */
class TextCanvas
{
public:
    TextCanvas();

    /**
     * In pixels; a size <= 0 has none. As on the device nothing is painted beyond 32767. Begins a
     * frame; the same size again costs nothing.
     */
    void SetSize(int width, int height);
    /** Begins a frame: no ink, no clip. */
    void Clear();
    /** Hollow text has its outline only. From the next path on. */
    void SetHollow(bool hollow) { isHollow = hollow; }
    /** Only this rectangle is painted from now on, as after QPainter::setClipRect(). */
    void SetClip(const Box& rectangle);
    void ResetClip();

    /** Fill by the outline's rule, then outline. Not finite or not well formed: paints nothing. */
    void DrawPath(const Outline& path);
    /** The same under a painter's transform: points are mapped, the pen stays a hairline. */
    void DrawPath(const Outline& path, const Transform& painterTransform);

    /**
     * All pixels of the frame, from 0xAARRGGBB, those without ink 0. Rows begin every
     * @p bytesPerLine bytes; what lies between their last pixel and the next row stays as it is.
     */
    void Write(PictureWriter::Format format, uint32_t argb, unsigned char* bits,
               size_t bytesPerLine);

    /** The frame's pixels with ink. */
    const Plane& Ink() const { return ink; }
    /** What the canvas holds, in bytes: by the size of the picture and of the longest path. */
    size_t Bytes() const;

private:
    void DrawPlain(const Outline& path, const Transform* painterTransform);
    bool DrawFirst(const Outline& path);
    bool Keep(const Outline& part);
    bool IsFarWithKept() const;
    void ForgetKept();

    // The first path of the frame before, and the fill and the outline of its first elements.
    struct Kept
    {
        Outline previous;
        size_t size; // of the elements that are painted here
        bool isHollow;
        Bounds bounds;
        Plane fill;
        Plane outline;
        Direction direction; // in which the outline goes on

        Kept()
            : size(0)
            , isHollow(false)
            , bounds(Outline())
            , direction(Rightward)
        {
        }
    };

    int pictureWidth; // as told; what is painted may be less
    int pictureHeight;
    Box picture;
    Box clip;
    bool isHollow;
    bool isFirst;
    Plane ink;
    Fill fill;
    Hairline hairline;
    Kept kept;
    PictureWriter writer;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
