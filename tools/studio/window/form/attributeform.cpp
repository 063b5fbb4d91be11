#include "studio/window/form/attributeform.h"

#include "studio/window/basics/numberfield.h"
#include "studio/window/basics/style.h"
#include "studio/window/form/neonbox.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QLineEdit>

namespace AnimText {
namespace {

/** Whether the motion picker, the text field or the layout handles the attribute. */
bool IsElsewhere(const Attribute& attribute)
{
    static const QStringList elsewhere{QStringLiteral("Text"),
                                       QStringLiteral("PathData"),
                                       QStringLiteral("DescentVector"),
                                       QStringLiteral("EffectType"),
                                       QStringLiteral("AnimationEffect"),
                                       QStringLiteral("ContinueStyle"),
                                       QStringLiteral("type")};
    const bool isLaidOut = attribute.home == Home::TextAttribute ||
                           attribute.home == Home::TextWidth || attribute.home == Home::TextHeight;
    return isLaidOut || elsewhere.contains(QLatin1String(attribute.key));
}

/** Whether the file has tenths of seconds, which are shown as seconds. */
bool IsTenths(const Attribute& attribute)
{
    return QLatin1String(attribute.unit) == QLatin1String("units of 100 ms");
}

QString UnitOf(const Attribute& attribute)
{
    if (IsTenths(attribute))
        return AttributeForm::tr("s");
    if (QLatin1String(attribute.unit) == QLatin1String("pixels"))
        return AttributeForm::tr("px");
    if (QLatin1String(attribute.unit) == QLatin1String("times"))
        return AttributeForm::tr("×");
    if (QLatin1String(attribute.unit) == QLatin1String("steps"))
        return AttributeForm::tr("of %1").arg(attribute.most);
    return Translated(attribute.unit);
}

} // namespace

AttributeForm::AttributeForm(Group group, Thumbnails* thumbnails, QWidget* parent)
    : QWidget(parent)
    , thumbnails(thumbnails)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(grid);
    layout->setVerticalSpacing(grid);
    layout->setColumnMinimumWidth(0, LabelWidth(font()));
    layout->setColumnStretch(2, 1);
    for (const Attribute& attribute : Attributes()) {
        if (attribute.group == group && !IsElsewhere(attribute))
            AddField(attribute, layout);
    }
}

void AttributeForm::AddField(const Attribute& attribute, QGridLayout* layout)
{
    Field field;
    field.attribute = &attribute;
    field.label = new QLabel(Translated(attribute.name), this);
    field.mark = new QLabel(this);
    field.mark->setFixedWidth(markWidth);
    field.widget = MakeWidget(attribute, &field);
    field.widget->setAccessibleName(Translated(attribute.name));
    field.label->setBuddy(field.widget);
    const int row = layout->rowCount();
    layout->addWidget(field.label, row, 0);
    layout->addWidget(field.mark, row, 1);
    layout->addWidget(field.widget, row, 2);
    fields.append(field);
}

QWidget* AttributeForm::MakeWidget(const Attribute& attribute, Field* field)
{
    if (QLatin1String(attribute.key) == QLatin1String("neonEffect"))
        return MakeNeon(attribute, field);
    switch (attribute.kind) {
    case ValueKind::Pair: return MakePair(attribute, field);
    case ValueKind::File: return MakeFile(attribute, field);
    case ValueKind::Color: return MakeColor(attribute, field);
    case ValueKind::Choice: {
        auto* box = new QComboBox(this);
        for (const QString& choice : ChoicesOf(attribute))
            box->addItem(choice);
        LetShrink(box);
        field->show = [box, &attribute](const SceneNode& node) {
            const QSignalBlocker blocker(box);
            box->setCurrentIndex(NumberOf(node, attribute) - attribute.least);
        };
        connect(box, qOverload<int>(&QComboBox::activated), this, [this, &attribute](int index) {
            Tell(attribute, -1, [&attribute, index](SceneNode* node) {
                SetNumber(node, attribute, attribute.least + index);
            });
        });
        return box;
    }
    case ValueKind::Flag: {
        auto* box = new QCheckBox(this);
        field->show = [box, &attribute](const SceneNode& node) {
            const QSignalBlocker blocker(box);
            box->setChecked(NumberOf(node, attribute) == 1);
        };
        connect(box, &QCheckBox::clicked, this, [this, &attribute](bool on) {
            Tell(attribute, -1,
                 [&attribute, on](SceneNode* node) { SetNumber(node, attribute, on ? 1 : 0); });
        });
        return box;
    }
    default: return MakeNumber(attribute, field);
    }
}

QWidget* AttributeForm::MakeNeon(const Attribute& attribute, Field* field)
{
    auto* box = new NeonBox(thumbnails, this);
    field->show = [box, &attribute](const SceneNode& node) {
        box->ShowStyle(NumberOf(node, attribute));
    };
    connect(box, &NeonBox::Chosen, this, [this, &attribute](int style) {
        Tell(attribute, -1,
             [&attribute, style](SceneNode* node) { SetNumber(node, attribute, style); });
    });
    return box;
}

QWidget* AttributeForm::MakeNumber(const Attribute& attribute, Field* field)
{
    auto* number = new NumberField(this);
    number->SetUnit(UnitOf(attribute), IsTenths(attribute) ? 10 : 1);
    number->SetLimits(attribute.least, qMin(attribute.most, 1000000));
    field->show = [number, &attribute](const SceneNode& node) {
        number->ShowNumber(NumberOf(node, attribute));
    };
    connect(number, &NumberField::NumberChanged, this, [this, &attribute](int value, int gesture) {
        Tell(attribute, gesture,
             [&attribute, value](SceneNode* node) { SetNumber(node, attribute, value); });
    });
    return number;
}

