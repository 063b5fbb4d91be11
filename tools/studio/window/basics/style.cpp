#include "studio/window/basics/style.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFontDatabase>
#include <QIconEngine>
#include <QLocale>
#include <QPainter>
#include <QSvgRenderer>

namespace AnimText::studio::window::basics {
namespace {

/** Paints in the palette's present colors. */
class OwnIcon : public QIconEngine
{
public:
    explicit OwnIcon(const QByteArray& svg)
        : svg(svg)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QColor color = QApplication::palette().color(
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
        // Qt paints currentColor black.
        QSvgRenderer(QByteArray(svg).replace("currentColor", color.name().toLatin1()))
            .render(painter, rect);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new OwnIcon(svg); }

private:
    QByteArray svg;
};

} // namespace

QBoxLayout* Arrange(Qt::Orientation way, int spacing, const QList<QObject*>& items, int margin)
{
    auto* box =
        new QBoxLayout(way == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    box->setContentsMargins(margin, margin, margin, margin);
    box->setSpacing(spacing);
    for (QObject* item : items) {
        if (auto* layout = qobject_cast<QLayout*>(item))
            box->addLayout(layout);
        else if (item)
            box->addWidget(static_cast<QWidget*>(item));
        else
            box->addStretch(1);
    }
    return box;
}

void PrepareCommand(QLineEdit* field)
{
    field->setReadOnly(true);
    field->setFrame(false);
    field->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QAction* copy = field->addAction(Icon("edit-copy"), QLineEdit::TrailingPosition);
    copy->setToolTip(QApplication::translate("Command", "Copy the command"));
    QObject::connect(copy, &QAction::triggered, field,
                     [field] { QApplication::clipboard()->setText(field->text()); });
}

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

QColor Quiet(const QPalette& palette, double amount)
{
    return Mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), amount);
}

void SetInk(QWidget* widget, const QColor& color)
{
    QPalette colors = widget->palette();
    colors.setColor(widget->foregroundRole(), color);
    widget->setPalette(colors);
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
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    file.open(QIODevice::ReadOnly);
    return QIcon::fromTheme(name, QIcon(new OwnIcon(file.readAll())));
}

} // namespace AnimText::studio::window::basics
