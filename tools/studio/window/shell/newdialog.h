/**
 * @file
 * Asks for the display of a new sign.
 */
#ifndef ANIMTEXT_NEWDIALOG_H
#define ANIMTEXT_NEWDIALOG_H

#include "studio/window/display/displayform.h"

#include <QDialog>

namespace AnimText {

/** Starts with the values that were used last. */
class NewDialog : public QDialog
{
    Q_OBJECT

public:
    explicit NewDialog(QWidget* parent = nullptr);

    DisplayForm* Form() const { return form; }

public slots:
    void accept() override;

private:
    DisplayForm* form;
};

} // namespace AnimText

#endif
