// In-turn effects: the characters of a page come in one after another, each a step behind its left
// neighbour.
#include "engine/frame.h"

#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

/**
 * The page's characters whose turn has come, with their phases. The turn goes by position whatever
 * the step, so with larger steps some join before their phase is positive.
 */
template <typename Shape>
void animationRealization::DrawInTurn(const Shape& shape)
{
    // Not by DrawPage(): GCC 4.7 may break off at a lambda that calls members within a template.
    if (!BeginFrame())
        return;
    const int start = PageStart();
    const int end = qMin(PageEnd(), start + moveOffset + 1);
    for (int j = start; j < end; ++j) {
        transform.reset();
        shape(j, Phase(j - start));
    }
    EndFrame();
}

void animationRealization::EffectInTurnUpwardZoom()
{
    DrawInTurn([&](int j, int phase) {
        const float b = float(float(ExactY(j)) * 0.5 / maxTextHeight);
        const double sy = b + b * std::sin(phase / 20.0);
        transform.scale(1, float(sy));
        AddShapedGlyph(j, RestX(j), RestY(j));
    });
    Advance(moveOffset, stepSize);
    if (moveOffset >= 201 && HandOver(moveOffset))
        charIndex = 0;
}

void animationRealization::EffectInTurnDrop()
{
    DrawInTurn([&](int j, int phase) { AddGlyph(j, RestX(j), qMin(phase, RestY(j))); });
    Advance(moveOffset, stepSize);
    if (Phase(PageLength()) > RestY(PageEnd() - 1))
        HandOver(moveOffset);
}

void animationRealization::Effect45DegreeAngleDrop()
{
    DrawInTurn([&](int j, int phase) {
        const float b = float(RestY(j));
        const float t = float(phase);
        double y = b;
        if (t <= b) { // falls, tilted
            transform.rotate(-45);
            y = t;
        } else if (t <= 1.6 * b) { // bounces up, still tilted
            transform.rotate(-45);
            y = b - (t - b);
        } else if (t <= 1.6 * b + 0.6 * b) { // settles, upright
            y = 0.4 * b + t - 1.6 * b;
        }
        AddShapedGlyph(j, RestX(j), y);
    });
    Advance(moveOffset, stepSize);
    if (Phase(PageLength()) > RestY(PageEnd() - 1) * 2.2 && HandOver(moveOffset))
        charIndex = 0;
}

} // namespace HNodeAnimationText
} // namespace Lw
