#include "studio/window/form/layoutform.h"

#include "studio/window/basics/style.h"

#include <QFormLayout>
#include <QLabel>

namespace AnimText {

LayoutForm::LayoutForm(QWidget* parent)
    : QWidget(parent)
    , align(new QComboBox(this))
    , valign(new QComboBox(this))
    , fit(new QComboBox(this))
    , padding(new NumberField(this))
    , keepsWords(new QCheckBox(tr("Break pages between words"), this))
{
    // The order of the enumerations.
    align->addItems({tr("Reading start"), tr("Left"), tr("Center"), tr("Right")});
    valign->addItems({tr("Top"), tr("Middle"), tr("Bottom")});
    fit->addItems({tr("Sizes as set"), tr("Fit height"), tr("Fit height and width")});
    for (QComboBox* box : {fit, align, valign})
        LetShrink(box);
    padding->SetUnit(tr("px"));
    padding->SetLimits(0, 1000);

    auto* layout = new QFormLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(2 * grid + markWidth);
    layout->setVerticalSpacing(grid);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->addRow(tr("Size"), fit);
    layout->addRow(tr("Horizontal"), align);
    layout->addRow(tr("Vertical"), valign);
    layout->addRow(tr("Padding"), padding);
    layout->addRow(keepsWords);

    for (QWidget* field : QList<QWidget*>{fit, align, valign, padding})
        layout->labelForField(field)->setMinimumWidth(LabelWidth(font()));

    const auto tell = [this](QWidget* field, const QString& merge,
                             const std::function<void(TextSource*)>& set) {
        emit Edited(field->accessibleName(), merge, [set](SignText* text) { set(&text->source); });
    };
    fit->setAccessibleName(tr("Size"));
    align->setAccessibleName(tr("Horizontal"));
    valign->setAccessibleName(tr("Vertical"));
    padding->setAccessibleName(tr("Padding"));
    keepsWords->setAccessibleName(tr("Pages"));
    connect(fit, qOverload<int>(&QComboBox::activated), this, [=](int index) {
        tell(fit, QString(), [index](TextSource* source) { source->fit = Fit(index); });
    });
    connect(align, qOverload<int>(&QComboBox::activated), this, [=](int index) {
        tell(align, QString(), [index](TextSource* source) { source->align = Align(index); });
    });
    connect(valign, qOverload<int>(&QComboBox::activated), this, [=](int index) {
        tell(valign, QString(), [index](TextSource* source) { source->valign = VAlign(index); });
    });
    connect(padding, &NumberField::NumberChanged, this, [=](int pixels, int gesture) {
        tell(padding, QStringLiteral("padding %1").arg(gesture),
             [pixels](TextSource* source) { source->padding = pixels; });
    });
    connect(keepsWords, &QCheckBox::clicked, this, [=](bool on) {
        tell(keepsWords, QString(), [on](TextSource* source) { source->keepsWords = on; });
    });
}

void LayoutForm::Show(const SignText& text)
{
    const QSignalBlocker block[]{QSignalBlocker(fit), QSignalBlocker(align), QSignalBlocker(valign),
                                 QSignalBlocker(keepsWords)};
    fit->setCurrentIndex(int(text.source.fit));
    align->setCurrentIndex(int(text.source.align));
    valign->setCurrentIndex(int(text.source.valign));
    padding->ShowNumber(text.source.padding);
    keepsWords->setChecked(text.source.keepsWords);

    const bool isLine = MotionOf(text.node).IsSideways();
    align->setEnabled(!isLine);
    align->setToolTip(isLine ? tr("Text that scrolls sideways cannot be aligned.") : QString());
    keepsWords->setEnabled(!MotionOf(text.node).IsScroll());
    keepsWords->setToolTip(MotionOf(text.node).IsScroll() ? tr("Scrolling text has no pages.")
                                                          : QString());
    padding->setMaximum(qMax(0, (qMin(text.node.size.width(), text.node.size.height()) - 1) / 2));
}

} // namespace AnimText
