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
 * Qt's timers skip ticks when the event loop is late, so playing would stay behind the clock for
 * good. While this object exists, it delivers the skipped ticks to timers of a tick's interval as
 * soon as the event loop runs again. It gives up on ticks that it cannot deliver within half a
 * second, for example when painting is slower than the clock.
 */
class TickKeeper : public QObject
{
    Q_OBJECT

public:
    explicit TickKeeper(QObject* parent = nullptr);

    /** Number of skipped ticks that were delivered, of all timers together. */
    qint64 MadeUp() const { return madeUp; }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QElapsedTimer clock;
    QHash<int, qint64> due; // time of each timer's last tick, milliseconds, by timer id
    qint64 madeUp = 0;
    bool sending = false;
};

} // namespace AnimText

#endif
