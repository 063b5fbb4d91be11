// Word-by-word effects: the page is revealed one character at a time, in reading order and in
// place.
#include "engine/frame.h"

#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

void animationRealization::WordForWordOutputEffect()
{
    if (BeginFrame()) {
        AddStanding();
        EndFrame();
    }
    if (charIndex >= PageEnd()) {
        LeavePage();
        if (IsLastPageOver())
            pageIndex = 1;
    }
    // The frame that ends a page also takes the next character, so only the first page of a run
    // begins with an empty frame.
    Advance(charIndex, 1);
    ++frameCount;
    if (charIndex > text.size())
        EndRun();
}

void animationRealization::WordForWordAmplificationEffect()
{
    AmplificationNarrow(false);
}

void animationRealization::WordForWordNarrowEffect()
{
    AmplificationNarrow(true);
}

/** Each character grows from nothing, or starts at double size and narrows. */
void animationRealization::AmplificationNarrow(bool narrow)
{
    if (BeginFrame()) {
        AddStanding();
        // Up to 1.5 radians: the character is not quite at its size when it snaps to rest.
        const double x = moveOffset / 30.0;
        const float s = float(narrow ? std::fabs(std::cos(x)) + 1.0 : std::sin(x));
        transform.reset();
        transform.scale(s, s);
        AddGlyph(charIndex, RestX(charIndex), RestY(charIndex), transform);
        EndFrame();
    }
    Advance(moveOffset, stepSize);
    if (moveOffset > 45)
        TakeNextCharacter();
}

} // namespace HNodeAnimationText
} // namespace Lw
