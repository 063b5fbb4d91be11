/**
 * @file
 * A text whose characters have styles of their own.
 */
#ifndef ANIMTEXT_STYLEDTEXT_H
#define ANIMTEXT_STYLEDTEXT_H

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>
#include <QVector>

namespace AnimText {

// Font sizes in pixels.
constexpr int smallestReadableSize = 4; ///< nothing smaller can be read
constexpr int largestFontSize = 2000;

/** The style of the units from @c begin up to the next run's. */
struct StyleRun
{
    int begin = 0; ///< UTF-16 unit
    QFont font;    ///< family, weight, slant, underline; the size in pixels
    QColor color;
};

struct StyledText
{
    QString text;
    QVector<StyleRun> runs; ///< the first begins at 0; they follow one another
    bool sized = false;     ///< sizes were given for parts of it

    /** The style of unit @p index. */
    const StyleRun& At(int index) const;
    /** Appends @p more in the style of @p run; equal neighbours become one run. */
    void Append(const QString& more, const StyleRun& run);
    /** All sizes times @p factor, in whole pixels, 1 at least. */
    StyledText Scaled(qreal factor) const;
};

/**
 * Reads an opaque color: a name, #rgb or #rrggbb. Otherwise returns false, and @p hint is the end
 * of a message: the name that may have been meant, or that it must be opaque.
 */
bool ReadColor(const QString& text, QColor* color, QString* hint);

/**
 * @p text as one line: line breaks and tabs become spaces, one line break at the end is dropped.
 * @param notes takes a line on each kind of change
 * @return false when it holds what cannot be shown, and then @p error has one line on it
 */
bool ToOneLine(StyledText* text, QStringList* notes, QString* error);

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
