// Rotation and flip effects: the whole page turns, glyph by glyph or as a row.
#include "engine/frame.h"

#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

void animationRealization::RotationEffect()
{
    DrawPage([&](int j) {
        RotateAbout(charWidths.value(j) * 0.5, -maxTextHeight * 0.5, moveOffset);
        AddGlyph(j, RestX(j), float(ExactY(j)), transform);
    });
    AdvanceTo(361, moveOffset, stepSize);
}

void animationRealization::RotationTrundleEffect()
{
    const int w = FrameWidth();
    DrawPage([&](int j) {
        // A character appears when its slot has rolled into the frame.
        if (RestX(j) - moveOffset >= 1)
            return;
        RotateAbout(charWidths.value(j) * 0.5, -charHeights.value(j) * 0.5, progressF);
        AddGlyph(j, RestX(j) - moveOffset + w, RestY(j), transform);
    });
    Advance(moveOffset, stepSize);
    // Two turns over the width, each starting from 0.
    if (w > 0)
        progressF = float(progressF - (720.0 / w) * stepSize);
    if (progressF < -360.0f)
        progressF = 0;
    if (moveOffset > w) {
        progressF = 0;
        HandOver(moveOffset);
    }
}

void animationRealization::AngleRotationEffect()
{
    DrawPage([&](int j) {
        RotateAbout(charWidths.value(j) * 0.5, 0, moveOffset2);
        AddGlyph(j, RestX(j), RestY(j), transform);
    });
    AdvanceTo(361, moveOffset2, stepSize);
}

void animationRealization::EffectInTurnFlips()
{
    // A character stands on its head, shrinks to its baseline and rises again:
    //
    //     phase   0      60     90     120    180
    //                                   A      A
    //     base  -----  -----  -----  -----  -----
    //             V      v
    //
    // With more than one step per frame, some start with a negative phase, slightly reduced.
    DrawInTurn([&](int j, int phase) {
        if (phase <= 179)
            transform.scale(1, float(-std::cos(phase / 57.3)));
        AddGlyph(j, RestX(j), RestY(j), transform);
    });
    Advance(moveOffset, stepSize);
    if (Phase(PageLength()) >= 180)
        HandOver(moveOffset);
}

void animationRealization::Effect3DHorizontalRotation()
{
    // Two half-turns about the page's vertical axis. Characters keep their width: the row closes
    // over its middle and opens again on the other side. In the second turn the glyphs change
    // places, so the page reads correctly at the end.
    //
    //     m       0        10        20        30        41
    //          A B C D    AB CD    D C B A    DC BA    A B C D
    //     row    wide      shut     wide      shut      wide      stretch +1 .. -1, +1 .. -1
    //
    const int m = moveOffset;
    const bool mirrored = m > 20;
    const bool closing = m <= 10 || (m > 20 && m <= 30);
    const int begin = m <= 10 ? 0 : m <= 20 ? 11 : m <= 30 ? 21 : 31;
    const double stretch = ((mirrored ? 31 : 11) - m) * 0.1;
    const double pw = PageWidth();
    DrawPage([&](int j) {
        const int k = j - PageStart();
        const double q = k / pw; // a position in the row over its width in pixels: the slant
        const double fall = (1 - q) / 10 * (m - begin);
        transform.scale(1, float(closing ? 1 - fall : q + fall));
        AddGlyph(mirrored ? PageEnd() - 1 - k : j, float(GatherX(j, stretch)), float(ExactY(j)),
                 transform);
    });
    AdvanceTo(42, moveOffset, stepSize);
}

void animationRealization::EffectFlipsInto()
{
    const int m = moveOffset;
    const double stretch = 5.0 - (4 * m) / 360.0;
    DrawPage([&](int j) {
        // The row gathers from five times its width, while each glyph narrows to nothing, slanted,
        // and widens again, upright at the end:
        //
        //     m     0                180               360
        //        A      B      C     |   |   |      A B C
        //
        if (m <= 180) {
            transform.scale(float(1 - m / 180.0), 1);
            transform.shear(0, 0.5);
        } else {
            const double widening = (m - 180) / 180.0;
            transform.scale(float(widening), 1);
            transform.shear(0, float((1 - widening) * 0.5));
        }
        AddGlyph(j, float(GatherX(j, stretch)), float(ExactY(j)), transform);
    });
    AdvanceTo(361, moveOffset, 3 * stepSize);
}

void animationRealization::EffectRotateInto()
{
    const double stretch = 5.0 - (4 * moveOffset2) / 360.0;
    DrawPage([&](int j) {
        RotateAbout(charWidths.value(j) * 0.5, -charHeights.value(j) * 0.5, -moveOffset2);
        AddGlyph(j, float(GatherX(j, stretch)), float(ExactY(j)), transform);
    });
    AdvanceTo(361, moveOffset2, stepSize);
}

} // namespace HNodeAnimationText
} // namespace Lw
