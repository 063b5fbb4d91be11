#include "studio/window/display/ledsdialog.h"

#include "lights/testpattern.h"
#include "player/player.h"
#include "studio/window/basics/style.h"

#include <QFileInfo>
#include <QPainter>
#include <QSettings>

namespace AnimText::studio::window::display {

namespace {

constexpr int mostDrawn = 8; // LEDs per side; a larger matrix is drawn with this size

/** Draws the data line over the picture, from a ring at the first LED to an arrow at the last. */
QPixmap WiringPicture(QSize size, const lights::Wiring& wiring, const QColor& color, double ratio)
{
    constexpr int side = 56 * basics::grid;
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    size = size.boundedTo(QSize(mostDrawn, mostDrawn));
    const double pitch = double(side) / std::max(size.width(), size.height());
    const QPointF corner((side - pitch * size.width()) / 2, (side - pitch * size.height()) / 2);
    QPolygonF line;
    for (int pixel : lights::LedOrder(size, wiring))
        line.append(corner +
                    pitch * QPointF(pixel % size.width() + 0.5, pixel / size.width() + 0.5));
    painter.fillRect(QRectF(corner, pitch * QSizeF(size)), Qt::black);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x60, 0x60, 0x60));
    for (const QPointF& led : line)
        painter.drawEllipse(led, pitch / 4, pitch / 4);
    painter.setPen(QPen(color, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
    painter.drawEllipse(line.first(), pitch / 3, pitch / 3);
    if (line.size() > 1) {
        painter.translate(line.last());
        painter.rotate(-QLineF(line.at(line.size() - 2), line.last()).angle());
        painter.setBrush(color);
        const QPointF head[] = {{0, 0}, {-pitch / 2, pitch / 4}, {-pitch / 2, -pitch / 4}};
        painter.drawPolygon(head, 3);
    }
    return picture;
}

/** @param choices labels with words for the address */
void Fill(QComboBox* box, const QList<QPair<QString, QString>>& choices)
{
    for (const auto& choice : choices)
        box->addItem(choice.first, choice.second);
}

void SetNumber(QSpinBox* box, const QString& name, int least, int most, int value,
               const QString& unit)
{
    box->setAccessibleName(name);
    box->setRange(least, most);
    box->setValue(value);
    box->setSuffix(unit);
}

} // namespace

LedsDialog::LedsDialog(QSize display, const QString& scenePath, QWidget* parent)
    : QDialog(parent)
    , display(display)
    , scenePath(scenePath)
{
    setWindowTitle(tr("Play on LEDs"));
    basics::PrepareCommand(command);
    pattern->setCheckable(true);
    pattern->setToolTip(
        tr("Shows corners, LED order, colors, and brightness levels for five seconds each"));
    state->setWordWrap(true);
    start->setDefault(true);
    steps.setTimerType(Qt::PreciseTimer);
    steps.setInterval(player::tickLength);

    wiring->setToolTip(tr("Path of the data line, seen from the front"));
    auto* upper = basics::Arrange(Qt::Horizontal, 4 * basics::grid, {MakeForm(), wiring});
    upper->setAlignment(wiring, Qt::AlignTop);
    auto* lower = new QFormLayout;
    lower->addRow(tr("As a command"), command);
    auto* buttons = basics::Arrange(Qt::Horizontal, 2 * basics::grid, {pattern, nullptr, start});
    setLayout(basics::Arrange(Qt::Vertical, 3 * basics::grid, {upper, lower, state, buttons},
                              4 * basics::grid));
    setMinimumWidth(720);
    SetAddress(QSettings().value("ledsAddress").toString());

    for (QComboBox* box : findChildren<QComboBox*>())
        connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &LedsDialog::Change);
    for (QSpinBox* box : findChildren<QSpinBox*>())
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &LedsDialog::Change);
    connect(gamma, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &LedsDialog::Change);
    connect(serpentine, &QCheckBox::toggled, this, &LedsDialog::Change);
    connect(host, &QLineEdit::textChanged, this, [this] {
        Stop();
        foundHost.clear();
        Refresh();
    });
    connect(start, &QPushButton::clicked, this, [this] {
        if (!IsRunning())
            return LookUp();
        Stop();
        Refresh();
    });
    connect(&steps, &QTimer::timeout, this, [this] {
        ++step;
        Show(picture);
    });
    connect(pattern, &QPushButton::toggled, this, [this](bool on) {
        step = 0;
        if (on)
            steps.start();
        else
            steps.stop();
        if (on && !lights && start->isEnabled())
            LookUp();
        Show(picture);
    });
    // A closed window has no other way to stop.
    connect(this, &QDialog::finished, this, &LedsDialog::Stop);
    Refresh();
}

