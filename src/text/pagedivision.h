#ifndef PAGEDIVISION_H
#define PAGEDIVISION_H

#include <QList>
#include <QVector>

namespace Lw {
namespace HNodeAnimationText {

class LineWidths;

/**
 * Cuts a line of @p length characters from its start into pages no wider than @p areaWidth pixels:
 * a page is the longest run of whole characters that fits, or a single character that does not.
 * Appends 0 and every cut to @p breaks and the line's width up to there to @p offsets. The end of
 * the line is appended only after a last character that is wider than the area.
 */
void CutForward(const LineWidths& line, int length, int areaWidth, QList<int>& breaks,
                QList<int>& offsets);

/**
 * Cuts the line from its end: the last entry of a page comes first, each break being the last
 * character of its page, and -1 ends the list.
 */
void CutBackward(const LineWidths& line, int length, int areaWidth, QList<int>& breaks,
                 QList<int>& offsets);

/**
 * The same cuts as a list: the first character of each page and, at last, the number of
 * characters, of a line of characters of these @p widths. Forward and backward there are as many.
 */
QVector<int> PageStartsForward(const QVector<int>& widths, int areaWidth);
QVector<int> PageStartsBackward(const QVector<int>& widths, int areaWidth);

} // namespace HNodeAnimationText
} // namespace Lw

#endif
