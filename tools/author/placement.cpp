#include "author/placement.h"

#include "author/seams.h"
#include "text/pagedivision.h"

#include <algorithm>

namespace AnimText {
namespace {

/** Each cluster's width, such that the line's rounded edges lie between them. */
QVector<int> ClusterWidths(const ShapedLine& line)
{
    QVector<int> widths(line.clusters.size());
    qreal edge = 0;
    for (int k : line.visualOrder) {
        const int left = qRound(edge);
        edge += line.clusters[k].advance;
        widths[k] = qRound(edge) - left;
    }
    return widths;
}

QPainterPath Underlined(const QPainterPath& shape, int width, const Bar& bar)
{
    QPainterPath underline;
    underline.addRect(0, bar.top, width, bar.height);
    if (shape.isEmpty())
        return underline;
    QPainterPath both = WithoutSharedArea(shape, underline);
    both.addPath(underline);
    return both;
}

/** Sets the clusters @p members of one page, given from left to right. */
void SetPage(const QVector<int>& members, const QVector<Cluster>& clusters,
             const QVector<int>& placeOf, PlacedText* text)
{
    int left = placeOf[*std::min_element(members.begin(), members.end())];
    int before = -1;
    for (int k : members) {
        const int unit = clusters[k].first;
        QPainterPath& outline = text->outlines[unit];
        if (before >= 0) {
            const QPainterPath neighbour =
                text->outlines[clusters[before].first].translated(placeOf[before] - left, 0);
            outline = WithoutSharedArea(outline, neighbour);
        }
        outline.translate(left - placeOf[k], 0);
        before = k;
        left += text->widths[unit];
    }
}

QVector<int> PageStarts(const QVector<int>& widths, Arrangement arrangement, int areaWidth)
{
    switch (arrangement) {
    case Arrangement::Pages: return Lw::HNodeAnimationText::PageStartsForward(widths, areaWidth);
    case Arrangement::PagesFromEnd:
        return Lw::HNodeAnimationText::PageStartsBackward(widths, areaWidth);
    case Arrangement::Line:
    case Arrangement::Column: break;
    }
    return {0, widths.size()};
}

} // namespace

PlacedText PlaceText(const ShapedLine& line, Arrangement arrangement, int areaWidth,
                     const Bar& underline)
{
    const QVector<int> clusterWidths = ClusterWidths(line);
    const int units =
        line.clusters.isEmpty() ? 0 : line.clusters.last().first + line.clusters.last().units;
    PlacedText text;
    text.outlines.resize(units);
    text.widths.resize(units);
    text.heights.resize(units);
    text.descents.fill(line.descent, units);

    QVector<int> placeOf(line.clusters.size()); // x of each cluster's place along the line
    int x = 0;
    for (int k = 0; k < line.clusters.size(); ++k) {
        const Cluster& cluster = line.clusters[k];
        text.widths[cluster.first] = clusterWidths[k];
        text.heights[cluster.first] = line.ascent + line.descent;
        text.outlines[cluster.first] = underline.height > 0 && clusterWidths[k] > 0
                                           ? Underlined(cluster.shape, clusterWidths[k], underline)
                                           : cluster.shape;
        placeOf[k] = x;
        x += clusterWidths[k];
    }
    if (arrangement == Arrangement::Column || units == 0)
        return text;

    const QVector<int> starts = PageStarts(text.widths, arrangement, areaWidth);
    QVector<QVector<int>> pages(starts.size() - 1);
    for (int k : line.visualOrder) {
        const auto after = std::upper_bound(starts.begin(), starts.end(), line.clusters[k].first);
        pages[int(after - starts.begin()) - 1].append(k);
    }
    for (const QVector<int>& members : pages) {
        if (!members.isEmpty())
            SetPage(members, line.clusters, placeOf, &text);
    }
    return text;
}

} // namespace AnimText
