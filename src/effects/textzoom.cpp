// Text zoom: the page pulses about its center, or grows together with its mirror image.
#include "engine/frame.h"

#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

void animationRealization::EffectTextZoom()
{
    if (BeginFrame()) {
        const float s = float(std::fabs(std::sin(moveOffset / 30.0)));
        const double center = PageWidth() * 0.5;
        Transform zoom;
        zoom.translate(float(center), float(ExactY(PageStart())));
        zoom.scale(s, s);
        for (int j = PageStart(); j < PageEnd(); ++j) {
            // The frame is scaled again: glyphs grow with the square, their spacing does not.
            transform.reset();
            transform.scale(s, s);
            AddShapedGlyph(j, float(RestX(j) - center), 0);
        }
        canvas.DrawText(textPath, zoom);
        ShowFrame();
    }
    Advance(moveOffset, stepSize);
    if (moveOffset > 240)
        HandOver(moveOffset);
}

void animationRealization::EffectUpwardZoomWithReflection()
{
    DrawPage([&](int j) {
        const float b = float(float(ExactY(j)) * 0.5 / maxTextHeight);
        const float sy = float(b + b * std::sin(Phase(j - PageStart()) / 20.0));
        transform.scale(1, sy);
        AddShapedGlyph(j, RestX(j), RestY(j));
        transform.reset();
        transform.scale(1, -sy);
        AddShapedGlyph(j, RestX(j), RestY(j));
    });
    Advance(moveOffset, stepSize);
    if (moveOffset > 200 && HandOver(moveOffset))
        charIndex = 0;
}

} // namespace HNodeAnimationText
} // namespace Lw
