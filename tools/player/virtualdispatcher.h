/**
 * @file
 * An event dispatcher whose time is a number: an hour of timers takes as long as their slots.
 */
#pragma once

#include <QAbstractEventDispatcher>
#include <QList>
#include <QSemaphore>

#include <atomic>
#include <vector>

namespace AnimText::player {

/**
 * Runs the event loop of its thread on virtual time. Set it with
 * QCoreApplication::setEventDispatcher() before the application is made; the application then owns
 * it.
 *
 * Timers fire in the order of their deadlines, and those with the same deadline in the order in
 * which they were started. While a timer's slot runs, Now() is the timer's deadline. A repeating
 * timer of interval 0 fires once at the time at which it is started and then every millisecond, so
 * time always advances.
 *
 * An event loop that waits, say QEventLoop::exec(), jumps to the next deadline instead of sleeping;
 * it waits for other threads only if no timer is left. Sockets are not heard.
 */
class VirtualDispatcher : public QAbstractEventDispatcher
{
    Q_OBJECT

public:
    /** The dispatcher of the current thread; null when that is none of these. */
    static VirtualDispatcher* Current();

    /** Milliseconds since the dispatcher was made. */
    qint64 Now() const { return now; }

    /**
     * Fires everything that is due up to and including @p time, with posted events and deferred
     * deletions in between, and leaves Now() at @p time. Time never goes back: an earlier time runs
     * what is due now.
     */
    void AdvanceTo(qint64 time);

#if QT_VERSION < 0x060000
    typedef int Interval;
#else
    typedef qint64 Interval;
#endif

    bool processEvents(QEventLoop::ProcessEventsFlags flags) override;
    void registerSocketNotifier(QSocketNotifier*) override {}
    void unregisterSocketNotifier(QSocketNotifier*) override {}
    void registerTimer(int id, Interval interval, Qt::TimerType type, QObject* object) override;
    bool unregisterTimer(int id) override;
    bool unregisterTimers(QObject* object) override;
    QList<TimerInfo> registeredTimers(QObject* object) const override;
    int remainingTime(int id) override;
    void wakeUp() override;
    void interrupt() override;
#if QT_VERSION < 0x060000
    bool hasPendingEvents() override;
    void flush() override {}
#endif

private:
    struct Timer
    {
        int id;
        Interval interval;
        Qt::TimerType type;
        QObject* object;
        qint64 deadline;
        quint64 order; // tells timers apart where ids are used again
        bool firing;   // its slot runs, perhaps with a loop of its own inside
    };

    template <typename IsGone>
    bool Remove(const IsGone& isGone);
    bool FireNext(qint64 limit);

    qint64 now = 0;
    quint64 nextOrder = 0;
    std::vector<Timer> timers;
    QSemaphore wakes;
    std::atomic<bool> interrupted{false};
    // Posting an event wakes the loop, but events posted before it existed do not.
    std::atomic<bool> woken{true};
};

} // namespace AnimText::player
