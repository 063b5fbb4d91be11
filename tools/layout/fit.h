/**
 * @file
 * Fits font sizes to an area.
 */
#ifndef ANIMTEXT_FIT_H
#define ANIMTEXT_FIT_H

#include "layout/styledtext.h"

#include <QSize>

namespace AnimText {

/** What the largest size must fit. */
enum class Fit {
    None,
    Height, ///< the area's height
    Both,   ///< the area's height and width, on one page
};

/**
 * @p text at the largest sizes that fit @p room, including fallback fonts. Sizes keep their
 * proportions; the minimum is 4 pixels.
 */
StyledText Fitted(const StyledText& text, Fit fit, QSize room);

} // namespace AnimText

#endif
