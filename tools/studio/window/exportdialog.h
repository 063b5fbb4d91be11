/**
 * @file
 * Where a film of the sign is made.
 */
#ifndef ANIMTEXT_EXPORTDIALOG_H
#define ANIMTEXT_EXPORTDIALOG_H

#include "studio/model/sign.h"
#include "studio/worker/exporting.h"
#include "studio/worker/scenefolder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>

namespace AnimText {

class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param scenePath the file of the sign, for the command; empty when it has none yet */
    ExportDialog(const Sign& sign, const QString& scenePath, const QString& plugin,
                 QWidget* parent = nullptr);

    /** Where the film goes; its ending chooses the format. */
    void SetOutput(const QString& path);
    QString Output() const { return output->text(); }
    QString Command() const { return command->text(); }
    QPushButton* StartButton() const { return start; }
    QPushButton* CloseButton() const { return close; }

signals:
    void Done(bool made);

public slots:
    void reject() override;

private:
    ExportWishes Wishes() const;
    void FormatChosen();
    void Refresh();
    void Say(const QString& words, bool isWarning);
    void Begin();
    void End(const QString& error, bool cancelled);
    void Browse();

    Sign sign;
    QString scenePath;
    QString plugin;
    SceneFolder folder;
    Export exporting;

    QComboBox* format;
    QLineEdit* output;
    QSpinBox* scale;
    QCheckBox* schedule;
    QCheckBox* transparent;
    QCheckBox* lossless;
    QLineEdit* command;
    QString replaced; // the file that may be replaced, as its user has said
    QProgressBar* progress;
    QLabel* state;
    QPushButton* start;
    QPushButton* close;
};

} // namespace AnimText

#endif
