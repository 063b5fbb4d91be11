/**
 * @file
 * All that can be set of one text, from its words to its background.
 */
#ifndef ANIMTEXT_INSPECTOR_H
#define ANIMTEXT_INSPECTOR_H

#include "studio/window/attributeform.h"
#include "studio/window/layoutform.h"
#include "studio/window/motionpicker.h"
#include "studio/window/textpanel.h"

#include <QScrollArea>

namespace AnimText {

class Inspector : public QScrollArea
{
    Q_OBJECT

public:
    explicit Inspector(Thumbnails* thumbnails, QWidget* parent = nullptr);

    /** Null for none. */
    void Show(const SignText* text);
    void SetFindings(const QList<Finding>& findings);
    TextPanel* Text() const { return text; }
    MotionPicker* Motions() const { return motions; }

signals:
    void Edited(const QString& what, const QString& merge, const AnimText::TextChange& change);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QLabel* Heading(const QString& words);

    TextPanel* text;
    MotionPicker* motions;
    LayoutForm* layoutForm;
    QList<AttributeForm*> forms;
};

} // namespace AnimText

#endif
