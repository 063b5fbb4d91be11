/**
 * @file
 * How a text is laid out in its area: size, alignment, padding, page breaks.
 */
#ifndef ANIMTEXT_LAYOUTFORM_H
#define ANIMTEXT_LAYOUTFORM_H

#include "studio/window/basics/numberfield.h"
#include "studio/window/form/attributeform.h"

#include <QCheckBox>
#include <QComboBox>

namespace AnimText {

class LayoutForm : public QWidget
{
    Q_OBJECT

public:
    explicit LayoutForm(QWidget* parent = nullptr);

    void Show(const SignText& text);

signals:
    void Edited(const QString& what, const QString& merge, const AnimText::TextChange& change);

private:
    QComboBox* align;
    QComboBox* valign;
    QComboBox* fit;
    NumberField* padding;
    QCheckBox* keepsWords;
};

} // namespace AnimText

#endif
