/**
 * @file
 * Converts styled texts to Qt's text documents and back.
 */
#ifndef ANIMTEXT_STYLEDFORMAT_H
#define ANIMTEXT_STYLEDFORMAT_H

#include "layout/styledtext.h"

#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace AnimText {

/**
 * A character format that stores all of @p run. Letters are shown at a readable size; the size on
 * the sign is stored as a property.
 * @param common size in pixels that is shown at the reading size
 */
QTextCharFormat FormatOf(const StyleRun& run, int common);
/** The style stored in @p format; @p base supplies what is missing. */
StyleRun StyleOf(const QTextCharFormat& format, const StyleRun& base);

/** Replaces the selection of @p cursor with @p text. */
void Insert(const StyledText& text, int common, QTextCursor* cursor);
void Write(const StyledText& text, QTextDocument* document);
/** @param base the style of unstyled letters and of an empty text */
StyledText Read(const QTextDocument& document, const StyleRun& base);

/** The UTF-16 units from @p begin to before @p end. */
StyledText PartOf(const StyledText& text, int begin, int end);

} // namespace AnimText

#endif
