/**
 * @file
 * Sizes that fit an area.
 */
#ifndef ANIMTEXT_FIT_H
#define ANIMTEXT_FIT_H

#include "layout/styledtext.h"

#include <QSize>

namespace AnimText {

/** What the largest size must fit. */
enum class Fit {
    None,
    Height, ///< the line is no higher than the area
    Both,   ///< and, on one page, no wider
};

/**
 * @p text at the largest sizes whose line, in all the fonts that it really uses, fits @p room. The
 * sizes keep their proportions to one another; the smallest is 4 pixels.
 */
StyledText Fitted(const StyledText& text, Fit fit, QSize room);

} // namespace AnimText

#endif
