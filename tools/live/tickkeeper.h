/**
 * @file
 * Keeps the plugin's timers on the clock.
 */
#ifndef ANIMTEXT_TICKKEEPER_H
#define ANIMTEXT_TICKKEEPER_H

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

namespace AnimText {

/**
 * Qt's timers leave out the ticks for which the event loop comes too late, and a play would fall
 * behind the clock for good. While this lives, timers of a tick's interval are told of these ticks
 * all the same, as soon as the loop comes round. What cannot be made up for in half a second, say
 * where painting is slower than the clock, is left out.
 */
class TickKeeper : public QObject
{
    Q_OBJECT

public:
    explicit TickKeeper(QObject* parent = nullptr);

    /** Ticks that were made up for, of all timers together. */
    qint64 MadeUp() const { return madeUp; }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QElapsedTimer clock;
    QHash<int, qint64> due; // of each timer's last tick, milliseconds; restarted ones have new ids
    qint64 madeUp = 0;
    bool sending = false;
};

} // namespace AnimText

#endif
