/**
 * @file
 * The size of the display and how its layers are blended.
 */
#ifndef ANIMTEXT_DISPLAYFORM_H
#define ANIMTEXT_DISPLAYFORM_H

#include "studio/window/basics/numberfield.h"

#include <QCheckBox>
#include <QComboBox>
#include <QWidget>

namespace AnimText {

class DisplayForm : public QWidget
{
    Q_OBJECT

public:
    explicit DisplayForm(QWidget* parent = nullptr);

    void Show(const QSize& size, bool alphaBlend);
    QSize Size() const { return {width->Number(), height->Number()}; }
    bool AlphaBlend() const { return alpha->isChecked(); }
    /** Panels that are common; the first choice stands for any other size. */
    QComboBox* Presets() const { return presets; }

signals:
    /** @param gesture the same number as long as one drag goes on; negative for a single step */
    void Edited(int gesture);

private:
    void Refresh();

    QComboBox* presets;
    NumberField* width;
    NumberField* height;
    QCheckBox* alpha;
};

} // namespace AnimText

#endif
