#include "layout/layout.h"

#include "layout/glyphfiles.h"
#include "layout/placement.h"
#include "text/limits.h"
#include "text/pagedivision.h"

#include <QtMath>

#include <algorithm>
#include <numeric>

namespace AnimText::layout {

using namespace Lw::HNodeAnimationText;

namespace {

const int longestText = 200000; // UTF-16 units; layout needs some kilobytes for each
const int standardWidth = 512;  // pixels
const int standardRows = 5;     // characters in an area for vertical scrolling

/**
 * @p text at the largest sizes that fit @p room, including fallback fonts. Sizes keep their
 * proportions.
 */
StyledText Fitted(const StyledText& text, bool fitsWidth, const QSize& room)
{
    // Searches for the largest size; the others are in proportion to it.
    int largest = 1;
    int smallest = largestFontSize;
    for (const StyleRun& run : text.runs) {
        largest = qMax(largest, run.font.pixelSize());
        smallest = qMin(smallest, run.font.pixelSize());
    }
    const auto at = [&](int size) {
        StyledText scaled = text;
        for (StyleRun& run : scaled.runs)
            run.font.setPixelSize(qMax(1, qRound(run.font.pixelSize() * (qreal(size) / largest))));
        return scaled;
    };
    const auto fits = [&](int size) {
        const LineSize line = MeasureLine(at(size));
        return line.ascent + line.descent <= room.height() &&
               (!fitsWidth || line.width <= room.width());
    };
    // Measures grow nearly in proportion, so the first guess is nearly right.
    const LineSize line = MeasureLine(text);
    qreal ratio = qreal(room.height()) / qMax(1, line.ascent + line.descent);
    if (fitsWidth)
        ratio = qMin(ratio, qreal(room.width()) / qMax(1, line.width));
    const int least = qMax(1, smallestReadableSize * largest / qMax(1, smallest));
    int size = qBound(least, qRound(largest * ratio), qMax(least, largestFontSize));
    while (size < largestFontSize && fits(size + 1))
        ++size;
    while (size > least && !fits(size))
        --size;
    return at(size);
}

/** The default area. */
QSize StandardArea(const ShapedLine& line, int padding, bool isColumn)
{
    const int height = line.ascent + line.descent + 2 * padding;
    int widest = 0;
    for (const Cluster& cluster : line.clusters)
        widest = qMax(widest, qCeil(cluster.advance));
    if (isColumn)
        return QSize(2 * widest + 2 * padding, standardRows * height);
    return QSize(qMax(standardWidth, widest + 2 * padding), height + height % 2);
}

/** Why the sign cannot show a text that needs a picture of that size; empty if it can. */
QString Obstacle(const PlacedText& text, qint64 width, int height)
{
    const qint64 bytes = width * height * 4;
    if (bytes > maxCanvasBytes)
        return QStringLiteral("the text needs a picture of %1 x %2 pixels, %3 MiB; the sign has "
                              "room for %4 MiB")
            .arg(width)
            .arg(height)
            .arg(bytes >> 20)
            .arg(maxCanvasBytes >> 20);
    for (int i = 0; i < text.outlines.size(); ++i) {
        const QPainterPath& outline = text.outlines[i];
        const QRectF box = outline.controlPointRect();
        const qreal reach = qMax(qMax(qAbs(box.left()), qAbs(box.right())),
                                 qMax(qAbs(box.top()), qAbs(box.bottom())));
        if (outline.elementCount() > maxOutlineElements || !(reach <= maxOutlineCoordinate))
            return QStringLiteral("character %1 is too large for the sign: its outline has %2 "
                                  "points and reaches %3 pixels; use a smaller --size")
                .arg(i + 1)
                .arg(outline.elementCount())
                .arg(reach, 0, 'f', 0);
    }
    const int fitting = OutlinesThatFit(text.outlines, maxDataFileSize);
    if (fitting < text.outlines.size())
        return QStringLiteral("the text is too long: the sign reads %1 MiB of outlines, enough for "
                              "the first %2 of %3 characters")
            .arg(maxDataFileSize >> 20)
            .arg(fitting)
            .arg(text.outlines.size());
    return QString();
}

/** Measures how far outlines at rest reach out of the area. */
void MeasureCut(const PlacedText& text, LaidOut* laid)
{
    const int highest = *std::max_element(text.heights.begin(), text.heights.end());
    const int height = laid->area.height();
    const int baseline = height / 2 + highest / 2 - text.descents.first();
    for (const QPainterPath& outline : text.outlines) {
        const QRectF ink = outline.boundingRect();
        if (ink.isEmpty())
            continue;
        laid->cutAbove = qMax(laid->cutAbove, qCeil(-ink.top()) - baseline);
        laid->cutBelow = qMax(laid->cutBelow, qCeil(ink.bottom()) + baseline - height);
    }
}

/** Whether a character has ink: not a space, a control or a mark that only affects shaping. */
bool OughtToBeSeen(uint codePoint)
{
    const QChar::Category category = QChar::category(codePoint);
    const bool isSpace = category >= QChar::Separator_Space && category <= QChar::Other_Format;
    const bool variationSelector = (codePoint >= 0xFE00 && codePoint <= 0xFE0F) ||
                                   (codePoint >= 0xE0100 && codePoint <= 0xE01EF);
    const bool filler = codePoint == 0x034F || codePoint == 0x115F || codePoint == 0x1160 ||
                        codePoint == 0x2800 || codePoint == 0x3164 || codePoint == 0xFFA0;
    return !isSpace && !variationSelector && !filler;
}

/** The characters of @p line, laid out from @p text, that should have an outline but do not. */
QList<UnseenCharacter> UnseenCharacters(const QString& text, const ShapedLine& line)
{
    QList<UnseenCharacter> unseen;
    for (const Cluster& cluster : line.clusters) {
        QVector<int> places = cluster.missing;
        if (places.isEmpty() && cluster.shape.isEmpty())
            places.append(cluster.first);
        for (int place : places) {
            const uint codePoint = text.mid(place, 2).toUcs4().value(0);
            if (OughtToBeSeen(codePoint))
                unseen.append({place, codePoint, !cluster.missing.isEmpty()});
        }
    }
    return unseen;
}

QHash<QString, QString> StyleRow(const StyleRun& style)
{
    const auto number = [](int value) { return QString::number(value); };
    const int points = qMax(1, qRound(style.font.pixelSize() * 72 / 96.0));
    return {{"fontName", style.font.family()},
            {"fontSize", number(points)},
            {"bold", number(style.font.bold() ? 1 : 0)},
            {"italic", number(style.font.italic() ? 1 : 0)},
            {"underline", number(style.font.underline() ? 1 : 0)},
            {"Color", number(int(style.color.rgb() & 0xFFFFFF))}};
}

void MakeRows(const PlacedText& text, LaidOut* laid)
{
    QVector<QHash<QString, QString>> styles;
    for (const StyleRun& run : laid->styled.runs)
        styles.append(StyleRow(run));
    laid->lists.clear();
    for (int i = 0; i < text.text.size(); ++i) {
        const StyleRun& run = laid->styled.At(text.source[i]);
        laid->lists["TextAttribute"].append(styles[int(&run - laid->styled.runs.constData())]);
        laid->lists["TextHeight"].append({{"text_height", QString::number(text.heights[i])}});
        laid->lists["TextWidth"].append({{"text_width", QString::number(text.widths[i])}});
    }
}

} // namespace

bool LayOut(const StyledText& text, const Setting& setting, const scene::NodeMotion& motion,
            const QSize& area, LaidOut* laid, QString* error)
{
    if (text.text.size() > longestText) {
        *error = QStringLiteral("the text has %1 characters; expected at most %2")
                     .arg(text.text.size())
                     .arg(longestText);
        return false;
    }
    const QSize room = area - QSize(2 * setting.padding, 2 * setting.padding);
    if (!area.isEmpty() && room.isEmpty()) {
        *error = QStringLiteral("a padding of %1 pixels leaves no room in an area of %2 x %3")
                     .arg(setting.padding)
                     .arg(area.width())
                     .arg(area.height());
        return false;
    }
    const bool isFitted = !area.isEmpty() && setting.fit != Fit::None &&
                          !(setting.fit == Fit::Line && motion.IsColumn());
    laid->styled = isFitted ? Fitted(text, setting.fit == Fit::Both, room) : text;
    const ShapedLine line = ShapeLine(laid->styled);
    laid->area = area.isEmpty() ? StandardArea(line, setting.padding, motion.IsColumn()) : area;
    const PlacedText placed = PlaceText(text.text, line, setting, motion, laid->area);
    const qint64 width = std::accumulate(placed.widths.begin(), placed.widths.end(), qint64(0));
    *error =
        Obstacle(placed, motion.IsSideways() ? width : laid->area.width(), laid->area.height());
    if (!error->isEmpty())
        return false;
    laid->text = placed.text;
    MakeRows(placed, laid);
    laid->data = {{"PathData", PathFile(placed.outlines)},
                  {"DescentVector", DescentFile(placed.descents)}};
    laid->tornWords = placed.tornWords;
    qreal advance = 0;
    for (const Cluster& cluster : line.clusters)
        advance += cluster.advance;
    laid->size = QSize(qRound(advance), line.ascent + line.descent);
    if (!motion.IsScroll())
        laid->pages = PageStartsForward(placed.widths, laid->area.width()).size() - 1;
    if (!motion.IsColumn())
        MeasureCut(placed, laid);
    laid->unseen = UnseenCharacters(text.text, line);
    return true;
}

} // namespace AnimText::layout
