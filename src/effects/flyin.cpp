// Fly-in effects: the characters of a page come in one at a time, each in a straight line from an
// edge to its slot. The names say where a character flies to: "from left" enters at the right edge
// and moves left, "from top" rises from below, and so on.
#include "engine/frame.h"

namespace Lw {
namespace HNodeAnimationText {

/** textPath holds the characters that have landed; the one in flight is painted separately. */
void animationRealization::DrawFlight(int inFlight, double x, double y)
{
    canvas.DrawText(textPath);
    DrawGlyph(inFlight, x, y);
    ShowFrame();
}

/** A frame in which the current character is on its way. */
void animationRealization::FlyTo(double x, double y)
{
    if (!BeginFrame())
        return;
    AddStanding();
    DrawFlight(charIndex, x, y);
}

void animationRealization::FlyFromLeftEffect()
{
    FlyTo(FrameWidth() - moveOffset, RestY(charIndex));
    Advance(moveOffset, stepSize);
    if (FrameWidth() - moveOffset < RestX(charIndex))
        TakeNextCharacter();
}

/** The page ends at the right edge: its last character's right side touches it. */
int animationRealization::RightAlignedX(int j) const
{
    return FrameWidth() - pageOffsets.value(pageIndex - 1) - charWidths.value(PageStart()) +
           charPositions.value(j);
}

void animationRealization::FlyFromRightEffect()
{
    // Pages are counted from the end of the text: PageStart() is the last character of the page,
    // PageEnd() that of the next one. charCount - 1 is the character in flight.
    const int inFlight = charCount - 1;
    if (BeginFrame()) {
        for (int j = PageStart(); j >= charCount; --j)
            AddGlyph(j, RightAlignedX(j), RestY(j));
        DrawFlight(inFlight, moveOffset, RestY(inFlight));
    }
    Advance(moveOffset, stepSize);
    if (moveOffset <= RightAlignedX(inFlight))
        return;

    moveOffset = 0;
    --charCount;
    if (charCount - 1 > PageEnd()) // -1 after the last page, so this also ends with the text
        return;
    LeavePage();
    if (IsLastPageOver()) {
        EndRun();
        charCount = text.size();
    }
}

/**
 * After the step of a vertical flight: takes the next character when this one has @p landed. It
 * starts one step into its flight, so only the first character after Start begins at the edge.
 */
void animationRealization::LandVertically(bool landed)
{
    if (landed) {
        ++charIndex;
        moveOffset = 0;
    }
    Advance(moveOffset, stepSize);
    if (charIndex < PageEnd())
        return;

    LeavePage();
    if (!IsLastPageOver() && charIndex < text.size())
        return;
    pageIndex = 1;
    if (charIndex >= text.size())
        EndRun();
}

void animationRealization::FlyFromTopEffect()
{
    const int y = maxTextHeight - moveOffset - charDescents.value(charIndex) + FrameHeight();
    // Landing is decided on exact halves, but the picture shows truncated positions. A character
    // may be visible one step past its slot for one frame.
    const bool landed = y < ExactY(charIndex);
    FlyTo(RestX(charIndex), y);
    LandVertically(landed);
}

void animationRealization::FlyFromBottomEffect()
{
    const bool landed = moveOffset > ExactY(charIndex);
    FlyTo(RestX(charIndex), moveOffset);
    LandVertically(landed);
}

} // namespace HNodeAnimationText
} // namespace Lw
