/**
 * @file
 * All settings of one text, from its words to its background.
 */
#pragma once

#include "studio/window/display/displayform.h"
#include "studio/window/form/attributeform.h"
#include "studio/window/motion/motionpicker.h"
#include "studio/window/text/textpanel.h"

#include <QScrollArea>

namespace AnimText::studio::window::form {

class Inspector : public QScrollArea
{
    Q_OBJECT

public:
    explicit Inspector(motion::Thumbnails* thumbnails, QWidget* parent = nullptr);

    /** Shows the text @p shown of @p sign, or the display's settings if it is null. */
    void Show(const model::Sign& sign, const model::SignText* shown);
    void SetFindings(const QList<validate::Finding>& findings) { ofText->SetFindings(findings); }
    text::TextPanel* Text() const { return text; }
    motion::MotionPicker* Motions() const { return motions; }
    display::DisplayForm* Display() const { return displayForm; }

signals:
    void Edited(const QString& what, const QString& merge,
                const AnimText::studio::model::TextChange& change);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    AttributeForm* ofText = new AttributeForm; // settings of a text
    AttributeForm* ofDisplay =
        new AttributeForm; // settings of the display, while no text is selected
    display::DisplayForm* displayForm = new display::DisplayForm;
    text::TextPanel* text = new text::TextPanel;
    motion::MotionPicker* motions;
};

} // namespace AnimText::studio::window::form
