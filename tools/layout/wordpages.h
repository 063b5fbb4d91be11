/**
 * @file
 * Divides a line into pages between words.
 */
#pragma once

#include <QVector>

namespace AnimText::layout {

/** A piece of a line, in reading order. */
struct LinePiece
{
    int width = 0;         ///< pixels
    bool isBlank = false;  ///< a space, which is hidden at a page break
    bool mayBegin = false; ///< a page may begin here without splitting a word
};

/** The pieces from @c begin to @c end, of which those from @c seen to @c seenEnd are visible. */
struct PageCut
{
    int begin = 0;
    int seen = 0;
    int seenEnd = 0;
    int end = 0;
};

/**
 * Divides @p line into pages of at most @p width pixels: at the last possible word break of each,
 * or else between any two pieces. A wider piece gets its own page. Spaces at a break belong to the
 * page before it or, with pages filled @p fromEnd, to the page after it.
 */
QVector<PageCut> CutPages(const QVector<LinePiece>& line, int width, bool fromEnd);

} // namespace AnimText::layout
