// Continuous scrolling. Sideways the whole line is painted once and the device moves it; up and
// down a single column of characters is painted frame by frame.
#include "engine/frame.h"

#include "text/limits.h"

#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

namespace {

// A column repeats until the area is full. If its heights add up to almost nothing, a frame would
// take very long. These limit the characters beyond the text that are visited, and that are
// painted.
const int mostRepeated = 1 << 20;
const int mostRepainted = 4096;

// Negative heights move a column away; from here on it does not return to the picture.
const int columnEnd = 1 << 29;

} // namespace

void animationRealization::ContinueEffectLeft()
{
    DrawLine();
}

void animationRealization::ContinueEffectRight()
{
    DrawLine(); // the device's scroll code alone sets the direction
}

void animationRealization::DrawLine()
{
    auxPath.Clear();
    if (!BeginFrame())
        return;
    int firstBeyond = -1;
    for (int k = 0; k < charPaths.size(); ++k) {
        const int x = charPositions.value(k);
        if (x <= lastPaintableX)
            AddGlyph(k, x, RestY(k));
        else if (firstBeyond < 0)
            firstBeyond = k;
    }
    EndFrame();
    if (firstBeyond >= 0)
        DrawTails(firstBeyond);
}

/** The part of the line that begins at character @p first, in pieces that can be painted. */
void animationRealization::DrawTails(int first)
{
    while (first < charPaths.size()) {
        int end = first + 1;
        while (end < charPaths.size() &&
               charPositions.value(end) - charPositions.value(first) <= lastPaintableX)
            ++end;
        DrawTail(first, end);
        first = end;
    }
}

/** Paints characters @p first to @p end - 1 into a picture that ends where the line ends. */
void animationRealization::DrawTail(int first, int end)
{
    const int start = charPositions.value(first);
    QImage tail = NewCanvas(QSize(totalTextWidth - start, drawImage.height()), imageFormat);
    if (tail.isNull() || tail.bytesPerLine() > drawImage.bytesPerLine())
        return;
    auxPath.Clear();
    for (int k = first; k < end; ++k) {
        // With negative widths, a character may be before the tail; it is already painted.
        if (charPositions.value(k) > lastPaintableX)
            auxPath.Append(Transform().map(GlyphOf(k).Shape(),
                                           float(charPositions.value(k) - start), float(RestY(k))));
    }
    TextCanvas tailCanvas;
    tailCanvas.SetSize(tail.width(), tail.height());
    tailCanvas.DrawPath(auxPath);
    // White and filled, whatever the text's style: the device's tail always was.
    tailCanvas.Write(qRgb(255, 255, 255), PictureOf(tail));

    // Right-aligned by bytes: rows of 24 bits are padded, so this is not a distance in pixels.
    const int offset = drawImage.bytesPerLine() - tail.bytesPerLine();
    for (int y = 0; y < tail.height(); ++y)
        std::memcpy(drawImage.scanLine(y) + offset, tail.constScanLine(y),
                    static_cast<size_t>(tail.bytesPerLine()));
}

/**
 * How many characters of the column a frame may look at. If heights add up to nothing,
 * the column would never end, so each is visited once.
 */
int animationRealization::ColumnLength() const
{
    qint64 cycle = 0;
    for (int k = 0; k < charPaths.size(); ++k)
        cycle += charHeights.value(k);
    return cycle > 0 ? charPaths.size() + mostRepeated : charPaths.size();
}

void animationRealization::ContinueEffectUp()
{
    DrawColumn(true);
}

void animationRealization::ContinueEffectDown()
{
    DrawColumn(false);
}

/** A frame of the column, which has moved by charIndex pixels, and its step. */
void animationRealization::DrawColumn(bool rises)
{
    scrollOffset = 0;
    if (BeginFrame()) {
        const int h = FrameHeight();
        const int n = charPaths.size();
        const double x = FrameWidth() * 0.5 - maxTextWidth * 0.5;
        const int length = ColumnLength();
        // A rising column comes with its first character, a falling one with its last.
        int k = rises ? 0 : n - 1;
        int d = charIndex; // how far character k has come from its edge
        int room = n + h + mostRepainted;
        for (int visited = 0; d >= (rises ? 0 : 1) && d < columnEnd && visited < length && room > 0;
             ++visited) {
            const int height = charHeights.value(k);
            if (d <= h || d - height < (rises ? h + 1 : h)) {
                // A falling baseline counts neither height nor descent.
                AddGlyph(k, x, rises ? h - d + height - charDescents.value(k) : d);
                --room;
            }
            k += rises ? 1 : -1;
            if (k == n)
                k = 0;
            else if (k < 0)
                k = n - 1;
            // By the height of the character to come, not of the one just placed: unequal
            // neighbors overlap or gap by the difference.
            d -= charHeights.value(k);
        }
        scrollOffset = rises ? charIndex - d : d - charIndex;
        EndFrame();
    }
    Advance(charIndex, stepSize);
    progressF = progressF + float(stepSize);
    // Back to where the repeated text is exactly where the first copy was.
    if (charIndex >= FrameHeight() + totalHeight)
        charIndex = FrameHeight();
    if (progressF >= float(totalHeight)) {
        progressF = 0;
        runEnded = true;
        ++playCount;
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
