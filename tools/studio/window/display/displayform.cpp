#include "studio/window/display/displayform.h"

#include "studio/window/basics/style.h"

#include <QFormLayout>

namespace AnimText::studio::window::display {
namespace {

constexpr int longestSide = 16384;   // pixels; what a scene file takes
constexpr int mostPixels = 67108864; // and of width times height
const QList<QSize> panels{{64, 32},  {128, 32},  {128, 64},  {192, 64},   {256, 64},
                          {384, 64}, {512, 64},  {512, 128}, {1024, 128}, {1920, 128},
                          {512, 96}, {256, 128}, {640, 360}, {1920, 1080}};

} // namespace

DisplayForm::DisplayForm(QWidget* parent)
    : QWidget(parent)
{
    presets->addItem(tr("Custom"));
    for (const QSize& panel : panels)
        presets->addItem(tr("%1 × %2").arg(panel.width()).arg(panel.height()), panel);
    alpha->setToolTip(tr("On: pictures have 32 bits per pixel, with transparency. Off: 24 bits per "
                         "pixel; black shows the layer below."));
    for (basics::NumberField* side : {width, height}) {
        side->SetUnit(tr("px"));
        side->SetLimits(1, longestSide);
        connect(side, &basics::NumberField::NumberChanged, this, [this](int, int gesture) {
            Refresh();
            emit Edited(gesture);
        });
    }
    auto* layout = new QFormLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(2 * basics::grid + basics::markWidth);
    layout->setVerticalSpacing(basics::grid);
    layout->addRow(tr("Panel"), presets);
    layout->addRow(tr("Width"), width);
    layout->addRow(tr("Height"), height);
    layout->addRow(QString(), alpha);
    layout->labelForField(presets)->setMinimumWidth(basics::LabelWidth(font()));
    connect(presets, qOverload<int>(&QComboBox::activated), this, [this] {
        const QSize size = presets->currentData().toSize();
        if (!size.isValid())
            return;
        Show(size, AlphaBlend());
        emit Edited(-1);
    });
    connect(alpha, &QCheckBox::clicked, this, [this] { emit Edited(-1); });
}

void DisplayForm::Show(const QSize& size, bool alphaBlend)
{
    width->ShowNumber(size.width());
    height->ShowNumber(size.height());
    alpha->setChecked(alphaBlend);
    Refresh();
}

void DisplayForm::Refresh()
{
    width->SetLimits(1, qMin(longestSide, mostPixels / height->Number()));
    height->SetLimits(1, qMin(longestSide, mostPixels / width->Number()));
    presets->setCurrentIndex(qMax(0, presets->findData(Size())));
}

} // namespace AnimText::studio::window::display
