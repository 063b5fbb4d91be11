#ifndef TEXTCANVAS_H
#define TEXTCANVAS_H

#include "paint/fill.h"
#include "paint/hairline.h"
#include "paint/outline.h"
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
 *     canvas.WriteArgb32(bits, bytesPerLine, colour);
 *
 * The first path of a frame is kept: where the next frame's begins with it, only what was added is
 * painted, and where it is the same, nothing. So characters that stand cost little.
 */
class TextCanvas
{
public:
    TextCanvas();

    /** In pixels. As on the device nothing is painted beyond 32767; a size <= 0 has no pixels. */
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

    /** All pixels of the frame, those without ink 0; padding at the end of rows is not touched. */
    void WriteArgb32(unsigned char* bits, int bytesPerLine, uint32_t argb) const;
    /** The same in 3 bytes a pixel: red, green, blue, from 0xAARRGGBB. */
    void WriteRgb888(unsigned char* bits, int bytesPerLine, uint32_t argb) const;

    const Plane& Ink() const { return ink; }
    /** What the canvas holds, in bytes. */
    size_t Bytes() const;

private:
    void DrawKept(const Outline& path);
    void DrawPlain(const Outline& path, const Transform* painterTransform);
    bool CanContinue(const Outline& path) const;

    // The path that is kept, as far as it is painted: odd-even fill and outline by themselves, and
    // the direction in which the outline goes on.
    struct Kept
    {
        Outline path;
        Plane fill;
        Plane outline;
        Direction direction;
        bool filled;
        bool continuable;
    };

    Box picture;
    Box clip;
    bool isHollow;
    bool isFirst;
    Plane ink;
    Fill fill;
    Hairline hairline;
    Kept kept;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
