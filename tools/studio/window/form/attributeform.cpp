#include "studio/window/form/attributeform.h"

#include "studio/window/basics/style.h"
#include "studio/window/motion/thumbnails.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QColorDialog>
#include <QCoreApplication>
#include <QFileDialog>
#include <QSet>
#include <QStyledItemDelegate>
#include <QToolButton>

namespace AnimText::studio::window::form {
namespace {

constexpr int neonBorders = 28; // drawn styles; those above show the user's picture
constexpr int neonRowsInSight = 8;
constexpr QSize neonIcon{64, 16}; // in the closed field

/** Whether the motion picker, the text field or the layout handles the attribute. */
bool IsElsewhere(const scene::Attribute& attribute)
{
    static const QSet<QByteArray> elsewhere{"Text",       "PathData",        "DescentVector",
                                            "EffectType", "AnimationEffect", "ContinueStyle",
                                            "type"};
    const bool isLaidOut = attribute.home == scene::Home::TextAttribute ||
                           attribute.home == scene::Home::TextWidth ||
                           attribute.home == scene::Home::TextHeight;
    return isLaidOut || elsewhere.contains(attribute.key);
}

QString UnitOf(const scene::Attribute& attribute)
{
    const QByteArray unit = attribute.unit;
    return unit == "units of 100 ms" ? AttributeForm::tr("s")
           : unit == "pixels"        ? AttributeForm::tr("px")
           : unit == "times"         ? AttributeForm::tr("×")
           : unit == "steps"         ? AttributeForm::tr("of %1").arg(attribute.most)
                                     : scene::Translated(attribute.unit);
}

template <typename Value>
TextSetting SettingOf(const QString& name, Value layout::Setting::*member)
{
    return {name, QString(),
            [member](const model::SignText& text) { return int(text.source.*member); },
            [member](model::SignText* text, int number) { text->source.*member = Value(number); }};
}

} // namespace

QString KeyOf(const validate::Finding& finding)
{
    return finding.place.section(QLatin1Char('.'), -1).section(QLatin1Char('['), 0, 0);
}

AttributeForm::AttributeForm()
{
    table->setContentsMargins(0, 0, 0, 0);
    table->setSpacing(basics::grid);
    table->setColumnMinimumWidth(0, basics::LabelWidth(font()));
    table->setColumnMinimumWidth(1, basics::markWidth);
    table->setColumnStretch(2, 1);
}

void AttributeForm::AddSection(const QString& heading, QWidget* widget)
{
    auto* label = new QLabel(heading, this);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    if (table->count() > 0)
        table->setRowMinimumHeight(table->rowCount(), 3 * basics::grid);
    table->addWidget(label, table->rowCount(), 0, 1, 3);
    if (widget)
        table->addWidget(widget, table->rowCount(), 0, 1, 3);
}

void AttributeForm::AddAttributes(scene::Group group, motion::Thumbnails* thumbnails)
{
    for (const scene::Attribute& attribute : scene::Attributes()) {
        if (attribute.group != group || IsElsewhere(attribute))
            continue;
        const TextSetting setting{scene::Translated(attribute.name), QLatin1String(attribute.key),
                                  [&attribute](const model::SignText& text) {
                                      return scene::NumberOf(text.node, attribute);
                                  },
                                  [&attribute](model::SignText* text, int number) {
                                      scene::SetNumber(&text->node, attribute, number);
                                  }};
        AddRow(setting, FieldOf(attribute, setting, thumbnails),
               [&attribute](const model::SignText& text) {
                   QString why;
                   scene::IsUsed(attribute, text.node, &why);
                   return why;
               });
        rows.last().meaning =
            QStringLiteral("%1 (%2)").arg(scene::Translated(attribute.meaning), setting.key);
    }
}

QWidget* AttributeForm::FieldOf(const scene::Attribute& attribute, const TextSetting& setting,
                                motion::Thumbnails* thumbnails)
{
    if (setting.key == QLatin1String("neonEffect"))
        return MakeNeon(setting, thumbnails);
    switch (attribute.kind) {
    case scene::ValueKind::Pair: return MakePair(attribute, setting);
    case scene::ValueKind::File: return MakeFile(setting);
    case scene::ValueKind::Color: return MakeColor(setting);
    case scene::ValueKind::Choice:
        return MakeChoice(setting, scene::ChoicesOf(attribute), attribute.least);
    case scene::ValueKind::Flag: return MakeFlag(setting, QString());
    default: // the file has tenths of seconds, which are shown as seconds
        return MakeNumber(setting, UnitOf(attribute), attribute.least,
                          qMin(attribute.most, 1000000),
                          qstrcmp(attribute.unit, "units of 100 ms") == 0 ? 10 : 1);
    }
}

void AttributeForm::AddLayout()
{
    // The choices are in the order of the enumerations.
    const TextSetting fit = SettingOf(tr("Size"), &author::TextSource::fit);
    AddRow(fit,
           MakeChoice(fit, {tr("Sizes as set"), tr("Fit height"), tr("Fit height and width")}));
    const TextSetting align = SettingOf(tr("Horizontal"), &author::TextSource::align);
    AddRow(align, MakeChoice(align, {tr("Reading start"), tr("Left"), tr("Center"), tr("Right")}),
           [](const model::SignText& text) {
               return scene::MotionOf(text.node).IsSideways()
                          ? tr("Text that scrolls sideways cannot be aligned.")
                          : QString();
           });
    const TextSetting valign = SettingOf(tr("Vertical"), &author::TextSource::valign);
    AddRow(valign, MakeChoice(valign, {tr("Top"), tr("Middle"), tr("Bottom")}));
    const TextSetting padding = SettingOf(tr("Padding"), &author::TextSource::padding);
    auto* pixels = MakeNumber(padding, tr("px"), 0, 1000);
    fills.prepend([pixels](const model::SignText& text) {
        const int side = qMin(text.node.size.width(), text.node.size.height());
        pixels->SetLimits(0, qMax(0, (side - 1) / 2));
    });
    AddRow(padding, pixels);
    const TextSetting pages = SettingOf(tr("Pages"), &author::TextSource::keepsWords);
    AddRow(pages, MakeFlag(pages, tr("Break between words")), [](const model::SignText& text) {
        return scene::MotionOf(text.node).IsScroll() ? tr("Scrolling text has no pages.")
                                                     : QString();
    });
}

void AttributeForm::AddRow(const TextSetting& setting, QWidget* field, const Unused& unused)
{
    auto* label = new QLabel(setting.name, this);
    label->setBuddy(field);
    auto* mark = new QLabel(this);
    field->setAccessibleName(setting.name);
    const int row = table->rowCount();
    table->addWidget(label, row, 0);
    table->addWidget(mark, row, 1);
    table->addWidget(field, row, 2);
    rows.append({setting.key, QString(), label, mark, field, unused});
}

basics::NumberField* AttributeForm::MakeNumber(const TextSetting& setting, const QString& unit,
                                               int least, int most, int perUnit)
{
    auto* number = new basics::NumberField(this);
    number->SetUnit(unit, perUnit);
    number->SetLimits(least, most);
    fills.append([=](const model::SignText& text) { number->ShowNumber(setting.read(text)); });
    const QString merge = setting.name + setting.key + QLatin1Char(' ');
    connect(number, &basics::NumberField::NumberChanged, this, [=](int value, int gesture) {
        Tell(setting, value, merge + QString::number(gesture));
    });
    return number;
}

QWidget* AttributeForm::MakeChoice(const TextSetting& setting, const QStringList& choices,
                                   int least)
{
    auto* box = new QComboBox(this);
    box->addItems(choices);
    basics::LetShrink(box);
    fills.append(
        [=](const model::SignText& text) { box->setCurrentIndex(setting.read(text) - least); });
    connect(box, qOverload<int>(&QComboBox::activated), this,
            [=](int index) { Tell(setting, least + index); });
    return box;
}

QWidget* AttributeForm::MakeFlag(const TextSetting& setting, const QString& words)
{
    auto* box = new QCheckBox(words, this);
    fills.append([=](const model::SignText& text) { box->setChecked(setting.read(text) == 1); });
    connect(box, &QCheckBox::clicked, this, [=](bool on) { Tell(setting, on ? 1 : 0); });
    return box;
}

QWidget* AttributeForm::MakeNeon(const TextSetting& setting, motion::Thumbnails* thumbnails)
{
    auto* box = new QComboBox(this);
    for (int style = 1; style <= neonBorders; ++style) {
        box->addItem(tr("Style %1").arg(style), style);
        // Keeps the size when the picture arrives.
        box->setItemData(style - 1, motion::thumbnailSize + QSize(0, basics::grid),
                         Qt::SizeHintRole);
    }
    box->addItem(tr("Picture"), neonBorders + 1);
    box->setMaxVisibleItems(neonRowsInSight);
    box->setIconSize(neonIcon);
    box->setItemDelegate(new QStyledItemDelegate(box)); // it uses the list's icon size
    basics::LetShrink(box);
    box->view()->setIconSize(motion::thumbnailSize);
    box->view()->setMinimumWidth(motion::thumbnailSize.width() +
                                 8 * basics::grid + // wider than the field
                                 fontMetrics().horizontalAdvance(box->itemText(neonBorders - 1)) +
                                 style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    thumbnails->Animate(box->view(), motion::neonThumbnails + 1, neonBorders);
    fills.append([=](const model::SignText& text) {
        const int style = setting.read(text);
        box->setCurrentIndex(qBound(0, style - 1, neonBorders)); // 0 is the first style, too
        // Every number above the borders means a picture; choosing it again keeps the number.
        box->setItemData(neonBorders, qMax(neonBorders + 1, style));
    });
    connect(box, qOverload<int>(&QComboBox::activated), this,
            [=] { Tell(setting, box->currentData().toInt()); });
    return box;
}

QWidget* AttributeForm::MakePair(const scene::Attribute& attribute, const TextSetting& setting)
{
    auto* pair = new QWidget(this);
    auto* line = basics::Arrange(Qt::Horizontal, basics::grid, {});
    pair->setLayout(line);
    const auto add = [&](const QString& name, const QString& prefix,
                         int& (*side)(scene::SceneNode & node)) {
        const TextSetting own{
            setting.name, prefix, // x and y are two undo steps

            [side](model::SignText text) { return side(text.node); },
            [side](model::SignText* text, int number) { side(text->node) = number; }};
        auto* number = MakeNumber(own, UnitOf(attribute), attribute.least, attribute.most);
        number->setAccessibleName(name);
        number->setToolTip(name);
        number->setPrefix(prefix);
        line->addWidget(number);
    };
    if (setting.key == QLatin1String("size")) {
        add(tr("Width"), tr("w "), [](scene::SceneNode& n) -> int& { return n.size.rwidth(); });
        add(tr("Height"), tr("h "), [](scene::SceneNode& n) -> int& { return n.size.rheight(); });
    } else {
        add(tr("Left"), tr("x "), [](scene::SceneNode& n) -> int& { return n.pos.rx(); });
        add(tr("Top"), tr("y "), [](scene::SceneNode& n) -> int& { return n.pos.ry(); });
    }
    pair->setFocusProxy(line->itemAt(0)->widget());
    return pair;
}

QWidget* AttributeForm::MakeFile(const TextSetting& setting)
{
    auto* button = new QToolButton(this);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setAutoRaise(true);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    fills.append([button, key = setting.key](const model::SignText& text) {
        const QString file = text.node.files.value(key);
        button->setText(file.isEmpty() ? tr("Choose…") : QFileInfo(file).fileName());
    });
    connect(button, &QToolButton::clicked, this, [=] {
        const QString file = QFileDialog::getOpenFileName(
            this, setting.name, QString(),
            tr("Pictures (*.png *.jpg *.jpeg *.gif *.bmp);;All files (*)"));
        if (!file.isEmpty())
            emit Edited(setting.name, QString(),
                        [=](model::SignText* text) { text->node.files[setting.key] = file; });
    });
    return button;
}

QWidget* AttributeForm::MakeColor(const TextSetting& setting)
{
    auto* button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    fills.append([=](const model::SignText& text) {
        QPixmap pixmap(32, 16);
        const QColor color = QColor::fromRgb(QRgb(setting.read(text)));
        pixmap.fill(color);
        button->setIcon(pixmap);
        button->setText(color.name());
    });
    connect(button, &QToolButton::clicked, this, [=] {
        const QColor color = QColorDialog::getColor(QColor(button->text()), this);
        if (color.isValid())
            Tell(setting, int(color.rgb() & 0xFFFFFF));
    });
    return button;
}

void AttributeForm::Tell(const TextSetting& setting, int number, const QString& merge)
{
    emit Edited(setting.name, merge, [=](model::SignText* text) { setting.write(text, number); });
}

void AttributeForm::Show(const model::SignText& text)
{
    for (const auto& fill : fills)
        fill(text);
    for (const Row& row : rows) {
        const QString why = row.unused ? row.unused(text) : QString();
        // A setting that does not apply is dimmed, but can still be changed.
        QPalette colors = palette();
        for (QPalette::ColorRole role :
             {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            if (!why.isEmpty())
                colors.setColor(role, basics::Quiet(palette(), 0.55));
        }
        const QString words = (QStringList(row.meaning) << why).join(QLatin1Char('\n')).trimmed();
        for (QWidget* widget : {static_cast<QWidget*>(row.label), row.field}) {
            widget->setPalette(colors);
            widget->setToolTip(words);
        }
        row.field->setAccessibleDescription(why);
        // Tab skips it; a click still works.
        if (!row.field->focusProxy())
            row.field->setFocusPolicy(why.isEmpty() ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void AttributeForm::SetFindings(const QList<validate::Finding>& findings)
{
    for (const Row& row : rows) {
        QStringList words;
        for (const validate::Finding& finding : findings) {
            if (KeyOf(finding) == row.key)
                words.append(tr("Found %1, expected %2. %3")
                                 .arg(finding.found, finding.expected,
                                      QCoreApplication::translate("Rules", finding.GetRule().why)));
        }
        row.mark->setToolTip(words.join(QLatin1Char('\n')));
        row.mark->setPixmap(words.isEmpty() ? QPixmap()
                                            : basics::Icon("dialog-warning").pixmap(16, 16));
    }
}

} // namespace AnimText::studio::window::form
