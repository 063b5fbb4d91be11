/**
 * @file
 * Shows on LEDs what the studio shows.
 */
#ifndef ANIMTEXT_LEDSDIALOG_H
#define ANIMTEXT_LEDSDIALOG_H

#include "lights/lights.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QHostInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace AnimText {

class WiringView;

/** Lets the LEDs of a controller follow the studio's display: playing, scrubbed, edited. */
class LedsDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param scenePath the file of the sign, for the command; empty when it has none yet */
    LedsDialog(QSize display, const QString& scenePath, QWidget* parent = nullptr);

    /** The controller as animtext play --to takes it; the fields show what it sets. */
    QString Address() const;
    void SetAddress(const QString& address);

    QString Command() const { return command->text(); }
    QString State() const { return state->text(); }
    QPushButton* StartButton() const { return start; }
    QPushButton* PatternButton() const { return pattern; }

public slots:
    /** What the studio shows from now on. */
    void Show(const QImage& picture);

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void Arrange();
    Controller ReadFields(QString* error) const;
    void Change();
    void Refresh();
    void LookUp();
    void Begin(const QHostInfo& found);
    void Open(Controller controller);
    void Stop();
    void Step();

    const QSize display;
    const QString scenePath;
    QImage picture;
    QTimer steps; // of the test pattern
    int step = 0;
    int lookUp = -1;   // the request that is under way; negative: none
    QString foundHost; // the address that the host's name has
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
