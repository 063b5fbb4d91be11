/**
 * @file
 * A text whose characters have styles.
 */
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>
#include <QVector>

namespace AnimText::layout {

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
    bool sized = false;     ///< tags set absolute sizes

    /** The style of unit @p index. */
    const StyleRun& At(int index) const;
    /** Appends @p more in the style of @p run; equal neighbors become one run. */
    void Append(const QString& more, const StyleRun& run);
};

bool operator==(const StyledText& a, const StyledText& b);

/**
 * Replaces line breaks and tabs in @p text with spaces and drops a line break at the end.
 * @param notes gets a line on each kind of change
 * @return false, with one line in @p error, if @p text is blank or has characters that cannot be
 * shown
 */
bool ToOneLine(StyledText* text, QStringList* notes, QString* error);

} // namespace AnimText::layout
