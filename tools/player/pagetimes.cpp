#include "player/pagetimes.h"

#include <algorithm>

namespace AnimText {

namespace {

// Where speeds are slow a picture stays for several ticks, and never for more than these.
constexpr int longestPicture = 10;

} // namespace

QVector<PageTime> PageTimes(const QVector<int>& pictures, int end)
{
    QVector<PageTime> pages;
    if (pictures.isEmpty())
        return pages;
    int shortest = longestPicture;
    for (int i = 1; i < pictures.size(); ++i)
        shortest = std::min(shortest, pictures.at(i) - pictures.at(i - 1));
    pages.append({pictures.first(), pictures.first(), end});
    for (int i = 1; i < pictures.size(); ++i) {
        if (pictures.at(i) - pictures.at(i - 1) > shortest) {
            pages.last().until = pictures.at(i);
            pages.append({pictures.at(i), pictures.at(i), end});
        }
        pages.last().entered = pictures.at(i);
    }
    return pages;
}

} // namespace AnimText
