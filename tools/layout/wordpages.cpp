#include "layout/wordpages.h"

#include <algorithm>

namespace AnimText::layout {
namespace {

/** Where the page that begins at @p begin ends. */
int EndOfPage(const QVector<LinePiece>& line, int begin, int width)
{
    int sum = 0;
    int wordEnd = -1; // the last place where a page may end
    bool seen = false;
    for (int k = begin; k < line.size(); ++k) {
        if (seen && line[k].mayBegin)
            wordEnd = k;
        sum += line[k].width;
        if (line[k].isBlank) // spaces may extend beyond the page
            continue;
        if (sum > width && k > begin)
            return wordEnd > begin ? wordEnd : k;
        if (sum > width)
            return k + 1;
        seen = true;
    }
    return line.size();
}

QVector<PageCut> CutFromBeginning(const QVector<LinePiece>& line, int width)
{
    QVector<PageCut> pages;
    for (int begin = 0; begin < line.size();) {
        PageCut page;
        page.begin = page.seen = begin;
        page.end = page.seenEnd = EndOfPage(line, begin, width);
        int sum = 0;
        for (int k = page.begin; k < page.end; ++k)
            sum += line[k].width;
        // Spaces at the end of the text count as long as they fit.
        const auto hides = [&] { return page.end < line.size() || sum > width; };
        while (page.seenEnd > begin + 1 && line[page.seenEnd - 1].isBlank && hides())
            sum -= line[--page.seenEnd].width;
        while (begin > 0 && page.seen + 1 < page.seenEnd && line[page.seen].isBlank)
            ++page.seen;
        pages.append(page);
        begin = page.end;
    }
    return pages;
}

} // namespace

QVector<PageCut> CutPages(const QVector<LinePiece>& line, int width, bool fromEnd)
{
    if (!fromEnd)
        return CutFromBeginning(line, width);
    // Mirrors the line, which puts the spaces between two words after the other word.
    const int count = line.size();
    QVector<LinePiece> mirrored(count);
    bool mayBegin = false;
    for (int k = 0; k < count; ++k) {
        mirrored[k] = line[count - 1 - k];
        mirrored[k].mayBegin = mayBegin && !mirrored[k].isBlank;
        mayBegin = line[count - 1 - k].mayBegin || (mayBegin && mirrored[k].isBlank);
    }
    QVector<PageCut> pages = CutFromBeginning(mirrored, width);
    std::reverse(pages.begin(), pages.end());
    for (PageCut& page : pages)
        page = {count - page.end, count - page.seenEnd, count - page.seen, count - page.begin};
    return pages;
}

} // namespace AnimText::layout
