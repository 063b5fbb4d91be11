// Scenes on the wall clock show the same as a play on virtual time.
#include "files/failure.h"
#include "live/livewindow.h"
#include "live/scenewatcher.h"
#include "player/plugin.h"
#include "seenin.h"
#include "testscene.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QPainter>
#include <QSignalSpy>
#include <QtEndian>
#include <QtTest>

using namespace AnimText;

namespace {

constexpr int patience = 240000; // milliseconds; a machine may be busy with other things

QByteArray Sha1(const QImage& picture)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int y = 0; y < picture.height(); ++y)
        hash.addData(reinterpret_cast<const char*>(picture.constScanLine(y)),
                     picture.width() * picture.depth() / 8);
    return hash.result().toHex();
}

QImage OverBlack(const QImage& picture)
{
    QImage black(picture.size(), QImage::Format_RGB32);
    black.fill(Qt::black);
    QPainter(&black).drawImage(0, 0, picture);
    return black;
}

/** The screen that Xvfb keeps in a file: a header of big-endian words, colors, then the rows. */
QImage OnScreen(const QByteArray& file)
{
    if (file.size() < 100)
        return QImage();
    const auto word = [&](int index) {
        return int(qFromBigEndian<quint32>(file.constData() + 4 * index));
    };
    const int rows = word(0) + 12 * word(19);
    const QImage screen(reinterpret_cast<const uchar*>(file.constData()) + rows, word(4), word(5),
                        word(12), QImage::Format_RGB32);
    return screen.copy();
}

} // namespace

Q_DECLARE_METATYPE(scene::SceneNode)

