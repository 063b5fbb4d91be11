#include "player/virtualdispatcher.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <limits>
#include <tuple>

namespace AnimText::player {

VirtualDispatcher* VirtualDispatcher::Current()
{
    return qobject_cast<VirtualDispatcher*>(QAbstractEventDispatcher::instance());
}

void VirtualDispatcher::registerTimer(int id, Interval interval, Qt::TimerType type,
                                      QObject* object)
{
    timers.push_back({id, interval, type, object, now + interval, nextOrder++, false});
}

template <typename IsGone>
bool VirtualDispatcher::Remove(const IsGone& isGone)
{
    const size_t before = timers.size();
    timers.erase(std::remove_if(timers.begin(), timers.end(), isGone), timers.end());
    return timers.size() < before;
}

bool VirtualDispatcher::unregisterTimer(int id)
{
    return Remove([id](const Timer& timer) { return timer.id == id; });
}

bool VirtualDispatcher::unregisterTimers(QObject* object)
{
    return Remove([object](const Timer& timer) { return timer.object == object; });
}

QList<QAbstractEventDispatcher::TimerInfo>
VirtualDispatcher::registeredTimers(QObject* object) const
{
    QList<TimerInfo> found;
    for (const Timer& timer : timers) {
        if (timer.object == object)
            found.append(TimerInfo(timer.id, int(timer.interval), timer.type));
    }
    return found;
}

int VirtualDispatcher::remainingTime(int id)
{
    for (const Timer& timer : timers) {
        if (timer.id == id)
            return int(std::max<qint64>(0, timer.deadline - now));
    }
    return -1;
}

bool VirtualDispatcher::FireNext(qint64 limit)
{
    const auto timer =
        std::min_element(timers.begin(), timers.end(), [](const Timer& a, const Timer& b) {
            return std::tie(a.firing, a.deadline, a.order) <
                   std::tie(b.firing, b.deadline, b.order);
        });
    if (timer == timers.end() || timer->firing || timer->deadline > limit)
        return false;
    now = std::max(now, timer->deadline);
    timer->deadline = now + std::max(Interval(1), timer->interval);
    timer->firing = true;

    // The slot may stop the timer, start it again or delete its object.
    const quint64 order = timer->order;
    QTimerEvent event(timer->id);
    QCoreApplication::sendEvent(timer->object, &event);
    for (Timer& any : timers) {
        if (any.order == order)
            any.firing = false;
    }
    return true;
}

void VirtualDispatcher::AdvanceTo(qint64 time)
{
    const qint64 limit = std::max(time, now);
    do {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (FireNext(limit));
    now = std::max(now, limit);
}

bool VirtualDispatcher::processEvents(QEventLoop::ProcessEventsFlags flags)
{
    interrupted = false;
    emit awake();
    bool any = woken.exchange(false);
    QCoreApplication::sendPostedEvents();

    const bool timersRun = !(flags & QEventLoop::X11ExcludeTimers);
    while (timersRun && !interrupted && FireNext(now))
        any = true;
    if (any || interrupted || !(flags & QEventLoop::WaitForMoreEvents))
        return any;

    if (timersRun && FireNext(std::numeric_limits<qint64>::max()))
        return true;
    emit aboutToBlock();
    wakes.acquire(std::max(1, wakes.available()));
    emit awake();
    QCoreApplication::sendPostedEvents();
    return true;
}

#if QT_VERSION < 0x060000
bool VirtualDispatcher::hasPendingEvents()
{
    return woken;
}
#endif

void VirtualDispatcher::wakeUp()
{
    woken = true;
    wakes.release();
}

void VirtualDispatcher::interrupt()
{
    interrupted = true;
    wakeUp();
}

} // namespace AnimText::player
