#include "author/author.h"

#include "author/glyphfiles.h"
#include "author/placement.h"
#include "text/limits.h"
#include "text/pagedivision.h"

#include <QFontMetrics>
#include <QtMath>

#include <algorithm>
#include <cmath>

using namespace Lw::HNodeAnimationText;

namespace AnimText {
namespace {

const int standardSize = 48;   // pixels
const int standardWidth = 512; // pixels
const int standardRows = 5;    // characters that an upright area shows
const int smallestSize = 4;    // pixels: nothing smaller can be read
const int largestSide = 16384; // pixels of an area, either way

Arrangement ArrangementFor(const AuthorOptions& options)
{
    if (options.mode == Mode::Scroll)
        return options.motion < 2 ? Arrangement::Line : Arrangement::Column;
    return options.motion == 1 ? Arrangement::PagesFromEnd : Arrangement::Pages;
}

int LineHeight(const QFont& font)
{
    const QFontMetrics metrics(font);
    return metrics.ascent() + metrics.descent();
}

/** The largest size in which a line of the font is no higher than @p height. */
int SizeThatFits(QFont font, int height)
{
    int size = qMax(smallestSize, height);
    for (font.setPixelSize(size); size > smallestSize && LineHeight(font) > height;)
        font.setPixelSize(--size);
    return size;
}

int WidestOf(const QVector<int>& widths)
{
    return widths.isEmpty() ? 0 : *std::max_element(widths.begin(), widths.end());
}

/** An area that suits the text when none was asked for. */
QSize StandardArea(const PlacedText& text, int lineHeight, Arrangement arrangement)
{
    if (arrangement == Arrangement::Column)
        return QSize(2 * WidestOf(text.widths), standardRows * lineHeight);
    return QSize(qMax(standardWidth, WidestOf(text.widths)), lineHeight + lineHeight % 2);
}

Bar UnderlineOf(const QFont& font)
{
    if (!font.underline())
        return Bar();
    const QFontMetricsF metrics(font);
    const qreal height = qMax(1, qRound(metrics.lineWidth()));
    return {qreal(qRound(metrics.underlinePos() - height / 2)), height};
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
                                    "points and reaches %3 pixels; a smaller --size helps")
                         .arg(i + 1)
                         .arg(outline.elementCount())
                         .arg(reach, 0, 'f', 0);
            return false;
        }
    }
    return true;
}

bool CanvasFits(const QSize& canvas, QString* error)
{
    const qint64 bytes = qint64(canvas.width()) * canvas.height() * 4;
    if (bytes <= maxCanvasBytes)
        return true;
    *error = QStringLiteral("the sign would need a picture of %1 x %2 pixels, %3 MiB; it has room "
                            "for %4 MiB")
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

QList<QHash<QString, QString>> StyleRows(const QFont& font, const QColor& color, int count)
{
    const auto number = [](int value) { return QString::number(value); };
    const int points = qMax(1, qRound(font.pixelSize() * 72 / 96.0));
    const QHash<QString, QString> row = {
        {QStringLiteral("fontName"), font.family()},
        {QStringLiteral("fontSize"), number(points)},
        {QStringLiteral("bold"), number(font.bold() ? 1 : 0)},
        {QStringLiteral("italic"), number(font.italic() ? 1 : 0)},
        {QStringLiteral("underline"), number(font.underline() ? 1 : 0)},
        {QStringLiteral("Color"), number(int(color.rgb() & 0xFFFFFF))}};
    QList<QHash<QString, QString>> rows;
    rows.reserve(count);
    for (int i = 0; i < count; ++i)
        rows.append(row);
    return rows;
}

QMap<QString, QVariant> Attributes(const AuthorOptions& options)
{
    QMap<QString, QVariant> attributes;
    attributes[QStringLiteral("Text")] = options.text;
    attributes[QStringLiteral("EffectType")] = int(options.mode);
    attributes[QStringLiteral("PlayTimes")] = options.plays;
    const bool scrolls = options.mode == Mode::Scroll;
    attributes[scrolls ? QStringLiteral("ContinueStyle") : QStringLiteral("AnimationEffect")] =
        options.motion;
    attributes[scrolls ? QStringLiteral("ContinueSpeed") : QStringLiteral("AnimationSpeed")] =
        options.speed;
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

} // namespace

bool AuthorNode(const AuthorOptions& options, AuthoredNode* authored, QString* error)
{
    QFont font = options.font;
    const Arrangement arrangement = ArrangementFor(options);
    const bool fits = font.pixelSize() > 0;
    if (!fits && (options.area.isEmpty() || arrangement == Arrangement::Column))
        font.setPixelSize(standardSize);
    else if (!fits)
        font.setPixelSize(SizeThatFits(font, options.area.height()));

    const ShapedLine line = ShapeLine(options.text, font);
    const int lineHeight = line.ascent + line.descent;
    QSize area = options.area;
    if (area.isEmpty())
        area =
            StandardArea(PlaceText(line, Arrangement::Column, 0, Bar()), lineHeight, arrangement);
    const PlacedText text = PlaceText(line, arrangement, area.width(), UnderlineOf(font));

    int width = 0;
    for (int w : text.widths)
        width += w;
    if (!CanvasFits(arrangement == Arrangement::Line ? QSize(width, area.height()) : area, error) ||
        !Showable(text, error))
        return false;

    SceneNode& node = authored->node;
    node.pos = options.pos;
    node.size = area;
    node.hold = options.hold;
    node.neonEffect = qMax(0, options.neon);
    node.attributes = Attributes(options);
    node.lists[QStringLiteral("TextWidth")] = Rows(QStringLiteral("text_width"), text.widths);
    node.lists[QStringLiteral("TextHeight")] = Rows(QStringLiteral("text_height"), text.heights);
    node.lists[QStringLiteral("TextAttribute")] =
        StyleRows(font, options.color, options.text.size());
    if (!options.picture.isEmpty())
        node.files[QStringLiteral("FillImage")] = options.picture;
    if (!options.neonPicture.isEmpty())
        node.files[QStringLiteral("NeonGifPath")] = options.neonPicture;
    authored->pathFile = PathFile(text.outlines);
    authored->descentFile = DescentFile(text.descents);
    authored->textSize = QSize(width, lineHeight);
    if (options.mode == Mode::Entrance)
        authored->pages = PageStartsForward(text.widths, area.width()).size() - 1;
    authored->unseen = UnseenCharacters(options.text, line);
    return true;
}

} // namespace AnimText
