/**
 * @file
 * Styled texts in Qt's text documents, and out of them again.
 */
#ifndef ANIMTEXT_STYLEDFORMAT_H
#define ANIMTEXT_STYLEDFORMAT_H

#include "layout/styledtext.h"

#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace AnimText {

/**
 * A character format that keeps all of @p run. Letters are shown at a size for reading; their own
 * in pixels goes along unseen.
 * @param common the size, in pixels, that is shown as the common one
 */
QTextCharFormat FormatOf(const StyleRun& run, int common);
/** The style that is kept in @p format; what it lacks is taken from @p base. */
StyleRun StyleOf(const QTextCharFormat& format, const StyleRun& base);

/** Puts @p text in place of what @p cursor has selected. */
void Insert(const StyledText& text, int common, QTextCursor* cursor);
void Write(const StyledText& text, QTextDocument* document);
/** @param base the style of what has none, and of an empty text */
StyledText Read(const QTextDocument& document, const StyleRun& base);

/** The units of @p text from @p begin up to @p end. */
StyledText PartOf(const StyledText& text, int begin, int end);

} // namespace AnimText

#endif
