#include "author/author.h"

#include "layout/glyphfiles.h"
#include "layout/placement.h"
#include "text/limits.h"
#include "text/pagedivision.h"

#include <QtMath>

#include <algorithm>
#include <climits>

namespace AnimText {

using namespace Lw::HNodeAnimationText;

namespace {

const int standardSize = 48;   // pixels
const int standardWidth = 512; // pixels
const int standardRows = 5;    // characters in an area for vertical scrolling

Setting SettingFor(const AuthorOptions& options)
{
    Setting setting;
    setting.align = options.align;
    setting.valign = options.valign;
    setting.padding = options.padding;
    setting.keepsWords = options.keepsWords;
    const MotionTraits traits = options.motion.Traits();
    if (options.motion.IsScroll())
        setting.arrangement = traits & Sideways ? Arrangement::Line : Arrangement::Column;
    else
        setting.arrangement = traits & FromEnd ? Arrangement::PagesFromEnd : Arrangement::Pages;
    setting.needsPlaces = traits & Turns;
    setting.needsEvenWidths = traits & EvenWidths;
    setting.reachesTop = traits & ReachesTop;
    return setting;
}

/** The default area. */
QSize StandardArea(const ShapedLine& line, Setting setting)
{
    const int height = line.ascent + line.descent + 2 * setting.padding;
    int widest = 0;
    for (const Cluster& cluster : line.clusters)
        widest = qMax(widest, qCeil(cluster.advance));
    if (setting.arrangement == Arrangement::Column)
        return QSize(2 * widest + 2 * setting.padding, standardRows * height);
    return QSize(qMax(standardWidth, widest + 2 * setting.padding), height + height % 2);
}

bool Showable(const PlacedText& text, QString* error)
{
    for (int i = 0; i < text.outlines.size(); ++i) {
        const QPainterPath& outline = text.outlines[i];
        const QRectF box = outline.controlPointRect();
        const qreal reach = qMax(qMax(qAbs(box.left()), qAbs(box.right())),
                                 qMax(qAbs(box.top()), qAbs(box.bottom())));
        if (outline.elementCount() > maxOutlineElements || !(reach <= maxOutlineCoordinate)) {
            *error = QStringLiteral("character %1 is too large for the sign: its outline has %2 "
                                    "points and reaches %3 pixels; use a smaller --size")
                         .arg(i + 1)
                         .arg(outline.elementCount())
                         .arg(reach, 0, 'f', 0);
            return false;
        }
    }
    return true;
}

bool Readable(const PlacedText& text, QString* error)
{
    const int fitting = OutlinesThatFit(text.outlines, maxDataFileSize);
    if (fitting == text.outlines.size())
        return true;
    *error = QStringLiteral("the text is too long: the sign reads %1 MiB of outlines, enough for "
                            "the first %2 of %3 characters")
                 .arg(maxDataFileSize >> 20)
                 .arg(fitting)
                 .arg(text.outlines.size());
    return false;
}

bool CanvasFits(const QSize& canvas, QString* error)
{
    const qint64 bytes = qint64(canvas.width()) * canvas.height() * 4;
    if (bytes <= maxCanvasBytes)
        return true;
    *error = QStringLiteral(
                 "the text needs a picture of %1 x %2 pixels, %3 MiB; the sign has room for %4 MiB")
                 .arg(canvas.width())
                 .arg(canvas.height())
                 .arg(bytes >> 20)
                 .arg(maxCanvasBytes >> 20);
    return false;
}

QList<QHash<QString, QString>> Rows(const QString& field, const QVector<int>& values)
{
    QList<QHash<QString, QString>> rows;
    rows.reserve(values.size());
    for (int value : values)
        rows.append({{field, QString::number(value)}});
    return rows;
}

QHash<QString, QString> StyleRow(const StyleRun& style)
{
    const auto number = [](int value) { return QString::number(value); };
    const int points = qMax(1, qRound(style.font.pixelSize() * 72 / 96.0));
    return {{QStringLiteral("fontName"), style.font.family()},
            {QStringLiteral("fontSize"), number(points)},
            {QStringLiteral("bold"), number(style.font.bold() ? 1 : 0)},
            {QStringLiteral("italic"), number(style.font.italic() ? 1 : 0)},
            {QStringLiteral("underline"), number(style.font.underline() ? 1 : 0)},
            {QStringLiteral("Color"), number(int(style.color.rgb() & 0xFFFFFF))}};
}

QList<QHash<QString, QString>> StyleRows(const StyledText& text, const QVector<int>& units)
{
    QVector<QHash<QString, QString>> styles;
    for (const StyleRun& run : text.runs)
        styles.append(StyleRow(run));
    QList<QHash<QString, QString>> rows;
    rows.reserve(units.size());
    for (int unit : units)
        rows.append(styles[int(&text.At(unit) - text.runs.constData())]);
    return rows;
}

QMap<QString, QVariant> Attributes(const AuthorOptions& options)
{
    SceneNode node;
    SetMotion(&node, options.motion);
    QMap<QString, QVariant> attributes = node.attributes;
    attributes[QStringLiteral("PlayTimes")] = options.plays;
    attributes[options.motion.SpeedKey()] = options.speed;
    if (options.hollow)
        attributes[QStringLiteral("Hollow")] = 1;
    if (options.neon >= 0)
        attributes[QStringLiteral("CheckNeonBg")] = 1;
    if (options.dazzle != Dazzle::Off)
        attributes[QStringLiteral("CheckDazzle")] = 1;
    if (options.dazzle > Dazzle::Plain) {
        attributes[QStringLiteral("CheckColorGradient")] = 1;
        attributes[QStringLiteral("ColorGradient")] = int(options.dazzle) - int(Dazzle::Linear);
    }
    if (!options.picture.isEmpty())
        attributes[QStringLiteral("CheckPictureFills")] = 1;
    return attributes;
}

/** The text with its styles, fitted if necessary. */
StyledText Sized(const AuthorOptions& options, Arrangement arrangement)
{
    StyledText text;
    text.text = options.text;
    text.runs = options.styles;
    if (text.runs.isEmpty())
        text.runs = {{0, options.font, options.color}};
    const bool isOpen = text.runs.first().font.pixelSize() <= 0;
    for (StyleRun& run : text.runs) {
        if (run.font.pixelSize() <= 0)
            run.font.setPixelSize(standardSize);
    }
    if (options.area.isEmpty())
        return text;
    const bool fitsHeight = isOpen && arrangement != Arrangement::Column;
    const QSize room = options.area - QSize(2 * options.padding, 2 * options.padding);
    return Fitted(text,
                  options.fit != Fit::None ? options.fit
                  : fitsHeight             ? Fit::Height
                                           : Fit::None,
                  room);
}

/** Measures how far outlines at rest reach out of the area. */
void MeasureCut(const PlacedText& text, int areaHeight, AuthoredNode* authored)
{
    const int highest = *std::max_element(text.heights.begin(), text.heights.end());
    const int baseline = areaHeight / 2 + highest / 2 - text.descents.first();
    for (const QPainterPath& outline : text.outlines) {
        const QRectF ink = outline.boundingRect();
        if (ink.isEmpty())
            continue;
        authored->cutAbove = qMax(authored->cutAbove, qCeil(-ink.top()) - baseline);
        authored->cutBelow = qMax(authored->cutBelow, qCeil(ink.bottom()) + baseline - areaHeight);
    }
}

} // namespace

bool AuthorNode(const AuthorOptions& options, AuthoredNode* authored, QString* error)
{
    // Layout needs some kilobytes for each.
    constexpr int longestText = 200000; // UTF-16 units
    if (options.text.size() > longestText) {
        *error = QStringLiteral("the text has %1 characters; expected at most %2")
                     .arg(options.text.size())
                     .arg(longestText);
        return false;
    }
    Setting setting = SettingFor(options);
    if (!options.area.isEmpty() &&
        2 * options.padding >= qMin(options.area.width(), options.area.height())) {
        *error = QStringLiteral("a padding of %1 pixels leaves no room in an area of %2 x %3")
                     .arg(options.padding)
                     .arg(options.area.width())
                     .arg(options.area.height());
        return false;
    }
    const StyledText text = Sized(options, setting.arrangement);
    const ShapedLine line = ShapeLine(text);
    setting.area = options.area.isEmpty() ? StandardArea(line, setting) : options.area;
    const PlacedText placed = PlaceText(text.text, line, setting);

    qint64 width = 0;
    for (int w : placed.widths)
        width += w;
    const bool isLine = setting.arrangement == Arrangement::Line;
    const QSize canvas =
        isLine ? QSize(int(qMin(width, qint64(INT_MAX))), setting.area.height()) : setting.area;
    if (!CanvasFits(canvas, error) || !Showable(placed, error) || !Readable(placed, error))
        return false;

    SceneNode& node = authored->node;
    node.pos = options.pos;
    node.size = setting.area;
    node.hold = options.hold;
    node.neonEffect = qMax(0, options.neon);
    node.attributes = Attributes(options);
    node.attributes[QStringLiteral("Text")] = placed.text;
    node.lists[QStringLiteral("TextWidth")] = Rows(QStringLiteral("text_width"), placed.widths);
    node.lists[QStringLiteral("TextHeight")] = Rows(QStringLiteral("text_height"), placed.heights);
    node.lists[QStringLiteral("TextAttribute")] = StyleRows(text, placed.source);
    if (!options.picture.isEmpty())
        node.files[QStringLiteral("FillImage")] = options.picture;
    if (!options.neonPicture.isEmpty())
        node.files[QStringLiteral("NeonGifPath")] = options.neonPicture;
    authored->pathFile = PathFile(placed.outlines);
    authored->descentFile = DescentFile(placed.descents);
    qreal advance = 0;
    for (const Cluster& cluster : line.clusters)
        advance += cluster.advance;
    authored->textSize = QSize(qRound(advance), line.ascent + line.descent);
    if (!options.motion.IsScroll())
        authored->pages = PageStartsForward(placed.widths, setting.area.width()).size() - 1;
    if (setting.arrangement != Arrangement::Column)
        MeasureCut(placed, setting.area.height(), authored);
    authored->tornWords = placed.tornWords;
    authored->unseen = UnseenCharacters(text.text, line);
    return true;
}

} // namespace AnimText
