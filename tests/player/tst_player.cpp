#include "film.h"
#include "plugin.h"
#include "simulation.h"
#include "testscene.h"

#include <hneonnodebase.h>
#include <inodeplugin.h>

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QtTest>

using namespace AnimText;

namespace {

QByteArray Digest(const QImage& picture)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int y = 0; y < picture.height(); ++y)
        hash.addData(reinterpret_cast<const char*>(picture.constScanLine(y)),
                     picture.width() * picture.depth() / 8);
    return hash.result();
}

/** "2-5,8" for the ticks at which the first node's text was handed over. */
QString SwapsUntil(Player* player, int last)
{
    QStringList ticks;
    while (true) {
        if (player->Swapped(0))
            ticks.append(QString::number(player->Tick()));
        if (player->Tick() == last)
            return ticks.join(QLatin1Char(' '));
        player->Advance();
    }
}

} // namespace

class TestPlayer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void playsTickByTick_data();
    void playsTickByTick();
    void showsTheGlyphs();
    void findsTheTextLayer_data();
    void findsTheTextLayer();
    void keepsNodesApart();
    void givesNodesWhatTheSceneSays();
    void twoPlaysAreEqual_data();
    void twoPlaysAreEqual();
    void seedsEveryStart();
    void refusesWhatCannotPlay_data();
    void refusesWhatCannotPlay();
    void tellsWhyNoPluginIsThere();
    void filmsToTheEnd_data();
    void filmsToTheEnd();
    void filmRestsOnTheLastPage();
    void measuresAnimationAndHolds_data();
    void measuresAnimationAndHolds();

private:
    Player* Load(const Scene& scene);

    TestScenes files;
    Lw::INodePlugin* plugin = nullptr;
    std::unique_ptr<Player> player;
};

void TestPlayer::initTestCase()
{
    QString error;
    plugin = LoadPlugin(PluginPath(), &error);
    QVERIFY2(plugin, qPrintable(error));
    QVERIFY(files.IsValid());
}

void TestPlayer::init()
{
    Torv::ResetAccounts();
}

/** Whatever was played has left nothing on the device and asked it nothing wrong. */
void TestPlayer::cleanup()
{
    player.reset();
    Torv::ClearFaults();
    const Torv::Accounting accounts = Torv::Accounts();
    QCOMPARE(accounts.liveSessions, 0);
    QCOMPARE(accounts.liveLayers, 0);
    // The blend of a layer that could not be made is set all the same.
    const qint64 expected = accounts.injectedFaults > 0 ? accounts.badLayer : 0;
    QVERIFY2(accounts.Misuses() == expected, qPrintable(Torv::AccountsReport()));
}

Player* TestPlayer::Load(const Scene& scene)
{
    player = std::make_unique<Player>(VirtualDispatcher::Current(), plugin);
    QString error;
    if (!player->Load(scene, files.Path(QStringLiteral("scene.json")), &error))
        qFatal("%s", qPrintable(error));
    return player.get();
}

/** Effect 4 shows 0, 1, 2 and 3 characters, a picture every 10 - speed ticks, then holds. */
void TestPlayer::playsTickByTick_data()
{
    QTest::addColumn<int>("speed");
    QTest::addColumn<int>("hold");
    QTest::addColumn<int>("plays");
    QTest::addColumn<QString>("swaps");
    QTest::addColumn<int>("finished");
    QTest::newRow("without hold") << 9 << 0 << 1 << "0 1 2 3 4 5 6 7 8 9 10" << 3;
    QTest::newRow("two plays") << 9 << 0 << 2 << "0 1 2 3 4 5 6 7 8 9 10" << 7;
    QTest::newRow("a hold of four ticks") << 9 << 2 << 1 << "0 1 2 3 4 8 9 10" << 7;
    QTest::newRow("every third tick") << 7 << 0 << 1 << "0 3 6 9" << 9;
    QTest::newRow("no play at all") << 9 << 0 << 0 << "0 1 2 3 4 5 6 7 8 9 10" << 1;
}

