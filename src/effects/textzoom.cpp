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
            AddGlyph(j, float(RestX(j) - center), 0, transform);
        }
        canvas.DrawText(textPath, zoom);
        ShowFrame();
    }
    AdvanceTo(241, moveOffset, stepSize);
}

void animationRealization::EffectUpwardZoomWithReflection()
{
    DrawPage([&](int j) {
        const float b = float(float(ExactY(j)) * 0.5 / maxTextHeight);
        const float sy = float(b + b * std::sin(Phase(j - PageStart()) / 20.0));
        transform.scale(1, sy);
        AddGlyph(j, RestX(j), RestY(j), transform);
        transform.reset();
        transform.scale(1, -sy);
        AddGlyph(j, RestX(j), RestY(j), transform);
    });
    AdvanceTo(201, moveOffset, stepSize);
}

} // namespace HNodeAnimationText
} // namespace Lw
