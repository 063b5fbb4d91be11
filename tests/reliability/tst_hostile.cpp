// Hostile scenes, each played from beginning to end: no crash, no hang, no complaint of Qt's, and
// nothing left.
#include "hostile.h"
#include "testsign.h"

#include <hpluginmanager.h>

#include <QTemporaryDir>

Q_DECLARE_METATYPE(HostileScene)

namespace {

constexpr qint64 mostMemory = 256; // MiB
constexpr qint64 mostSteps = 5000; // millions, for 300 ticks

qint64 steps = 0; // basic blocks of the plugin that were run

} // namespace

extern "C" Q_DECL_EXPORT void __sanitizer_cov_trace_pc()
{
    ++steps;
}

namespace {

/** A line of /proc/self/status, in MiB. */
qint64 Memory(const QByteArray& what)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    const int at = text.indexOf(what + ':');
    return at < 0 ? 0
                  : text.mid(at + what.size() + 1, 20).simplified().split(' ').at(0).toLongLong() /
                        1024;
}

/** From now on, "VmHWM" is the most memory since now. */
void ForgetPeak()
{
    QFile references(QStringLiteral("/proc/self/clear_refs"));
    if (references.open(QIODevice::WriteOnly))
        references.write("5");
}

void Play(const HostileScene& scene)
{
    const Torv::Display display(QSize(96, 48));
    auto node = TestSign::NewNode(scene.node);
    const auto render = TestSign::NewRender(node.get());
    node->Duration();
    render->Start(display.Handle());
    for (int i = 0; i < 3; ++i) {
        TestSign::Tick(scene.weight == Weight::Slow ? 20 : 100);
        Shown(display);
    }
    render->Pause();
    TestSign::Tick(3);
    render->Pause();
    TestSign::Tick(3);
    render->Stop();
    TestSign::Tick(3);
    render->Start(display.Handle());
    TestSign::Tick(3);
    Shown(display);
    render->Start(display.Handle());
    node.reset();
    TestSign::Tick(3);
    render->Remove();
}

} // namespace

class TestHostile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
#ifdef COUNTED_PLUGIN
        qputenv("ANIMATIONTEXT_PLUGIN", COUNTED_PLUGIN);
        TestSign::Plugin();
        QVERIFY(steps > 0); // it is counted
#endif
        TestSign::KeepComplaints();
    }
    void playsOn_data();
    void playsOn();

private:
    QTemporaryDir folder;
};

void TestHostile::playsOn_data()
{
    QTest::addColumn<HostileScene>("scene");
    int number = 0;
    for (const HostileScene& scene : HostileScenes(QDir(folder.path())))
        QTest::addRow("%d %s", number++, scene.name.constData()) << scene;
    QVERIFY(number >= 500);
}

void TestHostile::playsOn()
{
    QFETCH(HostileScene, scene);
    qputenv("ANIMATIONTEXT_PICTURES", QFile::encodeName(scene.frogs));
    Lw::HPluginManager::instance()->SetAlphaBlend(scene.alphaBlend);
    const qint64 memory = Memory("VmRSS");
    ForgetPeak();
    steps = 0;
    Play(scene);
    const qint64 millions = steps / 1000000;
    const qint64 growth = Memory("VmHWM") - memory;

    const QStringList complaints = TestSign::TakeComplaints();
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(QLatin1Char('\n'))));
    QCOMPARE(Torv::Accounts().liveSessions, 0);
    QCOMPARE(Torv::Accounts().liveLayers, 0);
    QCOMPARE(TestSign::Dispatcher()->LiveTimers(), 0);
    QVERIFY2(millions < mostSteps, qPrintable(QString::number(millions)));
    QVERIFY2(IsSanitized() || growth <= mostMemory, qPrintable(QString::number(growth)));
    if (qEnvironmentVariableIsSet("ANIMATIONTEXT_MEASURES"))
        std::printf("MEASURE %6lld million steps %6lld MiB  %s\n", millions, growth,
                    scene.name.constData());
}

int main(int argc, char** argv)
{
    return RunOnTestSign<TestHostile>(argc, argv);
}

#include "tst_hostile.moc"
