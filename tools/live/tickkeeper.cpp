#include "live/tickkeeper.h"

#include "player/player.h"

#include <QCoreApplication>
#include <QTimerEvent>

namespace AnimText {

namespace {

constexpr qint64 longestWork = 500; // milliseconds to spend on skipped ticks

} // namespace

TickKeeper::TickKeeper(QObject* parent)
    : QObject(parent)
{
    clock.start();
    QCoreApplication::instance()->installEventFilter(this);
}

bool TickKeeper::eventFilter(QObject* object, QEvent* event)
{
    auto* timer = event->type() == QEvent::Timer ? qobject_cast<QTimer*>(object) : nullptr;
    if (!timer || sending || timer->interval() != tickLength || timer->parent() == parent())
        return false;
    const qint64 now = clock.elapsed();
    const int id = timer->timerId();
    const auto last = due.constFind(id);
    qint64 mine = last != due.constEnd() ? *last + tickLength : now;
    sending = true;
    // A slot may stop its timer.
    while (now - mine >= tickLength && timer->timerId() == id) {
        if (clock.elapsed() - now > longestWork) {
            mine = now;
            break;
        }
        QTimerEvent missed(id);
        QCoreApplication::sendEvent(timer, &missed);
        mine += tickLength;
        ++madeUp;
    }
    sending = false;
    due.insert(id, mine);
    return false;
}

} // namespace AnimText