void TestPlayer::playsTickByTick()
{
    QFETCH(int, speed);
    QFETCH(int, hold);
    QFETCH(int, plays);
    QFETCH(QString, swaps);
    QFETCH(int, finished);
    const Scene scene =
        TestScenes::Of({files.Node({QStringLiteral("abc"), 4, speed, hold, plays})});
    Load(scene)->Start();
    QCOMPARE(player->State(0), 1);
    QCOMPARE(SwapsUntil(player.get(), 10), swaps);
    QCOMPARE(player->Time(), 660);

    player->Load(scene, files.Path(QStringLiteral("scene.json")), nullptr);
    player->Start();
    int tick = 0;
    while (player->State(0) != 0 && tick < 100) {
        player->Advance();
        ++tick;
    }
    QCOMPARE(tick, finished);
}

void TestPlayer::showsTheGlyphs()
{
    Load(TestScenes::Of({files.Node({})}))->Start();
    player->Advance();
    player->Advance();
    // Two characters: baseline 32/2 + 20/2 - 4 = 22, so rows 22 - 14 to 22 - 14 + 16.
    const QImage text = player->TextPicture(0);
    QCOMPARE(text.size(), QSize(64, 32));
    const QRgb ink = qRgb(0xFF, 0xA0, 0x40);
    for (int x : {8, 24})
        QCOMPARE(text.pixel(x, 16), ink);
    for (int x : {0, 15, 16, 31, 40})
        QCOMPARE(qAlpha(text.pixel(x, 16)), 0);
    QCOMPARE(qAlpha(text.pixel(8, 6)), 0);
    QCOMPARE(qAlpha(text.pixel(8, 26)), 0);
    QCOMPARE(player->Picture().pixel(24, 16), ink);
    QCOMPARE(qAlpha(player->Picture().pixel(40, 16)), 0);
}

void TestPlayer::findsTheTextLayer_data()
{
    QTest::addColumn<int>("effectType");
    QTest::addColumn<int>("continueStyle");
    QTest::addColumn<bool>("neon");
    QTest::addColumn<bool>("dazzle");
    QTest::addColumn<int>("failingAppend"); // 1 the first, 0 none
    QTest::addColumn<int>("layer");
    QTest::addColumn<int>("width");
    QTest::newRow("text alone") << 0 << 0 << false << false << 0 << 0 << 64;
    QTest::newRow("over neon") << 0 << 0 << true << false << 0 << 1 << 64;
    QTest::newRow("over neon and dazzle") << 0 << 0 << true << true << 0 << 1 << 64;
    QTest::newRow("over dazzle") << 0 << 0 << false << true << 0 << 0 << 64;
    QTest::newRow("its layer failed") << 0 << 0 << true << false << 1 << -1 << 0;
    QTest::newRow("its layer failed, dazzle has one") << 0 << 0 << true << true << 1 << -1 << 0;
    QTest::newRow("dazzle's layer failed") << 0 << 0 << true << true << 2 << 1 << 64;
    QTest::newRow("upwards over neon") << 1 << 2 << true << false << 0 << 1 << 64;
    QTest::newRow("sideways") << 1 << 0 << false << false << 0 << 0 << 80;
    QTest::newRow("sideways over neon") << 1 << 1 << true << true << 0 << 0 << 80;
    QTest::newRow("still over neon") << 2 << 0 << true << false << 0 << 1 << 64;
}

void TestPlayer::findsTheTextLayer()
{
    QFETCH(int, effectType);
    QFETCH(int, continueStyle);
    QFETCH(bool, neon);
    QFETCH(bool, dazzle);
    QFETCH(int, failingAppend);
    QFETCH(int, layer);
    QFETCH(int, width);
    SceneNode node = files.Node({QStringLiteral("abcde")});
    node.attributes[QStringLiteral("EffectType")] = effectType;
    node.attributes[QStringLiteral("ContinueStyle")] = continueStyle;
    node.attributes[QStringLiteral("CheckNeonBg")] = int(neon);
    node.attributes[QStringLiteral("CheckDazzle")] = int(dazzle);
    Load(TestScenes::Of({node}));
    Torv::FailCall(Torv::OpPicAppendImageLayer, failingAppend);
    player->Start();
    QCOMPARE(player->Scenery().TextLayer(0), layer);
    QCOMPARE(player->TextPicture(0).width(), width);
    QCOMPARE(player->Swapped(0), layer >= 0);

    const bool sideways = effectType == 1 && continueStyle < 2;
    player->Advance();
    QCOMPARE(player->Swapped(0), layer >= 0 && !sideways && effectType != 2);
    QCOMPARE(player->State(0), sideways ? 0 : 1);
}

