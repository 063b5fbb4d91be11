#include "paint/textcanvas.h"

#include <algorithm>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int mostPixels = 32767; // wide and high: the device paints no further

bool IsPaintable(const Outline& path)
{
    return !path.IsEmpty() && path.IsWellFormed() && path.IsFinite();
}

} // namespace

TextCanvas::TextCanvas()
    : pictureWidth(0)
    , pictureHeight(0)
    , picture()
    , clip()
    , isHollow(false)
    , isFirst(true)
{
}

void TextCanvas::SetSize(int width, int height)
{
    width = std::max(width, 0);
    height = std::max(height, 0);
    if (width != pictureWidth || height != pictureHeight) {
        pictureWidth = width;
        pictureHeight = height;
        const Box box = {0, 0, std::min(width, mostPixels), std::min(height, mostPixels)};
        picture = box;
        ink.SetSize(box.right, box.bottom);
        fill.SetSize(box.right, box.bottom);
        kept.fill.SetSize(box.right, box.bottom);
        kept.outline.SetSize(box.right, box.bottom);
        ForgetKept();
    }
    Clear();
}

void TextCanvas::Clear()
{
    ink.Clear();
    clip = picture;
    isFirst = true;
}

void TextCanvas::SetClip(const Box& rectangle)
{
    clip = Intersection(picture, rectangle);
    isFirst = false;
}

void TextCanvas::ResetClip()
{
    clip = picture;
}

void TextCanvas::DrawPath(const Outline& path)
{
    if (picture.IsEmpty() || !IsPaintable(path))
        return;
    if (!isFirst || !DrawFirst(path))
        DrawPlain(path, 0);
    isFirst = false;
}

void TextCanvas::DrawPath(const Outline& path, const Transform& painterTransform)
{
    isFirst = false;
    if (!picture.IsEmpty() && IsPaintable(path) && painterTransform.map(path).IsFinite())
        DrawPlain(path, &painterTransform);
}

void TextCanvas::DrawPlain(const Outline& path, const Transform* painterTransform)
{
    if (!isHollow) {
        fill.Take(path, 0, painterTransform);
        fill.Paint(clip, ink);
    }
    hairline.Begin(clip, ink);
    hairline.Draw(path, 0, painterTransform);
}

/**
 * Paints the first path of a frame into the empty ink: what it has in common with that of the frame
 * before is kept, the rest is painted anew. False and no ink where it has to be painted as a whole.
 */
bool TextCanvas::DrawFirst(const Outline& path)
{
    if (path.fillRule != Outline::OddEven)
        return false;
    if (kept.isHollow != isHollow)
        ForgetKept();
    const size_t common = path.CommonSubpaths(kept.previous);
    if (common < kept.size)
        ForgetKept();
    kept.isHollow = isHollow;
    kept.previous = path;
    if (kept.size < common && !Keep(path.Part(kept.size, common))) {
        ForgetKept();
        return false;
    }
    ink.Unite(kept.fill);
    if (common < path.Size() && !isHollow) {
        fill.Take(path, common, 0);
        if (IsFarWithKept() || !fill.Invert(ink)) {
            ink.Clear();
            return false;
        }
    }
    ink.Unite(kept.outline);
    if (common < path.Size()) {
        hairline.Begin(picture, ink);
        hairline.SetDirection(kept.direction);
        hairline.Draw(path, common, 0);
    }
    return true;
}

/** Paints @p part after what is kept already. */
bool TextCanvas::Keep(const Outline& part)
{
    if (!isHollow) {
        fill.Take(part, 0, 0);
        if (IsFarWithKept() || !fill.Invert(kept.fill))
            return false;
        Bounds bounds = fill.OutlineBounds();
        if (kept.size > 0)
            bounds.Unite(kept.bounds);
        kept.bounds = bounds;
    }
    hairline.Begin(picture, kept.outline);
    hairline.SetDirection(kept.direction);
    hairline.Draw(part, 0, 0);
    kept.direction = hairline.LastDirection();
    kept.size += part.Size();
    return true;
}

/** Whether what the fill has taken and what is kept would be cut together. */
bool TextCanvas::IsFarWithKept() const
{
    Bounds bounds = fill.OutlineBounds();
    if (kept.size > 0)
        bounds.Unite(kept.bounds);
    return bounds.AreFar();
}

void TextCanvas::ForgetKept()
{
    kept.previous.Clear();
    kept.size = 0;
    kept.fill.Clear();
    kept.outline.Clear();
    kept.direction = Rightward;
}

void TextCanvas::Write(PictureWriter::Format format, uint32_t argb, unsigned char* bits,
                       size_t bytesPerLine)
{
    writer.Write(ink, format, argb, bits, bytesPerLine, pictureWidth, pictureHeight);
}

size_t TextCanvas::Bytes() const
{
    return sizeof *this + ink.Bytes() + fill.Bytes() + kept.fill.Bytes() + kept.outline.Bytes() +
           kept.previous.Bytes();
}

} // namespace HNodeAnimationText
} // namespace Lw
