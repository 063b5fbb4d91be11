#include "layout/placement.h"

#include "layout/seams.h"
#include "layout/wordpages.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace AnimText::layout {
namespace {

/** The widths of clusters between rounded edges. */
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

/** The place of each item in @p order. */
QVector<int> RanksOf(const QVector<int>& order)
{
    QVector<int> ranks(order.size());
    for (int i = 0; i < order.size(); ++i)
        ranks[order[i]] = i;
    return ranks;
}

/**
 * Rounds points to 1/64 pixel, the precision of the sign's painter. The painter then divides curves
 * without rounding and can copy moving glyphs. No point moves by more than 1/128 pixel.
 */
QPainterPath OnGrid(QPainterPath path)
{
    const auto rounded = [](qreal v) { return std::round(v * 64) / 64 + 0.0; }; // no -0
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element& e = path.elementAt(i);
        path.setElementPositionAt(i, rounded(e.x), rounded(e.y));
    }
    return path;
}

QPainterPath Underlined(const Cluster& cluster, int width)
{
    const Bar& bar = cluster.underline;
    if (bar.height <= 0 || width <= 0)
        return cluster.shape;
    QPainterPath underline;
    underline.addRect(0, bar.top, width, bar.height);
    if (cluster.shape.isEmpty())
        return underline;
    QPainterPath both = WithoutSharedArea(cluster.shape, underline);
    both.addPath(underline);
    return both;
}

/** The place of a cluster or of an added space. */
struct Cell
{
    int cluster; // or -1
    int width;
};

struct Setter
{
    const QString& text;
    const ShapedLine& line;
    const Setting& setting;
    const scene::NodeMotion& motion;
    const QSize area;
    const scene::MotionTraits traits = motion.Traits();
    // Of the clusters:
    const QVector<int> widths = ClusterWidths(line);
    const QVector<int> ranks = RanksOf(line.visualOrder);
    const int widest = widths.isEmpty() ? 0 : *std::max_element(widths.begin(), widths.end());
    QVector<int> seenAt = QVector<int>(widths.size()); // left edge of each on its page
    QVector<QPainterPath> outlines = QVector<QPainterPath>(widths.size());
    PlacedText result{};

    PlacedText Set()
    {
        if (motion.IsColumn())
            SetColumn();
        else if (motion.IsSideways())
            SetPage({0, 0, Count(), Count()}, true);
        else
            SetPages();
        SetHeights();
        return result;
    }

    int Count() const { return widths.size(); }
    bool IsFromEnd() const { return traits & scene::FromEnd; }
    /** Spaces are added as margins, since outlines must not be shifted. */
    bool NeedsPlaces() const { return traits & scene::Turns; }

    void SetPages()
    {
        const int room = qMax(1, area.width() - 2 * setting.padding);
        const QVector<LinePiece> pieces = Pieces();
        const QVector<PageCut> pages = CutPages(pieces, room, IsFromEnd());
        for (int p = 0; p < pages.size(); ++p) {
            SetPage(pages[p], IsFromEnd() ? p == 0 : p + 1 == pages.size());
            if (setting.keepsWords && p > 0 && !pieces[pages[p].seen].mayBegin)
                NoteTornWord(pieces, pages[p].seen);
        }
    }

    QVector<LinePiece> Pieces() const
    {
        QVector<bool> mayBegin(text.size() + 1);
        QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
        for (int at = finder.toNextBoundary(); at >= 0; at = finder.toNextBoundary())
            mayBegin[at] = true;
        QVector<LinePiece> pieces;
        for (int k = 0; k < Count(); ++k) {
            const int first = line.clusters[k].first;
            const bool isBlank = text.at(first).isSpace() && text.at(first) != QChar::Nbsp;
            pieces.append(
                {widths[k], setting.keepsWords && isBlank, setting.keepsWords && mayBegin[first]});
        }
        return pieces;
    }

    void NoteTornWord(const QVector<LinePiece>& pieces, int within)
    {
        int begin = within;
        int end = within;
        while (begin > 0 && !pieces[begin].mayBegin)
            --begin;
        while (end < Count() && !pieces[end].mayBegin)
            ++end;
        const int first = line.clusters[begin].first;
        const int last = end < Count() ? line.clusters[end].first : text.size();
        const QString word = text.mid(first, last - first).trimmed();
        if (result.tornWords.isEmpty() || result.tornWords.last() != word)
            result.tornWords.append(word);
    }

    /** @param isLast no page follows */
    void SetPage(const PageCut& page, bool isLast)
    {
        QVector<int> members(page.seenEnd - page.seen); // visible, from left to right
        std::iota(members.begin(), members.end(), page.seen);
        std::sort(members.begin(), members.end(),
                  [this](int a, int b) { return ranks[a] < ranks[b]; });
        int seenWidth = 0;
        for (int k : members)
            seenWidth += widths[k];
        const int left = LeftOf(seenWidth);
        SetOutlines(members, left);

        const QVector<Cell> cells = Cells(page, seenWidth, left, isLast);
        int x = 0;
        if (IsFromEnd()) {
            x = area.width();
            for (const Cell& cell : cells)
                x -= cell.width;
        }
        for (const Cell& cell : cells) {
            Append(cell, x);
            x += cell.width;
        }
    }

