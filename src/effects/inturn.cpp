// In-turn effects: the characters of a page come in one after another, each a step behind its left
// neighbor.
#include "engine/frame.h"

#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

void animationRealization::EffectInTurnUpwardZoom()
{
    // Each character grows on its baseline until it reaches the top edge, then shrinks to nothing,
    // a little after its left neighbor, like a wave through grass.
    //
    //     height  2b |   .-.
    //              b | .'   '.       .'
    //              0 |        '._.'
    //                0   31  63   94  126   phase
    //
    DrawInTurn([&](int j, int phase) {
        const float b = float(float(ExactY(j)) * 0.5 / maxTextHeight);
        const double sy = b + b * std::sin(phase / 20.0);
        transform.scale(1, float(sy));
        AddGlyph(j, RestX(j), RestY(j), transform);
    });
    AdvanceTo(201, moveOffset, stepSize);
}

void animationRealization::EffectInTurnDrop()
{
    //     top edge        D      the phase is the distance fallen, until the baseline
    //                   C
    //                 B
    //     baseline  A
    //
    DrawInTurn([&](int j, int phase) { AddGlyph(j, RestX(j), qMin(phase, RestY(j))); });
    Advance(moveOffset, stepSize);
    if (Phase(PageLength()) > RestY(PageEnd() - 1))
        HandOver(moveOffset);
}

void animationRealization::Effect45DegreeAngleDrop()
{
    // The baseline lies b below the top edge. A character falls tilted, bounces up tilted to 0.4 b
    // and falls upright again:
    //
    //     y     0 | .
    //             |  .
    //       0.4 b |   .    .  .
    //             |    .  .    .
    //           b |     ..      ....... at rest
    //             0    b  1.6b 2.2b   phase
    //
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
        AddGlyph(j, RestX(j), y, transform);
    });
    Advance(moveOffset, stepSize);
    if (Phase(PageLength()) > RestY(PageEnd() - 1) * 2.2)
        HandOver(moveOffset);
}

} // namespace HNodeAnimationText
} // namespace Lw
