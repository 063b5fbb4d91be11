#include "studio/window/basics/style.h"

#include <QApplication>
#include <QHash>
#include <QIconEngine>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>

namespace AnimText {
namespace {

/**
 * Icons on a grid of 16 by 16, written as SVG paths (absolute M, L, C, Z). A path that starts with
 * "*" is filled, the others are stroked.
 */
const QHash<QString, QString>& Drawings()
{
    static const QHash<QString, QString> drawings{
        {QStringLiteral("document-new"),
         QStringLiteral("M 4 2 L 9 2 L 12 5 L 12 14 L 4 14 Z M 9 2 L 9 5 L 12 5")},
        {QStringLiteral("document-open"),
         QStringLiteral(
             "M 2 13 L 2 4 L 6 4 L 7.5 5.5 L 13 5.5 L 13 7.5 M 2 13 L 4 7.5 L 15 7.5 L 13 13 Z")},
        {QStringLiteral("document-save"),
         QStringLiteral("M 2.5 2.5 L 11 2.5 L 13.5 5 L 13.5 13.5 L 2.5 13.5 Z M 5 2.5 L 5 6 L 10 6 "
                        "L 10 2.5 M 5 13.5 L 5 9 L 11 9 L 11 13.5")},
        {QStringLiteral("document-export"),
         QStringLiteral("M 8 10 L 8 2 M 5 5 L 8 2 L 11 5 M 3 8 L 3 13.5 L 13 13.5 L 13 8")},
        {QStringLiteral("edit-undo"),
         QStringLiteral("M 6 3 L 3 6 L 6 9 M 3 6 L 10 6 C 14 6 14 12.5 10 12.5 L 6 12.5")},
        {QStringLiteral("edit-redo"),
         QStringLiteral("M 10 3 L 13 6 L 10 9 M 13 6 L 6 6 C 2 6 2 12.5 6 12.5 L 10 12.5")},
        {QStringLiteral("list-add"), QStringLiteral("M 8 3 L 8 13 M 3 8 L 13 8")},
        {QStringLiteral("list-remove"), QStringLiteral("M 3 8 L 13 8")},
        {QStringLiteral("media-skip-backward"),
         QStringLiteral("*M 13 3 L 5 8 L 13 13 Z M 3 3 L 4.5 3 L 4.5 13 L 3 13 Z")},
        {QStringLiteral("media-skip-forward"),
         QStringLiteral("*M 3 3 L 11 8 L 3 13 Z M 11.5 3 L 13 3 L 13 13 L 11.5 13 Z")},
        {QStringLiteral("media-playback-start"), QStringLiteral("*M 4 2.5 L 13 8 L 4 13.5 Z")},
        {QStringLiteral("media-playback-pause"),
         QStringLiteral("*M 4 3 L 6.5 3 L 6.5 13 L 4 13 Z M 9.5 3 L 12 3 L 12 13 L 9.5 13 Z")},
        {QStringLiteral("step-back"), QStringLiteral("M 10 3.5 L 5.5 8 L 10 12.5")},
        {QStringLiteral("step-forward"), QStringLiteral("M 6 3.5 L 10.5 8 L 6 12.5")},
        {QStringLiteral("media-playlist-repeat"),
         QStringLiteral("M 4 10 L 2.5 10 L 2.5 5 L 12 5 M 10 3 L 12 5 L 10 7 M 12 6 L 13.5 6 L "
                        "13.5 11 L 4 11 M 6 9 L 4 11 L 6 13")},
        {QStringLiteral("dialog-warning"),
         QStringLiteral("M 8 2.5 L 14.5 13.5 L 1.5 13.5 Z M 8 6.5 L 8 10 M 8 11.6 L 8 12.2")},
        {QStringLiteral("dialog-error"),
         QStringLiteral("M 8 2 C 16 2 16 14 8 14 C 0 14 0 2 8 2 Z M 5.8 5.8 L 10.2 10.2 M 10.2 5.8 "
                        "L 5.8 10.2")},
        {QStringLiteral("lamps"),
         QStringLiteral("*M 4.5 2 C 7.8 2 7.8 7 4.5 7 C 1.2 7 1.2 2 4.5 2 Z M 11.5 2 C 14.8 2 14.8 "
                        "7 11.5 7 C 8.2 7 8.2 2 11.5 2 Z M 4.5 9 C 7.8 9 7.8 14 4.5 14 C 1.2 14 "
                        "1.2 9 4.5 9 Z M 11.5 9 C 14.8 9 14.8 14 11.5 14 C 8.2 14 8.2 9 11.5 9 "
                        "Z")},
        {QStringLiteral("edit-cut"),
         QStringLiteral(
             "M 4 2 L 10 11 M 12 2 L 6 11 M 4.5 10.5 C 7 10.5 7 14.5 4.5 14.5 C 2 14.5 2 "
             "10.5 4.5 10.5 Z M 11.5 10.5 C 14 10.5 14 14.5 11.5 14.5 C 9 14.5 9 10.5 "
             "11.5 10.5 Z")},
        {QStringLiteral("edit-paste"),
         QStringLiteral(
             "M 5 3 L 3 3 L 3 14 L 13 14 L 13 3 L 11 3 M 5.5 2 L 10.5 2 L 10.5 4.5 L 5.5 "
             "4.5 Z")},
        {QStringLiteral("edit-copy"),
         QStringLiteral("M 5.5 5.5 L 13.5 5.5 L 13.5 13.5 L 5.5 13.5 Z M 3 10.5 L 2.5 10.5 L 2.5 "
                        "2.5 L 10.5 2.5 L 10.5 3")},
    };
    return drawings;
}

void AddTo(QPainterPath* path, const QString& letters)
{
    const QStringList words = letters.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    int i = 0;
    const auto point = [&] {
        const QPointF p(words.value(i).toDouble(), words.value(i + 1).toDouble());
        i += 2;
        return p;
    };
    while (i < words.size()) {
        const QChar letter = words.at(i++).at(0);
        if (letter == QLatin1Char('M')) {
            path->moveTo(point());
        } else if (letter == QLatin1Char('L')) {
            path->lineTo(point());
        } else if (letter == QLatin1Char('C')) {
            const QPointF a = point();
            const QPointF b = point();
            path->cubicTo(a, b, point());
        } else {
            path->closeSubpath();
        }
    }
}

/** Paints in the palette's present colors. */
class DrawnIcon : public QIconEngine
{
public:
    explicit DrawnIcon(const QString& letters)
        : letters(letters)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QApplication::palette();
        const QColor& color = palette.color(
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
        const bool filled = letters.startsWith(QLatin1Char('*'));
        QPainterPath path;
        AddTo(&path, filled ? letters.mid(1) : letters);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 16.0, rect.height() / 16.0);
        if (filled)
            painter->fillPath(path, color);
        else
            painter->strokePath(path, QPen(color, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new DrawnIcon(letters); }

private:
    QString letters;
};

} // namespace

QColor Mixed(const QColor& a, const QColor& b, double amount)
{
    const auto part = [amount](int x, int y) { return int(x + (y - x) * amount); };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue()),
            part(a.alpha(), b.alpha())};
}

QColor Warning(const QPalette& palette)
{
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? QColor(255, 150, 80) : QColor(190, 80, 0);
}

QColor Quiet(const QPalette& palette)
{
    return Mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.4);
}

QFont TabularFont(const QFont& font, int points)
{
    // Common fonts have digits of equal width; kerning would move them.
    QFont tabular = font;
    tabular.setKerning(false);
    if (points != 0 && tabular.pointSizeF() > 0)
        tabular.setPointSizeF(std::max(6.0, tabular.pointSizeF() + points));
    return tabular;
}

void LetShrink(QComboBox* box)
{
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(8);
}

int LabelWidth(const QFont& font)
{
    constexpr int letters = 12;
    return (letters * QFontMetrics(font).averageCharWidth() + grid - 1) / grid * grid;
}

QString SecondsText(qint64 milliseconds)
{
    return QApplication::translate("Times", "%1 s")
        .arg(QLocale().toString(double(milliseconds) / 1000, 'f', 2));
}

QIcon Icon(const QString& name)
{
    const QIcon ours(new DrawnIcon(Drawings().value(name)));
    return QIcon::fromTheme(name, ours);
}

} // namespace AnimText