QFormLayout* LedsDialog::MakeForm()
{
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(3 * basics::grid);
    form->setVerticalSpacing(2 * basics::grid);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    Fill(protocol, {{"DDP", "ddp"}, {"E1.31 (sACN)", "sacn"}, {"Art-Net", "artnet"}});
    protocol->setAccessibleName(tr("Controller"));
    host->setPlaceholderText(tr("Name or address, such as wall.local"));
    host->setAccessibleName(tr("Controller's name or address"));
    form->addRow(tr("Controller"), basics::Arrange(Qt::Horizontal, basics::grid, {protocol, host}));
    SetNumber(left, tr("Left edge"), 0, display.width() - 1, 0, tr(" px"));
    SetNumber(top, tr("Top edge"), 0, display.height() - 1, 0, tr(" px"));
    SetNumber(columns, tr("Width"), 1, display.width(), display.width(), tr(" px"));
    SetNumber(rows, tr("Height"), 1, display.height(), display.height(), tr(" px"));
    auto* size = new QLabel(tr("size"), this);
    form->addRow(tr("Part of the display"),
                 basics::Arrange(Qt::Horizontal, basics::grid, {left, top, size, columns, rows}));
    Fill(direction, {{tr("Rows"), "rows"}, {tr("Columns"), "columns"}});
    direction->setAccessibleName(tr("LEDs run along"));
    serpentine->setToolTip(tr("Every other row or column runs in the opposite direction"));
    form->addRow(direction->accessibleName(),
                 basics::Arrange(Qt::Horizontal, basics::grid, {direction, serpentine}));
    Fill(corner, {{tr("Top left"), "top-left"},
                  {tr("Top right"), "top-right"},
                  {tr("Bottom left"), "bottom-left"},
                  {tr("Bottom right"), "bottom-right"}});
    form->addRow(tr("First LED"), corner);
    for (int degrees : {0, 90, 180, 270})
        turn->addItem(tr("%1°").arg(degrees), QStringLiteral("rotate-%1").arg(degrees));
    form->addRow(tr("Rotation"), turn);
    for (const char* letters : {"RGB", "RBG", "GRB", "GBR", "BRG", "BGR"})
        order->addItem(QLatin1String(letters), "color-order=" + QLatin1String(letters));
    form->addRow(tr("Color order"), order);
    gamma->setRange(1, 4);
    gamma->setSingleStep(0.1);
    gamma->setDecimals(1);
    gamma->setSpecialValueText(tr("Off"));
    form->addRow(tr("Gamma"), gamma);
    SetNumber(brightness, QString(), 0, 100, 100, tr(" %"));
    form->addRow(tr("Brightness"), brightness);
    SetNumber(universe, QString(), 0, 63999, 1, QString());
    form->addRow(tr("First universe"), universe);
    return form;
}

QString LedsDialog::Address() const
{
    const QRect rect(left->value(), top->value(), columns->value(), rows->value());
    QStringList words;
    if (rect != QRect(QPoint(0, 0), display))
        words.append(QStringLiteral("%1,%2,%3x%4")
                         .arg(rect.x())
                         .arg(rect.y())
                         .arg(rect.width())
                         .arg(rect.height()));
    if (serpentine->isChecked())
        words.append("serpentine");
    for (const QComboBox* box : {direction, corner, turn, order}) {
        if (box->currentIndex() > 0)
            words.append(box->currentData().toString());
    }
    if (gamma->value() > 1)
        words.append(QStringLiteral("gamma=%1").arg(gamma->value()));
    if (brightness->value() < 100)
        words.append(QStringLiteral("brightness=%1").arg(brightness->value()));
    if (protocol->currentIndex() > 0 && universe->value() != 1)
        words.append(QStringLiteral("universe=%1").arg(universe->value()));
    return QStringLiteral("%1://%2%3%4")
        .arg(protocol->currentData().toString(), host->text().trimmed(),
             QLatin1String(words.isEmpty() ? "" : "/"), words.join(QLatin1Char(',')));
}

