#include "layout/shaping.h"

#include "layout/seams.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QTextLayout>
#include <QtMath>

#include <algorithm>
#include <numeric>

namespace AnimText::layout {
namespace {

// Asking a QTextLine for the glyphs of one unit takes time linear in the line's length. The layout
// is therefore divided into short lines, which does not change the shapes.
const int columnsPerLine = 100;

const qreal tolerance = 0.02; // pixels; QTextLayout uses units of 1/64

// The direction of the first letter.
const Qt::LayoutDirection ownDirection = Qt::LayoutDirectionAuto;

/** A layout for the text with its styles. */
void Prepare(const StyledText& text, QTextOption::WrapMode wrap, QTextLayout* layout,
             Qt::LayoutDirection direction = ownDirection)
{
    QVector<QTextLayout::FormatRange> formats;
    for (int r = 0; r < text.runs.size(); ++r) {
        const int begin = text.runs[r].begin;
        const int end = r + 1 < text.runs.size() ? text.runs[r + 1].begin : text.text.size();
        QTextCharFormat format;
        format.setFont(text.runs[r].font);
        formats.append({begin, end - begin, format});
    }
    layout->setText(text.text);
    layout->setFont(text.runs.first().font);
    layout->setFormats(formats);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(direction);
    option.setWrapMode(wrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout->setTextOption(option);
}

/** Lays out the text on one line. The line is valid as long as @p layout. */
QTextLine WholeLine(const StyledText& text, QTextLayout* layout,
                    Qt::LayoutDirection direction = ownDirection)
{
    Prepare(text, QTextOption::NoWrap, layout, direction);
    layout->beginLayout();
    QTextLine line = layout->createLine();
    line.setLineWidth(1 << 24);
    layout->endLayout();
    return line;
}

/** The x of the leading and of the trailing edge. */
struct Edges
{
    qreal leading;
    qreal trailing;
};

Bar UnderlineOf(const QFont& font)
{
    if (!font.underline())
        return Bar();
    const QFontMetricsF metrics(font);
    const qreal height = qMax(1, qRound(metrics.lineWidth()));
    return {qreal(qRound(metrics.underlinePos() - height / 2)), height};
}

/** A cluster in the short lines. */
struct PlacedCluster : Edges
{
    int line;
    int groups = 1; // of units that share a glyph

    bool RightToLeft() const { return leading > trailing; }
};

struct Glyph
{
    QPainterPath outline;
    QPainterPath withoutOverlaps;
};

struct Shaper
{
    const StyledText& text;
    ShapedLine result{};
    QVector<PlacedCluster> places{};
    QTextLayout turned{}; // the text in the other direction; empty until needed
    QHash<QPair<QRawFont, quint32>, Glyph> glyphs{};

    ShapedLine Shape()
    {
        result.rightToLeft = text.text.isRightToLeft();
        QTextLayout layout;
        Prepare(text, QTextOption::WrapAnywhere, &layout);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
            line.setNumColumns(columnsPerLine);
        layout.endLayout();

        for (int i = 0; i < layout.lineCount(); ++i)
            AddLine(layout, layout.lineAt(i));
        result.visualOrder = VisualOrder();
        return result;
    }

    Edges EdgesOf(const QTextLine& line, int unit)
    {
        Edges edges{line.cursorToX(unit, QTextLine::Leading),
                    line.cursorToX(unit, QTextLine::Trailing)};
#if QT_VERSION >= 0x060000
        // At a change of direction, and after ligatures, Qt 6 may place the cursor before the words
        // of the other direction instead of at their first unit. The glyph's own position is right,
        // and among words of that direction the unit has its width.
        const QList<QGlyphRun> glyphs = line.glyphRuns(unit, 1);
        if (!glyphs.isEmpty() && glyphs.first().isRightToLeft() != result.rightToLeft) {
            if (turned.text().isEmpty())
                WholeLine(text, &turned, result.rightToLeft ? Qt::LeftToRight : Qt::RightToLeft);
            const QTextLine other = turned.lineAt(0);
            const qreal width =
                qAbs(other.cursorToX(unit, QTextLine::Trailing) - other.cursorToX(unit));
            const qreal left = glyphs.first().positions().first().x();
            edges = result.rightToLeft ? Edges{left, left + width} : Edges{left + width, left};
        }
#endif
        return edges;
    }

    void AddLine(const QTextLayout& layout, const QTextLine& line)
    {
        result.ascent = qMax(result.ascent, qCeil(line.ascent()));
        result.descent = qMax(result.descent, qCeil(line.descent()));
        const int begin = result.clusters.size();
        const int end = line.textStart() + line.textLength();
        for (int i = line.textStart(); i < end; ++i) {
            const bool sharesGlyph = i > line.textStart() && SharesGlyph(line, i);
            if (sharesGlyph || (i > line.textStart() && !layout.isValidCursorPosition(i))) {
                ++result.clusters.last().units;
                places.last().groups += sharesGlyph ? 0 : 1;
                continue;
            }
            result.clusters.append({i, 1, 0, {}, UnderlineOf(text.At(i).font), {}});
            places.append({EdgesOf(line, i), line.lineNumber()});
        }
        for (int k = begin; k < result.clusters.size(); ++k) {
            if (places[k].groups > 1)
                places[k].trailing = EndOf(places[k], begin, line);
        }
        for (int k = begin; k < result.clusters.size(); ++k)
            Outline(line, places[k], &result.clusters[k]);
    }

    /** Whether unit @p i shares its glyph with the unit before. */
    static bool SharesGlyph(const QTextLine& line, int i)
    {
        const QList<QGlyphRun> own = line.glyphRuns(i, 1);
        const QList<QGlyphRun> before = line.glyphRuns(i - 1, 1);
        if (own.isEmpty() || before.isEmpty())
            return own.isEmpty();
        return own.first().glyphIndexes().first() == before.first().glyphIndexes().first() &&
               own.first().positions().first() == before.first().positions().first();
    }

    /**
     * The trailing edge of @p place, a syllable of several glyphs. The layout has only the end of
     * its first glyph, but clusters are adjacent, so the syllable ends where the next one begins.
     */
    qreal EndOf(const PlacedCluster& place, int firstOfLine, const QTextLine& line) const
    {
        const qreal sign = place.RightToLeft() ? -1 : 1;
        const qreal least = sign * place.trailing - tolerance;
        qreal end = place.RightToLeft() ? 0 : line.naturalTextWidth();
        const auto consider = [&](qreal edge) {
            if (sign * edge >= least && sign * edge < sign * end)
                end = edge;
        };
        consider(line.cursorToX(line.textStart() + line.textLength()));
        for (int k = firstOfLine; k < places.size(); ++k) {
            consider(places[k].leading);
            if (places[k].groups == 1)
                consider(places[k].trailing);
        }
        return end;
    }

    void Outline(const QTextLine& line, const PlacedCluster& place, Cluster* cluster)
    {
        cluster->advance = qAbs(place.trailing - place.leading);
        const QPointF origin(qMin(place.leading, place.trailing), line.y() + line.ascent());
        cluster->shape.setFillRule(Qt::WindingFill);
        QPainterPath single; // the glyph of a cluster with only one
        int parts = 0;
        QVector<QRawFont> fonts;
        bool lacksGlyph = false;
        for (const QGlyphRun& run : line.glyphRuns(cluster->first, cluster->units)) {
            const QVector<quint32> glyphs = run.glyphIndexes();
            const QVector<QPointF> positions = run.positions();
            fonts.append(run.rawFont());
            for (int i = 0; i < glyphs.size(); ++i) {
                const Glyph& glyph = GlyphOf(run.rawFont(), glyphs[i]);
                lacksGlyph = lacksGlyph || glyphs[i] == 0;
                if (glyph.outline.isEmpty())
                    continue;
                ++parts;
                cluster->shape.addPath(glyph.outline.translated(positions[i] - origin));
                single = glyph.withoutOverlaps.translated(positions[i] - origin);
            }
        }
        cluster->shape = parts > 1 ? WithoutOverlaps(cluster->shape) : single;
        if (lacksGlyph)
            FindMissing(fonts, cluster);
    }

    /** A letter without its accent counts as present, as does a digit without its emoji style. */
    void FindMissing(const QVector<QRawFont>& fonts, Cluster* cluster) const
    {
        const int end = cluster->first + cluster->units;
        for (int i = cluster->first; i < end; ++i) {
            const bool isPair = text.text.at(i).isHighSurrogate() && i + 1 < end;
            const uint codePoint = text.text.mid(i, isPair ? 2 : 1).toUcs4().value(0);
            if (std::none_of(fonts.begin(), fonts.end(), [&](const QRawFont& font) {
                    return font.supportsCharacter(codePoint);
                }))
                cluster->missing.append(i);
            i += isPair ? 1 : 0;
        }
    }

    const Glyph& GlyphOf(const QRawFont& font, quint32 glyph)
    {
        const QPair<QRawFont, quint32> key(font, glyph);
        auto known = glyphs.constFind(key);
        if (known == glyphs.constEnd()) {
            QPainterPath path;
            if (glyph != 0) // 0 is the box for missing glyphs
                path = font.pathForGlyph(glyph);
            path.setFillRule(Qt::WindingFill); // as outline fonts require
            known = glyphs.insert(key, {path, WithoutOverlaps(path)});
        }
        return *known;
    }

    /** The clusters from left to right. */
    QVector<int> VisualOrder()
    {
        QVector<int> order(places.size());
        std::iota(order.begin(), order.end(), 0);
        if (std::none_of(places.begin(), places.end(),
                         [](const PlacedCluster& p) { return p.RightToLeft(); }))
            return order;

        // Consecutive clusters of one direction stay together on any line, so only the position of
        // each such sequence comes from the whole line.
        QTextLayout layout;
        const QTextLine line = WholeLine(text, &layout);

        struct Sequence
        {
            qreal left;
            int begin;
            int end;
        };
        QVector<Sequence> sequences;
        for (int begin = 0, end; begin < places.size(); begin = end) {
            qreal width = result.clusters[begin].advance;
            for (end = begin + 1; end < places.size() && Follows(end); ++end)
                width += result.clusters[end].advance;
            const qreal leading = EdgesOf(line, result.clusters[begin].first).leading;
            sequences.append({places[begin].RightToLeft() ? leading - width : leading, begin, end});
        }
        std::stable_sort(sequences.begin(), sequences.end(),
                         [](const Sequence& a, const Sequence& b) { return a.left < b.left; });
        auto next = order.begin();
        for (const Sequence& s : sequences) {
            for (int i = s.begin; i < s.end; ++i)
                *next++ = places[s.begin].RightToLeft() ? s.begin + s.end - 1 - i : i;
        }
        return order;
    }

    bool Follows(int i) const
    {
        const PlacedCluster& before = places[i - 1];
        const PlacedCluster& own = places[i];
        return before.line == own.line && before.RightToLeft() == own.RightToLeft() &&
               qAbs(before.trailing - own.leading) < tolerance;
    }
};

} // namespace

ShapedLine ShapeLine(const StyledText& text)
{
    return Shaper{text}.Shape();
}

LineSize MeasureLine(const StyledText& text)
{
    QTextLayout layout;
    const QTextLine line = WholeLine(text, &layout);
    return {qCeil(line.ascent()), qCeil(line.descent()), qCeil(line.naturalTextWidth())};
}

} // namespace AnimText::layout
