#ifndef FRAME_H
#define FRAME_H

#include "engine/animationrealization.h"

namespace Lw {
namespace HNodeAnimationText {

/*
 * The frame that all effects share, as members of the engine.
 *
 * A frame collects the glyphs of the page in textPath, paints them together, writes the picture
 * once and advances a counter. At the end of its movement the page is handed over. An effect is a
 * formula:
 *
 *     DrawPage([&](int j) {                 // for every character of the page
 *         transform.scale(...);             // shape the glyph around its origin
 *         AddGlyph(j, RestX(j), RestY(j), transform);
 *     });
 *     AdvanceTo(361, moveOffset, stepSize);
 *
 * Glyphs overlap by the odd-even rule, because they share one path. For a picture without pixels
 * nothing is painted, but the counters advance.
 */

/** Frame bracket and loop: calls @p shape with each character of the page, transform reset. */
template <typename Shape>
void animationRealization::DrawPage(const Shape& shape)
{
    if (!BeginFrame())
        return;
    const int end = PageEnd();
    for (int j = PageStart(); j < end; ++j) {
        transform.reset();
        shape(j);
    }
    EndFrame();
}

/**
 * The page's characters whose turn has come, each a step behind its left neighbor: calls @p shape
 * with the character and its phase. The turn depends on the position, not on the step, so with
 * larger steps some start before their phase is positive.
 */
template <typename Shape>
void animationRealization::DrawInTurn(const Shape& shape)
{
    // Repeats DrawPage(): GCC 4.7 can crash on a lambda that calls members inside a template.
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

inline int animationRealization::FrameWidth() const
{
    return drawImage.width();
}

inline int animationRealization::FrameHeight() const
{
    return drawImage.height();
}

/** The first character of the page. */
inline int animationRealization::PageStart() const
{
    return pageBreaks.value(pageIndex - 1);
}

/** The character past the page's last one. */
inline int animationRealization::PageEnd() const
{
    return pageBreaks.value(pageIndex);
}

inline int animationRealization::PageLength() const
{
    return PageEnd() - PageStart();
}

/** Of all characters of the page. */
inline double animationRealization::PageWidth() const
{
    return pageOffsets.value(pageIndex) - pageOffsets.value(pageIndex - 1);
}

/** The final x of character j: the page begins at the left edge. */
inline int animationRealization::RestX(int j) const
{
    return charPositions.value(j) - pageOffsets.value(pageIndex - 1);
}

/** The resting baseline. Each half is truncated separately, so odd sizes rest half a pixel high. */
inline int animationRealization::RestY(int j) const
{
    return FrameHeight() / 2 + maxTextHeight / 2 - charDescents.value(j);
}

/** The resting baseline with exact halves. */
inline double animationRealization::ExactY(int j) const
{
    return FrameHeight() * 0.5 + maxTextHeight * 0.5 - charDescents.value(j);
}

/** The x of character j in a page that is stretched around its center. */
inline double animationRealization::GatherX(int j, double stretch) const
{
    const double center = PageWidth() * 0.5;
    return center + (RestX(j) - center) * stretch;
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
