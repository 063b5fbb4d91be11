#ifndef FRAME_H
#define FRAME_H

#include "engine/animationrealization.h"

namespace Lw {
namespace HNodeAnimationText {

/*
 * The frame that all effects share, as members of the engine.
 *
 * A frame collects the glyphs of the page in textPath, paints them in one go, writes the picture
 * once and advances a counter; at the end of its movement the page is handed over. An effect is its
 * formula:
 *
 *     DrawPage([&](int j) {                 // for every character of the page
 *         transform.scale(...);             // shape the glyph about its origin
 *         AddShapedGlyph(j, RestX(j), RestY(j));
 *     });
 *     Advance(moveOffset, stepSize);
 *     if (moveOffset >= 361)
 *         HandOver(moveOffset);
 *
 * Glyphs overlap by the odd-even rule, for they share one path. A picture without pixels paints
 * nothing and the counters advance all the same.
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
 * with the character and its phase. The turn goes by position whatever the step, so with larger
 * steps some join before their phase is positive.
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

/** Of the page's characters together. */
inline double animationRealization::PageWidth() const
{
    return pageOffsets.value(pageIndex) - pageOffsets.value(pageIndex - 1);
}

/** Where character j stands once the page is in place: the page begins at the left edge. */
inline int animationRealization::RestX(int j) const
{
    return charPositions.value(j) - pageOffsets.value(pageIndex - 1);
}

/** The resting baseline. Each half is truncated by itself, so odd sizes rest half a pixel high. */
inline int animationRealization::RestY(int j) const
{
    return FrameHeight() / 2 + maxTextHeight / 2 - charDescents.value(j);
}

/** The resting baseline with exact halves. */
inline double animationRealization::ExactY(int j) const
{
    return FrameHeight() * 0.5 + maxTextHeight * 0.5 - charDescents.value(j);
}

/** The x of character j in a page that is stretched about its center. */
inline double animationRealization::GatherX(int j, double stretch) const
{
    const double center = PageWidth() * 0.5;
    return center + (RestX(j) - center) * stretch;
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
