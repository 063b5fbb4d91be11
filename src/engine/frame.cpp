#include "engine/frame.h"

#include <qnumeric.h>

#include <utility>

namespace Lw {
namespace HNodeAnimationText {

namespace {

// Counters stop here, far outside any picture, so sums of a few of them stay within an int.
const int counterLimit = 1 << 29;

} // namespace

/** Begins an empty frame in the text's color; false when there is nothing to paint on. */
bool animationRealization::BeginFrame()
{
    textPath.Clear();
    if (drawImage.isNull())
        return false;
    canvas.SetSize(drawImage.width(), drawImage.height());
    SetPainterBrush(0);
    return true;
}

void animationRealization::EndFrame()
{
    canvas.DrawText(textPath);
    ShowFrame();
}

/** Writes the canvas to the picture, every pixel of it, so nothing is cleared before. */
void animationRealization::ShowFrame()
{
    canvas.Write(textColor, PictureOf(drawImage));
}

/** The image's own pixels, for as long as it has them. */
Picture animationRealization::PictureOf(QImage& image)
{
    const Picture picture = {image.depth() == 32 ? Picture::Argb32 : Picture::Rgb888, image.bits(),
                             size_t(image.bytesPerLine()), image.width(), image.height()};
    return picture;
}

bool animationRealization::HasGlyph(int j) const
{
    return j >= 0 && j < charPaths.size();
}

/** Made when it is first painted, so that a long text does not start later. */
const Glyph& animationRealization::GlyphOf(int j)
{
    std::unique_ptr<Glyph>& glyph = glyphs[size_t(j)];
    if (glyph)
        return *glyph;
    const QPainterPath& path = charPaths.at(j);
    Outline outline;
    outline.Reserve(size_t(path.elementCount()));
    outline.fillRule = path.fillRule() == Qt::WindingFill ? Outline::Winding : Outline::OddEven;
    for (int k = 0; k < path.elementCount(); ++k) {
        const QPainterPath::Element& element = path.elementAt(k);
        outline.Add(float(element.x), float(element.y), Outline::Type(element.type));
    }
    glyph.reset(new Glyph(std::move(outline)));
    return *glyph;
}

/** The glyph mapped by @p shape, around the left end of its baseline. */
void animationRealization::AddGlyph(int j, double x, double y, const Transform& shape)
{
    if (HasGlyph(j) && qIsFinite(x) && qIsFinite(y) && shape.IsFinite())
        textPath.Add(GlyphOf(j), j, shape, float(x), float(y));
}

/** The characters of the page that have come to rest: those before charIndex. */
void animationRealization::AddStanding()
{
    for (int j = PageStart(); j < charIndex; ++j)
        AddGlyph(j, RestX(j), RestY(j));
}

/** Paints the glyph alone, with its own fill rule. */
void animationRealization::DrawGlyph(int j, double x, double y)
{
    if (!HasGlyph(j))
        return;
    const TextPath::Item item = {&GlyphOf(j), j, Transform(), float(x), float(y)};
    canvas.DrawGlyph(item);
}

/** The phase of the page's k-th character when each starts one step after the previous one. */
int animationRealization::Phase(int k) const
{
    const qint64 phase = moveOffset - qint64(stepSize) * k;
    return static_cast<int>(qBound(qint64(-counterLimit), phase, qint64(counterLimit)));
}

/** Turns by @p degrees around a point relative to the glyph's origin. */
void animationRealization::RotateAbout(double x, double y, double degrees)
{
    transform.translate(float(x), float(y));
    transform.rotate(float(degrees));
    transform.translate(float(-x), float(-y));
}

/** Ends a frame: the counter takes its step. */
void animationRealization::Advance(int& counter, int step)
{
    counter = static_cast<int>(qMin(qint64(counter) + step, qint64(counterLimit)));
    ++frameCount;
}

/** Ends a frame; once the counter is at @p end the page has entered. */
void animationRealization::AdvanceTo(int end, int& counter, int step)
{
    Advance(counter, step);
    if (counter >= end)
        HandOver(counter);
}

/** The character has arrived; with its last one the page has entered. */
void animationRealization::TakeNextCharacter()
{
    moveOffset = 0;
    ++charIndex;
    if (charIndex >= PageEnd())
        HandOver(moveOffset);
}

bool animationRealization::IsLastPageOver() const
{
    return pageIndex >= pageOffsets.size();
}

/** The page has entered: a hold shows it, and the next page waits. */
void animationRealization::LeavePage()
{
    stayPageIndex = pageIndex;
    SwapPage();
}

/** All pages have been shown: back to the first character of the first. */
void animationRealization::EndRun()
{
    pageIndex = 1;
    charIndex = 0;
    ++playCount;
    runEnded = true;
}

/** The page has entered; the last one ends the run. */
void animationRealization::HandOver(int& counter)
{
    counter = 0;
    LeavePage();
    if (IsLastPageOver())
        EndRun();
}

} // namespace HNodeAnimationText
} // namespace Lw
