#include "virtualdispatcher.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QProcess>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

using namespace AnimText;

class TestVirtualDispatcher : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void firesInOrder_data();
    void firesInOrder();
    void slotsChangeTimers_data();
    void slotsChangeTimers();
    void tellsTheDeadlineInTheSlot();
    void zeroTimersLetTimeGoOn();
    void postedEventsComeBeforeTheNextTimer();
    void deletesLaterObjectsAtTheTop();
    void timeNeverGoesBack();
    void nestedLoopJumpsToTheNextDeadline();
    void waitsForThreads();
    void waitsForProcesses();
    void anHourTakesNoHour();

private:
    QTimer* Start(const QString& name, int interval, bool repeats = false);

    VirtualDispatcher* dispatcher = nullptr;
    qint64 origin = 0;
    std::unique_ptr<QObject> owner;
    QHash<QString, QPointer<QTimer>> timers;
    QHash<QString, std::function<void()>> actions; // what a timer's slot does first
    QStringList fired;
};

void TestVirtualDispatcher::init()
{
    dispatcher = VirtualDispatcher::Current();
    QVERIFY(dispatcher);
    owner = std::make_unique<QObject>();
    timers.clear();
    actions.clear();
    fired.clear();
    origin = dispatcher->Now();
}

QTimer* TestVirtualDispatcher::Start(const QString& name, int interval, bool repeats)
{
    auto* timer = new QTimer(owner.get());
    timer->setSingleShot(!repeats);
    connect(timer, &QTimer::timeout, this, [this, name] {
        fired.append(QStringLiteral("%1@%2").arg(name).arg(dispatcher->Now() - origin));
        if (actions.contains(name))
            actions.take(name)();
    });
    timer->start(interval);
    timers[name] = timer;
    return timer;
}

/** A word "NAME=INTERVAL" is a timer that fires once, "NAME*INTERVAL" one that goes on. */
void TestVirtualDispatcher::firesInOrder_data()
{
    QTest::addColumn<QString>("started");
    QTest::addColumn<int>("until");
    QTest::addColumn<QString>("expected");
    QTest::newRow("deadlines") << "c=30 a=10 b=20" << 30 << "a@10 b@20 c@30";
    QTest::newRow("up to and including") << "a=10 b=11" << 10 << "a@10";
    QTest::newRow("ties as started") << "b=5 a=5 c=5" << 5 << "b@5 a@5 c@5";
    QTest::newRow("ties of repeating timers") << "a*4 b*2" << 8 << "b@2 a@4 b@4 b@6 a@8 b@8";
    QTest::newRow("ties of once and again") << "a*3 b=6" << 6 << "a@3 a@6 b@6";
    QTest::newRow("nothing is due") << "a=7" << 6 << "";
}

void TestVirtualDispatcher::firesInOrder()
{
    QFETCH(QString, started);
    QFETCH(int, until);
    QFETCH(QString, expected);
    for (const QString& word : started.split(QLatin1Char(' ')))
        Start(word.left(1), word.mid(2).toInt(), word.at(1) == QLatin1Char('*'));
    dispatcher->AdvanceTo(origin + until);
    QCOMPARE(fired.join(QLatin1Char(' ')), expected);
    QCOMPARE(dispatcher->Now(), origin + until);
}

void TestVirtualDispatcher::slotsChangeTimers_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << "none"
                          << "a@10 b@10 a@20 b@20";
    QTest::newRow("starts itself anew") << "restart self"
                                        << "a@10 b@10 b@20 a@20";
    QTest::newRow("stops itself") << "stop self"
                                  << "a@10 b@10 b@20";
    QTest::newRow("stops one that is due") << "stop other"
                                           << "a@10 a@20";
    QTest::newRow("deletes one that is due") << "delete other"
                                             << "a@10 a@20";
    QTest::newRow("deletes one that is due later") << "delete other later"
                                                   << "a@10 a@20";
    QTest::newRow("starts one that is due at once") << "start"
                                                    << "a@10 b@10 c@10 a@20 b@20";
    QTest::newRow("deletes itself later") << "delete self later"
                                          << "a@10 b@10 b@20";
    QTest::newRow("makes the other faster") << "faster"
                                            << "a@10 b@14 b@18 a@20";
}

void TestVirtualDispatcher::slotsChangeTimers()
{
    QFETCH(QString, change);
    QFETCH(QString, expected);
    Start(QStringLiteral("a"), 10, true);
    Start(QStringLiteral("b"), 10, true);
    const QHash<QString, std::function<void()>> changes{
        {"none", [] {}},
        {"restart self", [this] { timers["a"]->start(10); }},
        {"stop self", [this] { timers["a"]->stop(); }},
        {"stop other", [this] { timers["b"]->stop(); }},
        {"delete other", [this] { delete timers["b"].data(); }},
        {"delete other later", [this] { timers["b"]->deleteLater(); }},
        {"start", [this] { Start(QStringLiteral("c"), 0); }},
        {"delete self later", [this] { timers["a"]->deleteLater(); }},
        {"faster", [this] { timers["b"]->setInterval(4); }}};
    actions["a"] = changes.value(change);
    dispatcher->AdvanceTo(origin + 20);
    QCOMPARE(fired.join(QLatin1Char(' ')), expected);
}