    /** The left edge of a page's text of that width. */
    int LeftOf(int width) const
    {
        if (motion.IsSideways())
            return 0;
        const int right = area.width() - setting.padding - width;
        switch (setting.align) {
        case Align::Left: return setting.padding;
        case Align::Center: return (area.width() - width) / 2;
        case Align::Right: return right;
        case Align::Natural: break;
        }
        return IsFromEnd() || line.rightToLeft ? right : setting.padding;
    }

    /** Positions the outlines of @p members, given from left to right. */
    void SetOutlines(const QVector<int>& members, int left)
    {
        int before = -1;
        for (int k : members) {
            seenAt[k] = left;
            outlines[k] = Underlined(line.clusters[k], widths[k]);
            if (before >= 0)
                outlines[k] = WithoutSharedArea(
                    outlines[k], outlines[before].translated(seenAt[before] - left, 0));
            before = k;
            left += widths[k];
        }
    }

    /** The places of a page in text order. */
    QVector<Cell> Cells(const PageCut& page, int seenWidth, int left, bool isLast) const
    {
        QVector<Cell> cells;
        for (int k = page.begin; k < page.end; ++k)
            cells.append({k, k >= page.seen && k < page.seenEnd ? widths[k] : 0});
        if (motion.IsSideways())
            return cells;
        const int most =
            traits & scene::EvenWidths ? qMax(1, widest) : std::numeric_limits<int>::max();
        const int lead = NeedsPlaces() ? qMax(0, left) : 0;
        int rest = area.width() - seenWidth - lead;
        const bool fills = rest > 0 && (!isLast || lead > 0) && !IsTurnedAnyway(page);
        if (fills) {
            Cell& turned = IsFromEnd() ? cells.first() : cells.last();
            const bool isSpace = turned.cluster < page.seen || turned.cluster >= page.seenEnd;
            if (isSpace || !NeedsPlaces()) {
                const int more = isSpace ? qMin(rest, most) : rest;
                turned.width += more;
                rest -= more;
            }
            for (; rest > 0; rest -= cells.last().width)
                cells.append({-1, qMin(rest, most)});
        }
        for (int margin = lead; margin > 0; margin -= cells.first().width)
            cells.prepend({-1, qMin(margin, most)});
        return cells;
    }

    /** Whether the sign itself begins a page here. */
    bool IsTurnedAnyway(const PageCut& page) const
    {
        if (setting.keepsWords || NeedsPlaces())
            return false;
        int sum = 0;
        for (int k = page.begin; k < page.end; ++k)
            sum += widths[k];
        const int next = IsFromEnd() ? page.begin - 1 : page.end;
        return next < 0 || next >= Count() || sum + widths[next] > area.width();
    }

    void SetColumn()
    {
        const int middle = (area.width() - widest) / 2; // where the sign begins all of them
        for (int k = 0; k < Count(); ++k) {
            seenAt[k] = setting.align == Align::Natural ? 0 : LeftOf(widths[k]) - middle;
            outlines[k] = Underlined(line.clusters[k], widths[k]);
            Append({k, widths[k]}, 0);
        }
    }

    /** Appends the units of @p cell, at @p x on its page. */
    void Append(const Cell& cell, int x)
    {
        const bool isAdded = cell.cluster < 0;
        const int units = isAdded ? 1 : line.clusters[cell.cluster].units;
        const int first = isAdded ? 0 : line.clusters[cell.cluster].first;
        for (int u = 0; u < units; ++u) {
            result.text += isAdded ? QChar(QLatin1Char(' ')) : text.at(first + u);
            result.source.append(first + u);
            result.outlines.append(isAdded || u > 0 ? QPainterPath()
                                                    : OnGrid(outlines[cell.cluster].translated(
                                                          seenAt[cell.cluster] - x, 0)));
            result.widths.append(u == 0 ? cell.width : 0);
            result.heights.append(u == 0 ? line.ascent + line.descent : 0);
        }
    }

    /** Heights and descents set the baseline's distance from the middle. */
    void SetHeights()
    {
        const int height = line.ascent + line.descent;
        const int middle = area.height() / 2 + height / 2 - line.descent;
        int up = 0; // pixels that the baseline moves up from middle alignment
        if (setting.valign == VAlign::Top && !motion.IsColumn())
            up = middle - setting.padding - line.ascent;
        else if (setting.valign == VAlign::Bottom && !motion.IsColumn())
            up = middle - (area.height() - setting.padding - line.descent);
        // Adding the same amount to height and descent keeps the ascent and moves the baseline up
        // by half of it.
        const int higher = (traits & scene::ReachesTop) && up > 0 ? 2 * up : 0;
        for (int& own : result.heights)
            own += own > 0 ? higher : 0;
        result.descents.fill(line.descent + (higher > 0 ? higher : up), result.text.size());
    }
};

} // namespace

PlacedText PlaceText(const QString& text, const ShapedLine& line, const Setting& setting,
                     const scene::NodeMotion& motion, const QSize& area)
{
    return Setter{text, line, setting, motion, area}.Set();
}

} // namespace AnimText::layout