QWidget* AttributeForm::MakePair(const Attribute& attribute, Field* field)
{
    auto* pair = new QWidget(this);
    auto* layout = new QGridLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(grid);
    const bool isSize = QLatin1String(attribute.key) == QLatin1String("size");
    for (int i = 0; i < 2; ++i) {
        auto* number = new NumberField(pair);
        const QString side =
            isSize ? (i == 0 ? tr("Width") : tr("Height")) : (i == 0 ? tr("Left") : tr("Top"));
        number->setAccessibleName(side);
        number->setToolTip(side);
        number->setPrefix(isSize ? (i == 0 ? tr("w ") : tr("h ")) : (i == 0 ? tr("x ") : tr("y ")));
        number->SetUnit(UnitOf(attribute));
        number->SetLimits(attribute.least, attribute.most);
        layout->addWidget(number, 0, i);
        connect(number, &NumberField::NumberChanged, this,
                [this, &attribute, isSize, i](int value, int gesture) {
                    Tell(attribute, gesture, [isSize, i, value](SceneNode* node) {
                        if (isSize)
                            (i == 0 ? node->size.rwidth() : node->size.rheight()) = value;
                        else
                            (i == 0 ? node->pos.rx() : node->pos.ry()) = value;
                    });
                });
        const auto before = field->show;
        field->show = [before, number, isSize, i](const SceneNode& node) {
            if (before)
                before(node);
            const QPoint pos = isSize ? QPoint(node.size.width(), node.size.height()) : node.pos;
            number->ShowNumber(i == 0 ? pos.x() : pos.y());
        };
    }
    pair->setFocusProxy(layout->itemAt(0)->widget());
    return pair;
}

QWidget* AttributeForm::MakeFile(const Attribute& attribute, Field* field)
{
    const QString key = QLatin1String(attribute.key);
    auto* button = new QToolButton(this);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setAutoRaise(true);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    field->show = [button, key](const SceneNode& node) {
        const QString file = node.files.value(key);
        button->setText(file.isEmpty() ? tr("Choose…") : QFileInfo(file).fileName());
    };
    connect(button, &QToolButton::clicked, this, [this, &attribute, key] {
        const QString file = QFileDialog::getOpenFileName(
            this, Translated(attribute.name), QString(),
            tr("Pictures (*.png *.jpg *.jpeg *.gif *.bmp);;All files (*)"));
        if (!file.isEmpty())
            Tell(attribute, -1, [key, file](SceneNode* node) { node->files[key] = file; });
    });
    return button;
}

QWidget* AttributeForm::MakeColor(const Attribute& attribute, Field* field)
{
    auto* button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    field->show = [button, &attribute](const SceneNode& node) {
        QPixmap pixmap(32, 16);
        const QColor color = QColor::fromRgb(QRgb(NumberOf(node, attribute)));
        pixmap.fill(color);
        button->setIcon(pixmap);
        button->setText(color.name());
    };
    connect(button, &QToolButton::clicked, this, [this, &attribute] {
        auto* dialog = new QColorDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(
            dialog, &QColorDialog::colorSelected, this, [this, &attribute](const QColor& color) {
                const int number = int(color.rgb() & 0xFFFFFF);
                Tell(attribute, -1,
                     [&attribute, number](SceneNode* node) { SetNumber(node, attribute, number); });
            });
        dialog->show();
    });
    return button;
}

void AttributeForm::Tell(const Attribute& attribute, int gesture,
                         const std::function<void(SceneNode*)>& set)
{
    const QString merge =
        gesture < 0 ? QString()
                    : QStringLiteral("%1 %2").arg(QLatin1String(attribute.key)).arg(gesture);
    emit Edited(Translated(attribute.name), merge, [set](SignText* text) { set(&text->node); });
}

void AttributeForm::Show(const SignText& text)
{
    for (const Field& field : fields) {
        field.show(text.node);
        QString why;
        const bool isUsed = IsUsed(*field.attribute, text.node, &why);
        // A setting that does not apply is dimmed, but can still be changed.
        QPalette colors = palette();
        if (!isUsed) {
            const QColor quiet =
                Mixed(colors.color(QPalette::WindowText), colors.color(QPalette::Window), 0.55);
            colors.setColor(QPalette::WindowText, quiet);
            colors.setColor(QPalette::Text, quiet);
            colors.setColor(QPalette::ButtonText, quiet);
        }
        field.label->setPalette(colors);
        field.widget->setPalette(colors);
        const QString meaning = QStringLiteral("%1 (%2)").arg(Translated(field.attribute->meaning),
                                                              QLatin1String(field.attribute->key));
        const QString words = isUsed ? meaning : meaning + QLatin1Char('\n') + why;
        field.label->setToolTip(words);
        field.widget->setToolTip(words);
        field.widget->setAccessibleDescription(isUsed ? QString() : why);
        // Tab skips it; a click still works.
        if (!field.widget->focusProxy())
            field.widget->setFocusPolicy(isUsed ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void AttributeForm::SetFindings(const QList<Finding>& findings)
{
    for (const Field& field : fields) {
        QStringList words;
        for (const Finding& finding : findings) {
            const QString last =
                finding.place.section(QLatin1Char('.'), -1).section(QLatin1Char('['), 0, 0);
            if (last == QLatin1String(field.attribute->key))
                words.append(tr("Found %1, expected %2. %3")
                                 .arg(finding.found, finding.expected,
                                      QCoreApplication::translate("Rules", finding.GetRule().why)));
        }
        field.mark->setToolTip(words.join(QLatin1Char('\n')));
        field.mark->setPixmap(
            words.isEmpty() ? QPixmap() : Icon(QStringLiteral("dialog-warning")).pixmap(16, 16));
    }
}

} // namespace AnimText
