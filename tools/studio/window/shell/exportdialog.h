/**
 * @file
 * Where a film of the sign is made.
 */
#pragma once

#include "studio/model/sign.h"
#include "studio/window/time/playback.h"
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

namespace AnimText::studio::window::shell {

/** What is looked at in the window. */
struct ExportView
{
    const time::Playback* playback = nullptr; ///< null when it plays less than is exported
    double pitch = 1.5;                       ///< of lamps, in their diameters
    bool lamps = false;                       ///< whether they are shown
    bool schedule = false;
};

class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param scenePath the file of the sign, for the command; empty when it has none yet */
    ExportDialog(const model::Sign& sign, const QString& scenePath, const QString& plugin,
                 const ExportView& view = ExportView(), QWidget* parent = nullptr);

    /** Where the film goes; its ending chooses the format. */
    void SetOutput(const QString& path) { output->setText(path); }
    QString Command() const { return command->text(); }
    /** All, the range, or the picture that is looked at. */
    QComboBox* Extent() const { return extent; }
    QCheckBox* Lamps() const { return lamps; }
    QString Forecast() const { return forecast->text(); }
    QString State() const { return state->text(); }
    QPushButton* StartButton() const { return start; }
    QPushButton* CloseButton() const { return close; }

signals:
    void Done(bool made);

public slots:
    void reject() override;

private:
    worker::ExportSettings Settings() const;
    void FormatChosen();
    void ExtentChosen();
    void Refresh();
    QString ForecastOf(const worker::ExportSettings& settings) const;
    void Say(const QString& words, bool isWarning = false);
    void Begin();
    void ShowProgress(qint64 done, qint64 total, const QString& stage);
    void End(const QString& error, bool canceled);

    const model::Sign sign;
    const QString scenePath;
    const QString plugin;
    const ExportView view;
    worker::SceneFolder folder;
    worker::Export exporting;
    QString replaced; // the file that may be replaced, as its user has said

    QComboBox* extent = new QComboBox(this); // its data are the first and the last picture
    QComboBox* format = new QComboBox(this);
    QLineEdit* output = new QLineEdit(this);
    QSpinBox* scale = new QSpinBox(this);
    QCheckBox* lamps = new QCheckBox(tr("As round LEDs on black"), this);
    QCheckBox* schedule = new QCheckBox(tr("All pages, as the host times them"), this);
    QCheckBox* transparent = new QCheckBox(tr("Transparent background"), this);
    QCheckBox* lossless = new QCheckBox(tr("Lossless"), this);
    QLabel* forecast = new QLabel(this);
    QLineEdit* command = new QLineEdit(this);
    QProgressBar* progress = new QProgressBar(this);
    QLabel* state = new QLabel(this);
    QPushButton* close = new QPushButton(tr("Close"), this);
    QPushButton* start = new QPushButton(tr("Export"), this);
};

} // namespace AnimText::studio::window::shell
