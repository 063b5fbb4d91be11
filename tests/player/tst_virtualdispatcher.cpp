#include "player/virtualdispatcher.h"
#include "table.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>
#include <thread>

using namespace AnimText;

using Action = std::function<void()>;
Q_DECLARE_METATYPE(Action)

class TestVirtualDispatcher : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        dispatcher = player::VirtualDispatcher::Current();
        owner = std::make_unique<QObject>();
        timers.clear();
        actions.clear();
        fired.clear();
        origin = dispatcher->Now();
    }

    /** A word "NAME=INTERVAL" is a timer that fires once, "NAME*INTERVAL" one that goes on. */
    void firesInOrder_data()
    {
        const Table<QString, int, QString> row("started", "until", "expected");
        row("deadlines", "c=30 a=10 b=20", 30, "a@10 b@20 c@30");
        row("up to and including", "a=10 b=11", 10, "a@10");
        row("ties as started", "b=5 a=5 c=5", 5, "b@5 a@5 c@5");
        row("ties of repeating timers", "a*4 b*2", 8, "b@2 a@4 b@4 b@6 a@8 b@8");
        row("ties of once and again", "a*3 b=6", 6, "a@3 a@6 b@6");
        row("zero lets time go on", "a*0 b=2", 3, "a@0 a@1 a@2 b@2 a@3");
    }

    void firesInOrder()
    {
        QFETCH(QString, started);
        QFETCH(int, until);
        QFETCH(QString, expected);
        for (const QString& word : started.split(' '))
            Start(word.left(1), word.mid(2).toInt(), word.at(1) == '*');
        dispatcher->AdvanceTo(origin + until);
        QCOMPARE(fired.join(' '), expected);
        QCOMPARE(dispatcher->Now(), origin + until);
    }

    void slotsChangeTimers_data()
    {
        const Table<QString, Action> row("expected", "change");
        row("restarts itself", "a@10 b@10 b@20 a@20", [this] { timers["a"]->start(10); });
        row("stops itself", "a@10 b@10 b@20", [this] { timers["a"]->stop(); });
        row("stops one that is due", "a@10 a@20", [this] { timers["b"]->stop(); });
        row("deletes one that is due", "a@10 a@20", [this] { delete timers["b"].data(); });
        row("deletes it later", "a@10 a@20", [this] { timers["b"]->deleteLater(); });
        row("deletes itself later", "a@10 b@10 b@20", [this] { timers["a"]->deleteLater(); });
        row("starts one that is due", "a@10 b@10 c@10 a@20 b@20", [this] { Start("c", 0); });
        row("makes one faster", "a@10 b@14 b@18 a@20", [this] { timers["b"]->setInterval(4); });
        row("posts an event", "a@10 posted b@10 a@20 b@20", [this] {
            QMetaObject::invokeMethod(
                this, [this] { fired.append("posted"); }, Qt::QueuedConnection);
        });
    }

    void slotsChangeTimers()
    {
        QFETCH(Action, change);
        QFETCH(QString, expected);
        Start("a", 10, true);
        Start("b", 10, true);
        actions["a"] = change;
        dispatcher->AdvanceTo(origin + 20);
        QCOMPARE(fired.join(' '), expected);
    }

    void timeNeverGoesBack()
    {
        QTimer* timer = Start("a", 66, true);
        actions["a"] = [timer] { QCOMPARE(timer->remainingTime(), 66); };
        dispatcher->AdvanceTo(origin + 100);
        QCOMPARE(timer->remainingTime(), 32);
        Start("b", 0);
        dispatcher->AdvanceTo(origin + 70);
        QCOMPARE(dispatcher->Now(), origin + 100);
        QCOMPARE(fired.join(' '), QString("a@66 b@100"));
    }

    void nestedLoopJumpsToTheNextDeadline()
    {
        Start("a", 10, true);
        Start("b", 25, true);
        actions["a"] = [this] {
            QEventLoop loop;
            QTimer::singleShot(45, &loop, &QEventLoop::quit);
            loop.exec();
            fired.append(QString("out@%1").arg(dispatcher->Now() - origin));
        };
        dispatcher->AdvanceTo(origin + 60);
        // The timer whose slot waits does not come again inside of it.
        QCOMPARE(fired.join(' '), QString("a@10 b@25 b@50 out@55 a@55"));
    }

    void deletesWhatIsToBeDeletedLater()
    {
        const QPointer<QObject> later(new QObject);
        later->deleteLater();
        dispatcher->AdvanceTo(origin);
        QVERIFY(!later);
    }

    void waitsForThreads()
    {
        QEventLoop loop;
        std::thread thread(
            [&loop] { QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection); });
        loop.exec();
        thread.join();
        QCOMPARE(dispatcher->Now(), origin);
    }

private:
    QTimer* Start(const QString& name, int interval, bool repeats = false)
    {
        auto* timer = new QTimer(owner.get());
        timer->setSingleShot(!repeats);
        connect(timer, &QTimer::timeout, this, [this, name] {
            fired.append(QString("%1@%2").arg(name).arg(dispatcher->Now() - origin));
            if (actions.contains(name))
                actions.take(name)();
        });
        timer->start(interval);
        timers[name] = timer;
        return timer;
    }

    player::VirtualDispatcher* dispatcher = nullptr;
    qint64 origin = 0;
    std::unique_ptr<QObject> owner;
    QHash<QString, QPointer<QTimer>> timers;
    QHash<QString, Action> actions; // what a timer's slot does first
    QStringList fired;
};

int main(int argc, char** argv)
{
    QCoreApplication::setEventDispatcher(new player::VirtualDispatcher);
    QCoreApplication application(argc, argv);
    TestVirtualDispatcher test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_virtualdispatcher.moc"