void LedsDialog::SetAddress(const QString& address)
{
    lights::Controller controller;
    QString error;
    if (!lights::ReadAddress(&controller, address, &error) ||
        !lights::FitToDisplay(&controller, display, &error))
        return;
    const lights::Wiring& way = controller.wiring;
    protocol->setCurrentIndex(int(controller.protocol));
    host->setText(address.section(QLatin1Char('/'), 2, 2).section(QLatin1Char(','), 0, 0));
    left->setValue(controller.rect.x());
    top->setValue(controller.rect.y());
    columns->setValue(controller.rect.width());
    rows->setValue(controller.rect.height());
    direction->setCurrentIndex(way.columns ? 1 : 0);
    serpentine->setChecked(way.serpentine);
    corner->setCurrentIndex((way.right ? 1 : 0) + (way.bottom ? 2 : 0));
    turn->setCurrentIndex(way.turns);
    order->setCurrentText(controller.order);
    gamma->setValue(controller.gamma);
    brightness->setValue(controller.brightness);
    universe->setValue(controller.universe);
}

lights::Controller LedsDialog::ReadFields(QString* error) const
{
    lights::Controller controller;
    if (lights::ReadAddress(&controller, Address(), error))
        lights::FitToDisplay(&controller, display, error);
    return controller;
}

/** Applies settings at once, so that the test pattern shows their effect. */
void LedsDialog::Change()
{
    Refresh();
    if (lights)
        Begin();
}

void LedsDialog::Refresh()
{
    QString error;
    const lights::Controller controller = ReadFields(&error);
    if (!error.isEmpty())
        Stop();
    const bool isDdp = protocol->currentIndex() == 0;
    universe->setEnabled(!isDdp);
    universe->setToolTip(isDdp ? tr("DDP has no universes") : QString());
    wiring->setPixmap(WiringPicture(QSize(columns->value(), rows->value()), controller.wiring,
                                    palette().color(QPalette::Highlight), devicePixelRatioF()));
    command->setText(
        QStringLiteral("animtext play %1 --to %2")
            .arg(scenePath.isEmpty() ? tr("sign.json") : QFileInfo(scenePath).fileName(),
                 Address()));
    command->setCursorPosition(0);
    start->setEnabled(error.isEmpty());
    start->setText(IsRunning() ? tr("Stop") : tr("Start"));
    if (host->text().isEmpty() && !error.isEmpty())
        error = tr("Enter the controller's name or address.");
    else if (host->text().isEmpty())
        error = tr("No controller given: sends to the E1.31 multicast groups.");
    if (!IsRunning())
        state->setText(error);
}

/** Resolves the controller's name without blocking the window. */
void LedsDialog::LookUp()
{
    QString error;
    const QString name = ReadFields(&error).host;
    if (name.isEmpty() || !QHostAddress(name).isNull()) {
        Begin();
        return;
    }
    state->setText(tr("Looking up %1…").arg(name));
    lookUp = QHostInfo::lookupHost(name, this, [this, name](const QHostInfo& found) {
        if (found.lookupId() != lookUp)
            return;
        lookUp = -1;
        if (found.addresses().isEmpty()) {
            Refresh();
            state->setText(tr("%1 was not found: %2").arg(name, found.errorString()));
            return;
        }
        foundHost = lights::PreferredAddress(found).toString();
        Begin();
    });
    Refresh();
}

void LedsDialog::Begin()
{
    QString error;
    lights::Controller controller = ReadFields(&error);
    if (!foundHost.isEmpty())
        controller.host = foundHost;
    if (lights)
        lights->SetKeeps(true); // no dark gap: the next picture follows at once
    lights = std::make_unique<lights::Lights>();
    connect(lights.get(), &lights::Lights::Reported, state, &QLabel::setText);
    if (!lights->Add(controller, display, &error)) {
        Stop();
        Refresh();
        state->setText(error);
        return;
    }
    QSettings().setValue("ledsAddress", Address());
    state->setText(tr("The LEDs show what the studio shows."));
    Refresh();
    Show(picture);
}

void LedsDialog::Stop()
{
    if (lookUp >= 0)
        QHostInfo::abortHostLookup(lookUp);
    lookUp = -1;
    if (!lights)
        return;
    lights.reset();
    pattern->setChecked(false);
}

void LedsDialog::Show(const QImage& shown)
{
    picture = shown;
    if (!lights)
        return;
    if (pattern->isChecked())
        lights->Show(lights::TestPattern(QString(), display, step));
    else if (!picture.isNull())
        lights->Show(picture);
}

} // namespace AnimText::studio::window::display
