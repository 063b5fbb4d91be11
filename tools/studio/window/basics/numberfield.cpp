#include "studio/window/basics/numberfield.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace AnimText::studio::window::basics {
namespace {

constexpr int dragThreshold = 4; // logical pixels
constexpr int pointsPerStep = 3;

} // namespace

NumberField::NumberField(QWidget* parent)
    : QDoubleSpinBox(parent)
{
    setDecimals(0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setAccelerated(true);
    lineEdit()->installEventFilter(this);
    lineEdit()->setCursor(Qt::SizeHorCursor);
    connect(this, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            [this] { emit NumberChanged(Number(), gesture); });
}

void NumberField::SetUnit(const QString& unit, int numbersPerUnit)
{
    perUnit = numbersPerUnit;
    setSuffix(unit.isEmpty() ? QString() : QLatin1Char(' ') + unit);
    setDecimals(perUnit == 1 ? 0 : 1);
    setSingleStep(1.0 / perUnit);
}

void NumberField::SetLimits(int least, int most)
{
    const QSignalBlocker blocker(this);
    setRange(double(least) / perUnit, double(most) / perUnit);
}

int NumberField::Number() const
{
    return int(std::lround(value() * perUnit));
}

void NumberField::ShowNumber(int number)
{
    const QSignalBlocker blocker(this);
    if (number != Number())
        setValue(double(number) / perUnit);
}

void NumberField::stepBy(int steps)
{
    const bool tens = QGuiApplication::keyboardModifiers() & Qt::ShiftModifier;
    QDoubleSpinBox::stepBy(tens ? steps * 10 : steps);
}

QSize NumberField::minimumSizeHint() const
{
    const QSize largest = QDoubleSpinBox::minimumSizeHint();
    const int common = fontMetrics().horizontalAdvance(prefix() + "0000" + suffix());
    constexpr int arrows = 28; // with the frame
    return {std::min(largest.width(), common + arrows), largest.height()};
}

bool NumberField::event(QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        // A press gives the focus before it is seen.
        typing = static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason;
    } else if (event->type() == QEvent::FocusOut) {
        ++gesture;
        typing = false;
    } else if (event->type() == QEvent::Wheel && !hasFocus()) {
        event->ignore(); // scrolling past a form must not change it
        return true;
    } else if (event->type() == QEvent::ShortcutOverride && valueFromText(text()) == value()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore(); // the window undoes, unless a number is being typed
            return true;
        }
    }
    return QDoubleSpinBox::event(event);
}

bool NumberField::eventFilter(QObject* object, QEvent* event)
{
    const auto* mouse = dynamic_cast<QMouseEvent*>(event); // null for other events
    const bool begins =
        event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton && !typing;
    if (begins) {
        pressed = true;
        dragging = false;
        pressX = mouse->globalX();
        pressNumber = Number();
        ++gesture;
    } else if (pressed && event->type() == QEvent::MouseMove) {
        const int way = mouse->globalX() - pressX;
        dragging = dragging || std::abs(way) > dragThreshold;
        const int tens = mouse->modifiers() & Qt::ShiftModifier ? 10 : 1;
        if (dragging)
            setValue(double(pressNumber + tens * (way / pointsPerStep)) / perUnit);
    } else if (pressed && event->type() == QEvent::MouseButtonRelease) {
        pressed = false;
        ++gesture;
        if (!dragging) {
            typing = true;
            selectAll();
        }
    } else {
        return QDoubleSpinBox::eventFilter(object, event);
    }
    return true;
}

} // namespace AnimText::studio::window::basics
