/**
 * @file
 * Pages that end where words end.
 */
#ifndef ANIMTEXT_WORDPAGES_H
#define ANIMTEXT_WORDPAGES_H

#include <QVector>

namespace AnimText {

/** What stands in a line, in the order of reading. */
struct LinePiece
{
    int width = 0;         ///< pixels
    bool isBlank = false;  ///< a space, which is not seen where a page is turned
    bool mayBegin = false; ///< a page may begin with it without tearing a word
};

/** The pieces from @c begin to @c end; those from @c seen to @c seenEnd are seen. */
struct PageCut
{
    int begin = 0;
    int seen = 0;
    int seenEnd = 0;
    int end = 0;
};

/**
 * Cuts @p line into pages no wider than @p width pixels, at the last place in each where a page may
 * end, or else between any two pieces. A piece that is wider gets a page of its own. Where a page
 * is turned at spaces they belong to the page before, or, when the pages are filled @p fromEnd, to
 * the page behind.
 */
QVector<PageCut> CutPages(const QVector<LinePiece>& line, int width, bool fromEnd);

} // namespace AnimText

#endif
