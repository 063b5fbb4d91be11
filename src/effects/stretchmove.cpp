// Stretch and move effects: the characters of a page widen, grow, slide or climb into place.
#include "engine/frame.h"

namespace Lw {
namespace HNodeAnimationText {

void animationRealization::EffectZoomIn()
{
    const int w = FrameWidth();
    const int h = FrameHeight();
    DrawPage([&](int j) {
        const int t = Phase(j - PageStart());
        if (t < 0)
            return;
        // From the right edge along a slanted path to the slot, reached at t = w.
        const int d = charDescents.value(j);
        const float sx = float((w - RestX(j)) / double(w));
        const int x = qMax(int(float(w) - float(t) * sx), RestX(j));
        // The descent counts twice, here and below, so each glyph ends its slope a little early.
        const float sy = float((h / 2 - maxTextHeight * 0.5 - d) / w);
        const int y = qMin(int(sy * float(t) + float(maxTextHeight) - float(d)), RestY(j));
        const float widening = float(t / double(w));
        if (widening <= 1.0f)
            transform.scale(widening, 1);
        AddGlyph(j, x, y, transform);
    });
    Advance(moveOffset, 3 * stepSize);
    if (Phase(PageLength()) > w)
        HandOver(moveOffset);
}

void animationRealization::EffectRightToEnlarge()
{
    DrawPage([&](int j) {
        const float widening = float(moveOffset / double(charWidths.value(j)));
        if (!(widening > 1.0f))
            transform.scale(widening, 1);
        AddGlyph(j, RestX(j), RestY(j), transform);
    });
    AdvanceTo(maxTextWidth + 1, moveOffset, stepSize);
}

void animationRealization::EffectDiagonalMoves()
{
    const int w = FrameWidth();
    const int h = FrameHeight();
    DrawPage([&](int j) {
        const int t = Phase(j - PageStart());
        if (t < 0)
            return;
        const int d = charDescents.value(j);
        const int x = qMax(RestX(j) - t + w, RestX(j));
        const float slope = float((h / 2 - maxTextHeight / 2 - d) / double(w));
        const int y = qMin(int(float(maxTextHeight - d) + float(t) * slope), RestY(j));
        AddGlyph(j, x, y);
    });
    Advance(moveOffset, stepSize);
    if (Phase(PageLength()) > w)
        HandOver(moveOffset);
}

void animationRealization::EffectRepeatTheWhereabouts()
{
    const int h = FrameHeight();
    const int n = PageLength();
    DrawPage([&](int j) {
        // n + 2 heights from the bottom edge to the top, then again from the bottom.
        const int r = (moveOffset + j - PageStart()) % (n + 2);
        const int d = charDescents.value(j);
        const double rise = double(d - maxTextHeight + h) / (n + 1);
        AddGlyph(j, RestX(j), float((maxTextHeight - d) + rise * ((n + 1) - r)));
    });
    AdvanceTo(101, moveOffset, stepSize);
}

void animationRealization::EffectFromBothSidesInOrderToEnlarge()
{
    if (BeginFrame()) {
        const int start = PageStart();
        const int end = PageEnd();
        // Pairs from both ends toward the middle. The first pair has no right member, so the page's
        // last character starts together with its second.
        for (int i = 0; start + i < end && Phase(i) >= 0; ++i) {
            const int left = start + i;
            const int right = end - i;
            const float scale = qMin(1.0f, float(Phase(i) / double(maxTextWidth)));
            transform.reset();
            transform.scale(scale, scale);
            if (left <= right)
                AddGlyph(left, RestX(left), RestY(left), transform);
            if (i >= 1 && left < right)
                AddGlyph(right, RestX(right), RestY(right), transform);
        }
        EndFrame();
    }
    Advance(moveOffset, stepSize);
    if (Phase(PageLength()) <= maxTextWidth)
        return;
    // Every page grows twice.
    moveOffset = 0;
    ++charIndex;
    if (charIndex == 2) {
        charIndex = 0;
        HandOver(moveOffset);
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
