// Oscillating effects: the whole page appears at once and its characters swing for a while.
// moveOffset is the phase.
#include "engine/frame.h"

#if QT_VERSION >= 0x060000
#include <qrand.h>
#endif

#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

void animationRealization::WavesEffect()
{
    const double h = FrameHeight();
    DrawPage([&](int j) {
        // Between the top edge and the bottom edge; each character lags its left neighbor by a
        // step, so the crest travels to the right.
        const double d = charDescents.value(j);
        const double amplitude = 0.5 * (d - maxTextHeight + h);
        const double middle = (maxTextHeight - d) + amplitude;
        const int phase = Phase(j - PageStart());
        AddGlyph(j, RestX(j), int(middle + std::sin(phase / 10.3) * amplitude));
    });
    Advance(moveOffset, stepSize);
    // Over once the last character has completed more than ten radians.
    if (Phase(PageLength()) / 10.3 > 10.0)
        HandOver(moveOffset);
}

void animationRealization::SwingEffect()
{
    const double sway = std::sin(moveOffset / 20.0);
    // The first character's width moves them all, on every page: the row sways as a whole.
    const double shift = 0.5 * sway * charWidths.value(0);
    DrawPage([&](int j) {
        transform.translate(float(shift), 0);
        transform.shear(float(sway), 0);
        AddGlyph(j, RestX(j), RestY(j), transform);
    });
    AdvanceTo(361, moveOffset, stepSize);
}

void animationRealization::BeforeAfterScalEffect()
{
    const double k = 1.0 + float(0.5 * std::fabs(std::sin(moveOffset / 57.3)));
    DrawPage([&](int j) {
        transform.scale(float(k), float(k));
        AddGlyph(j, RestX(j), RestY(j), transform);
    });
    AdvanceTo(360, moveOffset, stepSize);
}

void animationRealization::TrembleEffect()
{
    DrawPage([&](int j) {
        // Four statements, because the order of the draws is part of the picture. In one expression
        // the compiler would choose it.
        const int xDistance = qrand() % 5;
        const int xAngle = qrand() % 8;
        const int yDistance = qrand() % 5;
        const int yAngle = qrand() % 8;
        AddGlyph(j, float(RestX(j) + xDistance * std::sin(double(xAngle))),
                 float(RestY(j) + yDistance * std::sin(double(yAngle))));
    });
    AdvanceTo(61, moveOffset, 1);
}

void animationRealization::EffectShake()
{
    const float degrees = float(std::sin(moveOffset / 30.0) * 45.0);
    DrawPage([&](int j) {
        // The pivot changes ends with the side to which the glyph leans.
        RotateAbout(degrees > 0 ? charWidths.value(j) : 0, 0, degrees);
        AddGlyph(j, RestX(j), RestY(j), transform);
    });
    AdvanceTo(361, moveOffset, stepSize);
}

} // namespace HNodeAnimationText
} // namespace Lw
