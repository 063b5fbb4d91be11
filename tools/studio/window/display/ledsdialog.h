/**
 * @file
 * Sends the studio's picture to LEDs.
 */
#pragma once

#include "lights/lights.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHostInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace AnimText::studio::window::display {

/** Sends every picture of the studio's display to a controller's LEDs. */
class LedsDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param scenePath the sign's file, for the command; empty if it is not saved */
    LedsDialog(QSize display, const QString& scenePath, QWidget* parent = nullptr);

    /** The settings as an address for animtext play --to. */
    QString Address() const;
    void SetAddress(const QString& address);

    QString Command() const { return command->text(); }
    QString State() const { return state->text(); }
    QPushButton* StartButton() const { return start; }
    QPushButton* PatternButton() const { return pattern; }

public slots:
    /** Sends @p picture while the LEDs follow. */
    void Show(const QImage& picture);

private:
    QFormLayout* MakeForm();
    lights::Controller ReadFields(QString* error) const;
    void Change();
    void Refresh();
    void LookUp();
    void Begin();
    void Stop();
    bool IsRunning() const { return lights || lookUp >= 0; }

    const QSize display;
    const QString scenePath;
    QImage picture;
    QTimer steps; // ticks of the test pattern
    int step = 0;
    int lookUp = -1;   // id of the running name lookup; negative for none
    QString foundHost; // address of the host's name
    std::unique_ptr<lights::Lights> lights;

    // In the order of the Tab key.
    QComboBox* protocol = new QComboBox(this);
    QLineEdit* host = new QLineEdit(this);
    QSpinBox* left = new QSpinBox(this);
    QSpinBox* top = new QSpinBox(this);
    QSpinBox* columns = new QSpinBox(this);
    QSpinBox* rows = new QSpinBox(this);
    QComboBox* direction = new QComboBox(this);
    QCheckBox* serpentine = new QCheckBox(tr("Serpentine"), this);
    QComboBox* corner = new QComboBox(this);
    QComboBox* turn = new QComboBox(this);
    QComboBox* order = new QComboBox(this);
    QDoubleSpinBox* gamma = new QDoubleSpinBox(this);
    QSpinBox* brightness = new QSpinBox(this);
    QSpinBox* universe = new QSpinBox(this);
    QLabel* wiring = new QLabel(this); // a picture of it
    QLineEdit* command = new QLineEdit(this);
    QLabel* state = new QLabel(this);
    QPushButton* pattern = new QPushButton(tr("Show test pattern"), this);
    QPushButton* start = new QPushButton(this);
};

} // namespace AnimText::studio::window::display
