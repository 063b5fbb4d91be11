/**
 * @file
 * Sends the studio's picture to LEDs.
 */
#ifndef ANIMTEXT_LEDSDIALOG_H
#define ANIMTEXT_LEDSDIALOG_H

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

namespace AnimText {

class WiringView;

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
    QComboBox* MakeChoice(const QList<QPair<QString, QString>>& choices);
    QSpinBox* MakeNumber(const QString& name, int least, int most, int value, const QString& unit);
    QFormLayout* MakeForm();
    Controller ReadFields(QString* error) const;
    void Change();
    void Refresh();
    void LookUp();
    void Begin(const QHostInfo& found);
    void Open(Controller controller);
    void Stop();

    const QSize display;
    const QString scenePath;
    QImage picture;
    QTimer steps; // ticks of the test pattern
    int step = 0;
    int lookUp = -1;   // id of the running name lookup; negative for none
    QString foundHost; // address of the host's name
    std::unique_ptr<Lights> lights;

    QComboBox* protocol;
    QLineEdit* host;
    QSpinBox* left;
    QSpinBox* top;
    QSpinBox* columns;
    QSpinBox* rows;
    QComboBox* direction;
    QCheckBox* serpentine;
    QComboBox* corner;
    QComboBox* turn;
    QComboBox* order;
    QDoubleSpinBox* gamma;
    QSpinBox* brightness;
    QSpinBox* universe;
    WiringView* wiring;
    QLineEdit* command;
    QLabel* state;
    QPushButton* pattern;
    QPushButton* start;
};

} // namespace AnimText

#endif
