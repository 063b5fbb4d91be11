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
    if (isFirst && GoOnFromKept(path)) {
        ink.Unite(kept.fill);
        ink.Unite(kept.outline);
    } else {
        DrawPlain(path, 0);
    }
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

/** Paints what the path has more than the kept one; false when it has to be painted as a whole. */
bool TextCanvas::GoOnFromKept(const Outline& path)
{
    if (path.fillRule != Outline::OddEven)
        return false;
    if (kept.isHollow != isHollow || kept.path.IsEmpty() || !path.StartsWith(kept.path))
        ForgetKept();
    const size_t done = kept.path.Size();
    if (done == path.Size())
        return true;
    if (path.At(done).type != Outline::Move) {
        ForgetKept();
        return GoOnFromKept(path);
    }
    if (!isHollow) {
        fill.Take(path, done, 0);
        Bounds bounds = fill.OutlineBounds();
        if (done > 0)
            bounds.Unite(kept.bounds);
        if (bounds.AreFar() || !fill.Invert(kept.fill)) {
            ForgetKept();
            return false;
        }
        kept.bounds = bounds;
    }
    hairline.Begin(picture, kept.outline);
    hairline.SetDirection(kept.direction);
    hairline.Draw(path, done, 0);
    kept.direction = hairline.LastDirection();
    kept.path = path;
    kept.isHollow = isHollow;
    return true;
}

void TextCanvas::ForgetKept()
{
    kept.path.Clear();
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
           kept.path.Bytes();
}

} // namespace HNodeAnimationText
} // namespace Lw
