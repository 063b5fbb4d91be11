/**
 * @file
 * Reads HTML from Qt's text editors.
 */
#pragma once

#include "layout/styledtext.h"

namespace AnimText::author {

/**
 * The text of @p html with its families, sizes, weights, slants, underlines and colors; the others
 * are those of @p base. Paragraphs end in line breaks. Needs a QGuiApplication.
 * @param notes gets a line on what was left out because signs cannot show it
 */
layout::StyledText FromHtml(const QString& html, const layout::StyleRun& base, QStringList* notes);

} // namespace AnimText::author
