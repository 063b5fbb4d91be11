/**
 * @file
 * A number that can be typed, stepped with the wheel, and dragged sideways.
 */
#pragma once

#include <QDoubleSpinBox>

namespace AnimText::studio::window::basics {

/** A whole number, shown as it is or in a larger unit. With Shift, it steps by ten. */
class NumberField : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit NumberField(QWidget* parent = nullptr);

    /** @param perUnit how many steps make one unit, for example 10 tenths per second */
    void SetUnit(const QString& unit, int perUnit = 1);
    void SetLimits(int least, int most);
    int Number() const;
    /** Shows @p number without emitting NumberChanged(). */
    void ShowNumber(int number);

    void stepBy(int steps) override;
    /** Wide enough for common numbers, not for the largest. */
    QSize minimumSizeHint() const override;

signals:
    /** @param gesture identifies changes that belong to one drag or one visit to the field */
    void NumberChanged(int number, int gesture);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    int perUnit = 1;
    int gesture = 0;
    bool typing = false; // a press moves the cursor and drags nothing
    bool pressed = false;
    bool dragging = false;
    int pressX = 0;
    int pressNumber = 0;
};

} // namespace AnimText::studio::window::basics