void TestVirtualDispatcher::tellsTheDeadlineInTheSlot()
{
    QTimer* timer = Start(QStringLiteral("a"), 66, true);
    QCOMPARE(timer->remainingTime(), 66);
    actions["a"] = [timer] { QCOMPARE(timer->remainingTime(), 66); };
    dispatcher->AdvanceTo(origin + 100);
    QCOMPARE(timer->remainingTime(), 32);
    const auto registered = dispatcher->registeredTimers(timer);
    QCOMPARE(registered.size(), 1);
    QCOMPARE(registered.first().interval, 66);
    timer->stop();
    QVERIFY(dispatcher->registeredTimers(timer).isEmpty());
    QCOMPARE(timer->remainingTime(), -1);
}

void TestVirtualDispatcher::zeroTimersLetTimeGoOn()
{
    Start(QStringLiteral("a"), 0, true);
    Start(QStringLiteral("b"), 2);
    dispatcher->AdvanceTo(origin + 3);
    QCOMPARE(fired.join(QLatin1Char(' ')), QStringLiteral("a@0 a@1 a@2 b@2 a@3"));
}

void TestVirtualDispatcher::postedEventsComeBeforeTheNextTimer()
{
    Start(QStringLiteral("a"), 5);
    Start(QStringLiteral("b"), 5);
    actions["a"] = [this] {
        QMetaObject::invokeMethod(
            this, [this] { fired.append(QStringLiteral("posted")); }, Qt::QueuedConnection);
    };
    dispatcher->AdvanceTo(origin + 5);
    QCOMPARE(fired.join(QLatin1Char(' ')), QStringLiteral("a@5 posted b@5"));
}

void TestVirtualDispatcher::deletesLaterObjectsAtTheTop()
{
    QPointer<QObject> object = new QObject;
    object->deleteLater();
    dispatcher->AdvanceTo(dispatcher->Now());
    QVERIFY(object.isNull());
}

void TestVirtualDispatcher::timeNeverGoesBack()
{
    dispatcher->AdvanceTo(origin + 50);
    Start(QStringLiteral("a"), 10);
    Start(QStringLiteral("b"), 0);
    dispatcher->AdvanceTo(origin + 20);
    QCOMPARE(dispatcher->Now(), origin + 50);
    QCOMPARE(fired.join(QLatin1Char(' ')), QStringLiteral("b@50"));
}

void TestVirtualDispatcher::nestedLoopJumpsToTheNextDeadline()
{
    Start(QStringLiteral("a"), 10, true);
    Start(QStringLiteral("b"), 25, true);
    actions["a"] = [this] {
        QEventLoop loop;
        QTimer::singleShot(45, &loop, &QEventLoop::quit);
        loop.exec();
        fired.append(QStringLiteral("out@%1").arg(dispatcher->Now() - origin));
    };
    dispatcher->AdvanceTo(origin + 60);
    // The timer whose slot waits does not come again inside of it.
    QCOMPARE(fired.join(QLatin1Char(' ')), QStringLiteral("a@10 b@25 b@50 out@55 a@55"));
}

void TestVirtualDispatcher::waitsForThreads()
{
    QEventLoop loop;
    std::thread thread([&loop] { QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection); });
    loop.exec();
    thread.join();
    QCOMPARE(dispatcher->Now(), origin);
}

void TestVirtualDispatcher::waitsForProcesses()
{
    QProcess process;
    QEventLoop loop;
    connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
            &QEventLoop::quit);
    process.start(QStringLiteral("cat"), QStringList());
    process.write("through the pipe");
    process.closeWriteChannel();
    loop.exec();
    QCOMPARE(process.readAllStandardOutput(), QByteArray("through the pipe"));
}

void TestVirtualDispatcher::anHourTakesNoHour()
{
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
    timer.start(66);
    QElapsedTimer watch;
    watch.start();
    dispatcher->AdvanceTo(origin + 3600 * 1000);
    QCOMPARE(ticks, 3600 * 1000 / 66);
    QVERIFY2(watch.elapsed() < 60 * 1000, "it has slept");
}

int main(int argc, char** argv)
{
    QCoreApplication::setEventDispatcher(new VirtualDispatcher);
    QCoreApplication application(argc, argv);
    TestVirtualDispatcher test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_virtualdispatcher.moc"
