/**
 * @file
 * Reads text as it was typed, with or without style tags.
 */
#pragma once

#include "author/author.h"

namespace AnimText::author {

/**
 * Reads text with tags in one of two forms: either exactly these tags,
 *
 *     <b> <i> <u> <font face="FAMILY" size="32 | 32px | 24pt | 150%" color="NAME | #rrggbb">
 *
 * with &lt; &gt; &amp; as escapes; or, if it begins with "<!DOCTYPE" or "<html", HTML from Qt's
 * text editors. Needs a QGuiApplication.
 * @param base the style of text without tags; percentages refer to the enclosing size
 * @param notes gets a line on what was left out
 * @return false, with one line in @p error, if it cannot be read
 */
bool ParseMarkup(const QString& markup, const layout::StyleRun& base, layout::StyledText* text,
                 QStringList* notes, QString* error);

/** A text as it was typed. */
struct WrittenText
{
    QString words;
    bool hasTags = false;   ///< ParseMarkup() reads it
    bool isSized = false;   ///< somebody chose the size; otherwise the text is to fit the area
    layout::StyleRun style; ///< of words outside of tags
};

/**
 * Makes one line of @p written, and chooses its fit unless there is one.
 * @param notes gets a line on each change
 * @return false, with one line in @p error, if it cannot be shown
 */
bool ReadText(const WrittenText& written, TextSource* source, QStringList* notes, QString* error);

} // namespace AnimText::author
