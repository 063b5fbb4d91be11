/**
 * @file
 * The text of HTML as Qt's text editors give it.
 */
#ifndef ANIMTEXT_HTML_H
#define ANIMTEXT_HTML_H

#include "layout/styledtext.h"

namespace AnimText {

/**
 * The text in @p html with its families, sizes, weights, slants, underlines and colours; where it
 * says nothing, those of @p base. Paragraphs end in line breaks. Needs a QGuiApplication.
 * @param notes takes a line on what a sign does not show and was left out
 */
StyledText FromHtml(const QString& html, const StyleRun& base, QStringList* notes);

} // namespace AnimText

#endif