void TestPlayer::keepsNodesApart()
{
    SceneNode empty = files.Node({QStringLiteral("  ")});
    SceneNode small = files.Node({QStringLiteral("ab"), 4, 9, 0, 1, QSize(48, 24)});
    small.pos = QPoint(64, 0);
    Scene scene = TestScenes::Of({files.Node({}), empty, small});
    scene.display = QSize(112, 32);
    Load(scene)->Start();
    player->Advance();
    QCOMPARE(player->TextPicture(0).size(), QSize(64, 32));
    QCOMPARE(player->TextPicture(1).size(), QSize(0, 0));
    QCOMPARE(player->TextPicture(2).size(), QSize(48, 24));
    QCOMPARE(player->State(1), 2);
    QVERIFY(!player->Swapped(1));
    QCOMPARE(qAlpha(player->Picture().pixel(8, 16)), 255);
    QCOMPARE(qAlpha(player->Picture().pixel(64 + 8, 12)), 255);
    QCOMPARE(qAlpha(player->Picture().pixel(64 + 24, 12)), 0);
}

void TestPlayer::givesNodesWhatTheSceneSays()
{
    SceneNode node = files.Node({});
    node.pos = QPoint(3, -4);
    node.hold = 7;
    node.neonEffect = 12;
    Scene scene = TestScenes::Of({node, node});
    scene.pages.append(ScenePage{{SceneArea{{node}}, SceneArea()}});
    Load(scene);
    QCOMPARE(player->NodeCount(), 3);
    Lw::HNeonNodeBase* first = player->Scenery().Node(0);
    QCOMPARE(first->Pos(), QPoint(3, -4));
    QCOMPARE(first->Size(), QSize(64, 32));
    QCOMPARE(first->GetHoldTime(), 7);
    QCOMPARE(first->GetNeonEffect(), 12);
    QCOMPARE(first->GetAttribute(QStringLiteral("Text")), QStringLiteral("abc"));
    QCOMPARE(first->GetAttributeToInt(QStringLiteral("AnimationEffect")), 4);
    QCOMPARE(first->GetList(QStringLiteral("TextWidth"))->items().size(), 3);
    QVERIFY(QFile::exists(first->GetFirstFile(QStringLiteral("PathData"))));
    // program, page, area, node
    QCOMPARE(first->ParentNode()->ChildNodes().size(), 2);
    Lw::HNode* page = player->Scenery().Node(2)->ParentNode()->ParentNode();
    QCOMPARE(page->ChildNodes().size(), 2);
    QCOMPARE(page->ParentNode()->ChildNodes().size(), 2);
    QCOMPARE(page->ParentNode()->ParentNode(), nullptr);
}

void TestPlayer::twoPlaysAreEqual_data()
{
    QTest::addColumn<int>("effect");
    QTest::addColumn<bool>("alphaBlend");
    for (int effect = 0; effect < 30; ++effect)
        QTest::addRow("effect %d", effect) << effect << (effect % 2 == 0);
}

void TestPlayer::twoPlaysAreEqual()
{
    QFETCH(int, effect);
    QFETCH(bool, alphaBlend);
    SceneNode node = files.Node({QStringLiteral("abcdefg"), effect, 8, 2, 2});
    node.attributes[QStringLiteral("CheckNeonBg")] = 1;
    node.attributes[QStringLiteral("CheckDazzle")] = 1;
    Scene scene = TestScenes::Of({node});
    scene.alphaBlend = alphaBlend;
    QList<QByteArray> plays[2];
    QStringList calls[2];
    for (int play = 0; play < 2; ++play) {
        Load(scene)->Scenery().KeepCalls(true);
        player->Start();
        for (int tick = 0; tick < 40; ++tick) {
            plays[play] << Digest(player->TextPicture(0)) << Digest(player->Picture());
            player->Advance();
        }
        calls[play] = player->Scenery().TakeCalls();
        player.reset();
    }
    QVERIFY(plays[0] == plays[1]);
    QVERIFY(!calls[0].isEmpty());
    // Handles count on, and stand in the lines.
    QCOMPARE(calls[0].size(), calls[1].size());
}

