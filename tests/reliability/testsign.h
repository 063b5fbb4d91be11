/**
 * @file
 * A sign for tests: the plugin as a host loads it, displays, and time that tests drive.
 */
#pragma once

#include "player/virtualdispatcher.h"
#include "scene/scene.h"

#include <display.h>
#include <hneonnodebase.h>
#include <icontentrender.h>
#include <inodeplugin.h>

#include <QGuiApplication>
#include <QHash>
#include <QSet>
#include <QVector>
#include <QtTest>

#include <memory>
#if QT_VERSION >= 0x060000
#include <qrand.h>
#endif

/** Virtual time that knows how many QTimers run; Qt's own timers, say its font cache's, are none.
 */
class CountingDispatcher : public AnimText::player::VirtualDispatcher
{
public:
    int LiveTimers() const { return live.size(); }

    void registerTimer(int id, Interval interval, Qt::TimerType type, QObject* object) override;
    bool unregisterTimer(int id) override;
    bool unregisterTimers(QObject* object) override;

private:
    QSet<int> live; // ids
};

/** The one sign of the process. */
class TestSign
{
public:
    static CountingDispatcher* Dispatcher();
    /** The plugin, loaded from the library; the test ends where it cannot be loaded. */
    static Lw::INodePlugin* Plugin();

    /** Lets @p count ticks of 66 ms pass. */
    static void Tick(int count = 1);

    /** A node of the plugin's with everything that @p from says; the caller owns it. */
    static std::unique_ptr<Lw::HNeonNodeBase> NewNode(const AnimText::scene::SceneNode& from);
    static std::unique_ptr<Lw::IContentRender> NewRender(Lw::HNode* node);

    /** From now on no message is shown, and complaints are kept; for a test's initTestCase(). */
    static void KeepComplaints();
    /** Qt's warnings since the last call, except those of its picture readers. */
    static QStringList TakeComplaints();
};

/** A hash of everything that @p display shows now. */
uint Shown(const Torv::Display& display);

/** Runs a test on virtual time. */
template <typename Test>
int RunOnTestSign(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setEventDispatcher(new CountingDispatcher);
    QGuiApplication application(argc, argv);
    Torv::SetClock([](void*) { return TestSign::Dispatcher()->Now(); }, nullptr);
    // A painter that writes into what is shown stops the process.
    Torv::GuardShownBuffers(true);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

/** Whether a sanitizer is built in, which multiplies time and memory. */
bool IsSanitized();