class TestLive : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { plugin = player::LoadPlugin(player::PluginPath()); }

    void init()
    {
        player = std::make_unique<live::LivePlayer>(plugin);
        window = std::make_unique<live::LiveWindow>(player.get());
        ended = std::make_unique<QSignalSpy>(player.get(), &live::LivePlayer::Ended);
        shown = std::make_unique<QSignalSpy>(player.get(), &live::LivePlayer::Shown);
    }

    void cleanup()
    {
        window.reset();
        player.reset();
        QCOMPARE(Torv::Accounts().liveSessions, 0);
    }

    void showsWhatTraceTells_data()
    {
        QTest::addColumn<scene::SceneNode>("node");
        QTest::newRow("wave") << files.Node({"abc", 5, 9});
        QTest::newRow("tremble") << files.Node({"abc", 8, 9});
        QTest::newRow("up") << files.Node({}, {{"EffectType", 1}, {"ContinueStyle", 2}});
        QTest::newRow("left") << files.Node({}, {{"EffectType", 1}});
    }

    void showsWhatTraceTells()
    {
        QFETCH(scene::SceneNode, node);
        const scene::Scene scene = files.Of({node});
        const QByteArrayList trace =
            files.Shell("animtext trace -n 999 " + files.Save(scene)).out.split('\n');
        player->Play(scene, {});
        window->Open("scene", scene.display, false);
        do {
            QVERIFY(shown->wait(patience));
            const qint64 pictures = player->Kept().pictures; // the first is that of tick 0
            const QImage picture = Torv::FrontImage(player->Scenery().Session(0), 0);
            const QByteArray& line = trace.at(int(qMax(pictures, 1LL)) - 1);
            QVERIFY2(line.contains(Sha1(picture)), line);
            const QImage display = shown->last().first().value<QImage>();
            QCOMPARE(SeenIn(window.get()), OverBlack(display));
            if (!player->Scenery().Motion(0).IsSideways())
                QCOMPARE(display, player->Scenery().Compose(0));
        } while (player->Time() < 8 * 66);
    }

    /** Whatever keeps the event loop busy. */
    void staysOnTheClock()
    {
        player->Play(files.Of({files.Node({"abc", 5, 9, 0, 1000000})}), {});
        for (int busy : {30, 130, 66, 500, 1}) {
            QVERIFY(shown->wait(patience));
            QElapsedTimer since;
            since.start();
            while (since.elapsed() < busy) {
            }
            // What was missed is made up for, and not only by as much as the next tick brings.
            QTRY_VERIFY_WITH_TIMEOUT(qAbs(player->Kept().pictures - player->Kept().due) <= 1,
                                     patience);
        }
        QVERIFY(player->Kept().madeUp >= 6);
        QVERIFY(player->Kept().latest >= 400);
    }

    void obeysItsKeys()
    {
        const scene::Scene scene = files.Of({files.Node({"abc", 5, 9, 0, 1000000})});
        player->Play(scene, {});
        window->Open("scene", scene.display, false);
        QVERIFY(QTest::qWaitForWindowExposed(window.get(), patience));
        QCOMPARE(window->size(), scene.display * 8);
        QVERIFY(shown->wait(patience));
        QTest::keyClick(window.get(), Qt::Key_Space);
        const qint64 time = player->Time();
        const QImage picture = player->Scenery().Compose(time);
        shown->clear();
        QVERIFY(!shown->wait(3 * 66));
        QCOMPARE(player->Time(), time);
        QCOMPARE(time % 66, 0);
        QCOMPARE(player->Scenery().Compose(time), picture);
        bool moves = false;
        connect(player.get(), &live::LivePlayer::Shown, this,
                [&](const QImage& next) { moves = moves || next != picture; });
        QTest::keyClick(window.get(), Qt::Key_Space);
        QTRY_VERIFY_WITH_TIMEOUT(moves && player->Time() > time + 2 * 66, patience);
        player->disconnect(this);
        QTest::keyClick(window.get(), Qt::Key_F);
        QVERIFY(window->isFullScreen());
        QTest::mouseDClick(window.get(), Qt::LeftButton);
        QVERIFY(!window->isFullScreen());
        QTest::keyClick(window.get(), Qt::Key_Escape);
        QVERIFY(!window->isVisible());
    }

    void comesToItsEnd_data()
    {
        QTest::addColumn<scene::SceneNode>("node");
        QTest::addColumn<bool>("schedule");
        QTest::addColumn<int>("ticks");
        const TextOptions three{"abc", 4, 9, 2};
        QTest::newRow("a hold more") << files.Node(three) << false << 7 + 4;
        QTest::newRow("as told") << files.Node(three) << true << 7;
        QTest::newRow("nothing") << files.Node({" "}) << false << 1;
        QTest::newRow("nothing is told") << files.Node({" "}, {{"PlayTimes", 0}}) << true << 1;
        QTest::newRow("once through")
            << files.Node({"ab", 0, 9, 0, 1, {16, 32}, 8}, {{"EffectType", 1}}) << false << 7;
    }

    void comesToItsEnd()
    {
        QFETCH(scene::SceneNode, node);
        QFETCH(bool, schedule);
        QFETCH(int, ticks);
        live::LiveSettings settings;
        settings.schedule = schedule;
        player->Play(files.Of({node}), settings);
        QVERIFY(ended->wait(patience));
        const qint64 late = player->Kept().latest / 66 + 1; // a busy machine looks later
        QVERIFY2(player->Time() / 66 >= ticks - 1 && player->Time() / 66 <= ticks + late,
                 QByteArray::number(player->Time()));
        const QImage last = player->Scenery().Compose(player->Time());
        shown->clear();
        QVERIFY(!shown->wait(2 * 66));
        QCOMPARE(player->Scenery().Compose(player->Time()), last);
        QElapsedTimer since;
        since.start();
        player->SetPaused(false);
        const qint64 time = player->Time();
        QVERIFY(!player->HasEnded() && time <= since.elapsed());
        settings.loop = true;
        player->Play(files.Of({node}), settings);
        const QImage first = player->Scenery().Compose(0);
        QVector<QImage> firsts;
        qint64 before = -1;
        connect(player.get(), &live::LivePlayer::Shown, this, [&] {
            const qint64 now = player->Time();
            if (now < before || (now == 0 && before == 0)) // where there is nothing to play
                firsts.append(player->Scenery().Compose(0));
            before = now;
        });
        QTRY_VERIFY_WITH_TIMEOUT(firsts.size() > 1, patience);
        player->disconnect(this);
        QVERIFY(player->Kept().time > player->Time() || ticks == 0); // both rounds
        QVERIFY(player->Kept().due > player->Time() / 66 + 1);
        QCOMPARE(firsts.first(), first);
        QCOMPARE(ended->size(), 1);
    }

    /** Two pages, one after another; a text that cannot be played leaves what there was. */
    void playsByTheHostsSchedule()
    {
        scene::Scene scene = files.Of({files.Node({"a", 4, 9, 2}), files.Node({"b", 4, 9, 2})});
        live::LiveSettings settings;
        settings.schedule = true;
        player->Play(scene, settings);
        QVERIFY(player->Scenery().Session(0) && !player->Scenery().Session(1));
        QTRY_VERIFY_WITH_TIMEOUT(!player->Scenery().Session(0) && player->Scenery().Session(1),
                                 patience);
        scene.At({}).type = "clock";
        QVERIFY_EXCEPTION_THROWN(player->Play(scene, {}), files::Failure);
        QTRY_COMPARE_WITH_TIMEOUT(ended->size(), 1, patience);
        QVERIFY(player->Scenery().Session(1));
    }

    /** Each row changes files in a line of shell. */
    void noticesChanges_data()
    {
        QTest::addColumn<bool>("changes");
        QTest::newRow("sed -i s/abc/abd/ scene.json") << true;
        QTest::newRow("cp scene.json new && mv new scene.json") << true;
        QTest::newRow("mv scene.json old && cp old scene.json") << true;
        QTest::newRow("echo >> node.path") << true;
        QTest::newRow("echo > new && mv new node.path") << true;
        QTest::newRow("test -e old && echo >> scene.json || "
                      "{ ln scene.json old && cp old new && mv new scene.json; }")
            << true;
        QTest::newRow("touch other.json") << false;
        QTest::newRow("cat scene.json node.path") << false;
    }

    void noticesChanges()
    {
        TestScenes folder;
        scene::SceneNode node = folder.Node({});
        node.files["PathData"] = folder.Write("node.path", folder.Read(node.files["PathData"]));
        scene::Scene scene = folder.Of({node});
        folder.Save(scene);
        live::SceneWatcher watcher;
        QSignalSpy changed(&watcher, &live::SceneWatcher::Changed);
        watcher.Watch(scene);
        QFETCH(bool, changes);
        for (int again = 0; again < 2; ++again) {
            QCOMPARE(folder.Shell(QTest::currentDataTag()).status, 0);
            QCOMPARE(changed.wait(changes ? patience : 200), changes);
            watcher.Watch(scene);
            QVERIFY(!changed.wait(120));
        }
        folder.Remove("scene.json");
        QVERIFY(changed.wait(patience));
        folder.Save(scene);
        QVERIFY(changed.wait(patience));
        folder.Save(scene);
        watcher.Accept();
        QVERIFY(!changed.wait(120));
    }

    /** The program itself, on a screen of 128 x 96. */
    void isSeenOnAScreen()
    {
        QProcess screen;
        screen.start("Xvfb",
                     {"-displayfd", "1", "-screen", "0", "128x96x24", "-fbdir", files.Path(".")});
        QVERIFY2(screen.waitForReadyRead(patience), "no Xvfb");
        const QString display = ":" + screen.readLine().trimmed();
        const scene::Scene scene = files.Of({files.Node({"abc", 4, 9, 1000})});
        files.Save(scene);
        QCOMPARE(files.Shell("animtext render scene.json -o end.png --at 10t").status, 0);
        const QImage end(files.Path("end.png"));
        const QImage expected = end.scaled(128, 64).convertToFormat(QImage::Format_RGB32);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.insert("DISPLAY", display);
        environment.insert("ASAN_OPTIONS", "detect_leaks=0"); // X's libraries keep what they have
        program.setProcessEnvironment(environment);
        program.start(ANIMTEXT_PROGRAMS "/animtext",
                      {"play", "--fullscreen", "--timing", files.Path("scene.json")});
        QTRY_COMPARE_WITH_TIMEOUT(OnScreen(files.Read("Xvfb_screen0")).copy(0, 16, 128, 64),
                                  expected, patience);
        program.terminate();
        QVERIFY(program.waitForFinished(patience));
        QCOMPARE(program.exitCode(), 128 + 15);
        // The fourth is what is seen in the end, as is the fifth, which may not have come yet.
        const QByteArray told = program.readAllStandardOutput();
        QVERIFY2(QRegularExpression(" [45] pictures of the first text").match(told).hasMatch(),
                 told);
        screen.terminate();
        QVERIFY(screen.waitForFinished(patience));
    }

private:
    TestScenes files;
    Lw::INodePlugin* plugin = nullptr;
    std::unique_ptr<live::LivePlayer> player;
    std::unique_ptr<live::LiveWindow> window;
    std::unique_ptr<QSignalSpy> ended, shown;
};

QTEST_MAIN(TestLive)
#include "tst_live.moc"