void TestPlayer::seedsEveryStart()
{
    const auto picture = [this](uint seed) {
        const Scene scene = TestScenes::Of(
            {files.Node({QStringLiteral("abcd"), 8}), files.Node({QStringLiteral("abcd"), 8})});
        Load(scene)->Start(seed);
        const QByteArray first = Digest(player->TextPicture(0));
        // Each start is seeded anew, so the first pictures of both are the same.
        return first == Digest(player->TextPicture(1)) ? first : QByteArray("not equal");
    };
    const QByteArray one = picture(1);
    QVERIFY(one != "not equal");
    QCOMPARE(picture(1), one);
    QVERIFY(picture(2) != one);
}

void TestPlayer::refusesWhatCannotPlay_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a type of another plugin")
        << "type"
        << ": $.pages[0].areas[0].nodes[1].type: expected LW_animationText_Plugin";
    QTest::newRow("nothing to play") << "empty"
                                     << ": $.pages: expected at least one node";
}

void TestPlayer::refusesWhatCannotPlay()
{
    QFETCH(QString, fault);
    QFETCH(QString, expected);
    SceneNode second = files.Node({});
    second.type = QStringLiteral("clock");
    const Scene bad = fault == QLatin1String("type") ? TestScenes::Of({files.Node({}), second})
                                                     : TestScenes::Of({});
    // What played before is gone, half of the new scene is not there.
    Load(TestScenes::Of({files.Node({})}))->Start();
    QCOMPARE(Torv::Accounts().liveSessions, 1);
    QString error;
    QVERIFY(!player->Load(bad, QStringLiteral("bad.json"), &error));
    QVERIFY2(error.startsWith(QStringLiteral("bad.json") + expected), qPrintable(error));
    QCOMPARE(Torv::Accounts().liveSessions, 0);
    QCOMPARE(player->NodeCount(), 0);
}

void TestPlayer::tellsWhyNoPluginIsThere()
{
    QString error;
    QVERIFY(!LoadPlugin(files.Path(QStringLiteral("none.so")), &error));
    QVERIFY2(error.contains(QStringLiteral("there is no plugin at ")), qPrintable(error));
    files.Write(QStringLiteral("text.so"), "no library");
    QVERIFY(!LoadPlugin(files.Path(QStringLiteral("text.so")), &error));
    QVERIFY2(error.contains(QStringLiteral("cannot be loaded")), qPrintable(error));
    QVERIFY2(!error.contains(QLatin1Char('\n')), qPrintable(error));
    QCOMPARE(PluginPath(QStringLiteral("given.so")), QStringLiteral("given.so"));
}

/** Effect 4 at speed 9 on three characters has four pictures a run. */
void TestPlayer::filmsToTheEnd_data()
{
    QTest::addColumn<int>("effectType");
    QTest::addColumn<int>("hold");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("frames");
    QTest::newRow("no hold") << 0 << 0 << 0.0 << 4;
    // Four pictures, four ticks of hold, and the hold once more: 200 ms are four ticks.
    QTest::newRow("a hold") << 0 << 2 << 0.0 << 4 + 4 + 4;
    QTest::newRow("a second") << 0 << 2 << 1.0 << 15;
    QTest::newRow("a moment") << 0 << 2 << 0.001 << 1;
    // 64 pixels of area and 48 of text at 5 pixels a tick, the last part of a tick being whole.
    QTest::newRow("sideways") << 1 << 2 << 0.0 << (64 + 48 + 4) / 5;
    // The host gives 6 seconds to what stands still.
    QTest::newRow("still") << 2 << 0 << 0.0 << 91;
}

