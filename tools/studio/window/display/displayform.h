/**
 * @file
 * The size of the display and how its layers are blended.
 */
#pragma once

#include "studio/window/basics/numberfield.h"

#include <QCheckBox>
#include <QComboBox>
#include <QWidget>

namespace AnimText::studio::window::display {

class DisplayForm : public QWidget
{
    Q_OBJECT

public:
    explicit DisplayForm(QWidget* parent = nullptr);

    void Show(const QSize& size, bool alphaBlend);
    QSize Size() const { return {width->Number(), height->Number()}; }
    bool AlphaBlend() const { return alpha->isChecked(); }
    /** Common panel sizes; the first entry is any other size. */
    QComboBox* Presets() const { return presets; }

signals:
    /** @param gesture identifies the changes of one drag; negative for a single change */
    void Edited(int gesture);

private:
    void Refresh();

    QComboBox* presets = new QComboBox(this);
    basics::NumberField* width = new basics::NumberField(this);
    basics::NumberField* height = new basics::NumberField(this);
    QCheckBox* alpha = new QCheckBox(tr("Alpha blending"), this);
};

} // namespace AnimText::studio::window::display
