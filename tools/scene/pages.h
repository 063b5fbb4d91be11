/**
 * @file
 * How the sign cuts a line of text into pages.
 */
#ifndef ANIMTEXT_PAGES_H
#define ANIMTEXT_PAGES_H

#include <QVector>

namespace AnimText {

/**
 * The first character of each page, and at last the number of characters, when a line of characters
 * of these @p widths is shown in an area @p areaWidth pixels wide. A page is the longest run of
 * characters that fits, or a single one that does not; the runs are measured from the beginning of
 * the line.
 */
QVector<int> PagesFromBeginning(const QVector<int>& widths, int areaWidth);

/** The same with the runs measured from the end of the line. There are as many. */
QVector<int> PagesFromEnd(const QVector<int>& widths, int areaWidth);

} // namespace AnimText

#endif