void TestPlayer::filmsToTheEnd()
{
    QFETCH(int, effectType);
    QFETCH(int, hold);
    QFETCH(double, seconds);
    QFETCH(int, frames);
    SceneNode node = files.Node({QStringLiteral("abc"), 4, 9, hold, 1});
    node.attributes[QStringLiteral("EffectType")] = effectType;
    const Scene scene = TestScenes::Of({node});
    const QString path = files.Path(QStringLiteral("scene.json"));
    FilmSettings settings;
    settings.seconds = seconds;
    Film film(Load(scene), scene, path, settings);
    QString error;
    QVERIFY2(film.Plan(FilmWatch(), &error), qPrintable(error));
    // A tick more or less where the way does not divide into ticks.
    QVERIFY2(qAbs(film.FrameCount() - frames) <= (effectType == 1 ? 1 : 0),
             qPrintable(QString::number(film.FrameCount())));
}

void TestPlayer::filmRestsOnTheLastPage()
{
    const Scene scene = TestScenes::Of({files.Node({QStringLiteral("abc"), 4, 9, 2, 1})});
    const QString path = files.Path(QStringLiteral("scene.json"));
    FilmSettings settings;
    settings.scale = 2;
    settings.background = QColor(1, 2, 3);
    Film film(Load(scene), scene, path, settings);
    QString error;
    QVERIFY(film.Plan(FilmWatch(), &error));
    QCOMPARE(film.FrameSize(), QSize(128, 64));
    QList<QImage> pictures;
    const auto take = [&](int, const QImage& picture) {
        pictures.append(picture);
        return true;
    };
    QVERIFY(film.Play({0, 3, 4, film.FrameCount() - 1}, take, &error));
    QCOMPARE(pictures.size(), 4);
    QCOMPARE(pictures.at(0).pixel(0, 0), qRgb(1, 2, 3));
    QCOMPARE(pictures.at(1).pixel(2 * 40, 2 * 16), qRgb(0xFF, 0xA0, 0x40));
    QCOMPARE(pictures.at(2), pictures.at(1));
    QCOMPARE(pictures.at(3), pictures.at(1));
    QVERIFY(pictures.at(0) != pictures.at(1));
}

void TestPlayer::measuresAnimationAndHolds_data()
{
    QTest::addColumn<int>("effectType");
    QTest::addColumn<int>("speed");
    QTest::addColumn<int>("hold");
    QTest::addColumn<int>("plays");
    QTest::addColumn<int>("animationTicks");
    QTest::addColumn<int>("holdTicks");
    QTest::addColumn<int>("finishedMs");
    QTest::newRow("every tick") << 0 << 9 << 0 << 1 << 4 << 0 << 3 * 66;
    QTest::newRow("with hold") << 0 << 9 << 2 << 1 << 4 << 4 << 7 * 66;
    // 200 ms at a look every 330 ms: one look.
    QTest::newRow("every fifth tick") << 0 << 5 << 2 << 1 << 20 << 5 << 20 * 66;
    QTest::newRow("two plays") << 0 << 9 << 2 << 2 << 8 << 8 << 15 * 66;
    QTest::newRow("no play") << 0 << 9 << 2 << 0 << 0 << 0 << 66;
    QTest::newRow("sideways") << 1 << 9 << 2 << 1 << 0 << 0 << 0;
    QTest::newRow("still") << 2 << 9 << 2 << 1 << 0 << 0 << -1;
}

void TestPlayer::measuresAnimationAndHolds()
{
    QFETCH(int, effectType);
    QFETCH(int, speed);
    QFETCH(int, hold);
    QFETCH(int, plays);
    QFETCH(int, animationTicks);
    QFETCH(int, holdTicks);
    QFETCH(int, finishedMs);
    SceneNode node = files.Node({QStringLiteral("abc"), 4, speed, hold, plays});
    node.attributes[QStringLiteral("EffectType")] = effectType;
    const Scene scene = TestScenes::Of({node});
    player = std::make_unique<Player>(VirtualDispatcher::Current(), plugin);
    QString error;
    const QVector<Simulation> simulations =
        Simulate(player.get(), scene, files.Path(QStringLiteral("scene.json")), 1, Watch(), &error);
    QCOMPARE(simulations.size(), 1);
    QCOMPARE(simulations.first().animationTicks, animationTicks);
    QCOMPARE(simulations.first().holdTicks, holdTicks);
    QCOMPARE(int(simulations.first().finishedMs), finishedMs);
}

int main(int argc, char** argv)
{
    QCoreApplication::setEventDispatcher(new VirtualDispatcher);
    QGuiApplication application(argc, argv);
    TestPlayer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_player.moc"
