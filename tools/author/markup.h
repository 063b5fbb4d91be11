/**
 * @file
 * Text with marks of style in it.
 */
#ifndef ANIMTEXT_MARKUP_H
#define ANIMTEXT_MARKUP_H

#include "layout/styledtext.h"

namespace AnimText {

/**
 * Reads text with marks in it, in one of two forms: a few tags, strictly
 *
 *     <b> <i> <u> <font face="FAMILY" size="32 | 32px | 24pt | 150%" color="NAME | #rrggbb">
 *
 * with &lt; &gt; &amp; for what would be a mark; or, when it begins with "<!DOCTYPE" or "<html",
 * HTML as Qt's text editors give it, of which the same styles are taken.
 * @param base the style of what has no marks; 150% is of the size around it
 * @param notes takes a line on what had to be left out
 * @return false when it cannot be read, and then @p error has one line on it
 */
bool ParseMarkup(const QString& markup, const StyleRun& base, StyledText* text, QStringList* notes,
                 QString* error);

} // namespace AnimText

#endif
