#include "files/failure.h"
#include "film/film.h"
#include "film/videofile.h"
#include "player/plugin.h"
#include "scene/attributes.h"
#include "scene/catalog.h"
#include "testscene.h"
#include "timing/playlength.h"

#include <hneonnodebase.h>
#include <inodeplugin.h>

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QtTest>

using namespace AnimText;

namespace {

/** What is played: a text of three characters, and what is expected of it. */
struct Play
{
    const char* name;
    int effectType, speed, hold, plays;
    const char* swaps;
    int animationTicks, holdTicks;
    int finished; // tick, or none
    int frames;   // of a film: up to that tick, and the hold once more
};

struct Layers
{
    const char* name;
    int effectType, style;
    bool neon, dazzle;
    int failingAppend; // 1 the first, 0 none
    int layer, width;
};

} // namespace

Q_DECLARE_METATYPE(Play)
Q_DECLARE_METATYPE(Layers)

class TestPlayer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { plugin = player::LoadPlugin(player::PluginPath()); }

    void init() { Torv::ResetAccounts(); }

    /** Whatever was played has left nothing on the device and asked it nothing wrong. */
    void cleanup()
    {
        player.reset();
        Torv::ClearFaults();
        const Torv::Accounting accounts = Torv::Accounts();
        QCOMPARE(accounts.liveSessions, 0);
        QCOMPARE(accounts.liveLayers, 0);
        // The blend of a layer that could not be made is set anyway.
        const qint64 expected = accounts.injectedFaults > 0 ? accounts.badLayer : 0;
        QVERIFY2(accounts.Misuses() == expected, qPrintable(Torv::AccountsReport()));
    }

    /** Effect 4 shows 0, 1, 2 and 3 characters, a picture every 10 - speed ticks, then holds. */
    void playsTickByTick_data()
    {
        static const char always[] = "0 1 2 3 4 5 6 7 8 9 10";
        QTest::addColumn<Play>("play");
        for (const Play& play : {
                 Play{"without hold", 0, 9, 0, 1, always, 4, 0, 3, 4},
                 Play{"two plays", 0, 9, 0, 2, always, 8, 0, 7, 8},
                 Play{"a hold of four ticks", 0, 9, 2, 1, "0 1 2 3 4 8 9 10", 4, 4, 7, 7 + 1 + 4},
                 Play{"every third tick", 0, 7, 0, 1, "0 3 6 9", 12, 0, 9, 9 + 1},
                 // 200 ms at a look every 330 ms: one look.
                 Play{"every fifth tick", 0, 5, 2, 1, "0 5 10", 20, 5, 20, 20 + 1 + 4},
                 Play{"no play at all", 0, 9, 0, 0, always, 0, 0, 1, 1 + 1},
                 Play{"sideways", 1, 9, 2, 1, "0", 0, 0, 0, (64 + 48) / 5 + 1},
                 Play{"still", 2, 9, 2, 1, "0", 0, 0, -1, 91},
             })
            QTest::newRow(play.name) << play;
    }

    void playsTickByTick()
    {
        QFETCH(Play, play);
        const scene::Scene scene = files.Of({files.Node(
            {"abc", 4, play.speed, play.hold, play.plays}, {{"EffectType", play.effectType}})});
        Load(scene);
        const auto simulation = timing::Simulate(player.get(), scene, 1).value(0);
        QCOMPARE(simulation.animationTicks, play.animationTicks);
        QCOMPARE(simulation.holdTicks, play.holdTicks);
        QCOMPARE(int(simulation.FinishedMs()), play.finished < 0 ? -1 : play.finished * 66);

        const film::Film film(player.get(), scene, film::FilmSettings());
        QCOMPARE(film.FrameCount(), play.frames);

        Load(scene)->Start();
        QStringList swaps;
        for (; player->Tick() <= 10; player->Advance())
            if (player->Swapped(0))
                swaps.append(QString::number(player->Tick()));
        QCOMPARE(swaps.join(' '), QString(play.swaps));
        QCOMPARE(player->Time(), 11 * 66);
    }

    void pagesEndWhereLongHoldsBegin_data()
    {
        QTest::addColumn<QVector<int>>("actual");
        QTest::addColumn<QVector<int>>("held");
        QTest::addColumn<int>("end");
        QTest::addColumn<QString>("pages");
        using Ticks = QVector<int>;
        QTest::newRow("none") << Ticks{} << Ticks{} << 9 << "";
        QTest::newRow("one picture") << Ticks{0} << Ticks{0} << 9 << "0-1-9 ";
        QTest::newRow("slowest of all") << Ticks{0, 16, 32} << Ticks{0, 16, 32} << 33 << "0-33-33 ";
        QTest::newRow("two") << Ticks{0, 1, 5, 6} << Ticks{0, 1, 80, 81} << 9 << "0-2-5 5-7-9 ";
        QTest::newRow("not held") << Ticks{0, 1, 2} << Ticks{0, 76, 152} << 3
                                  << "0-1-1 1-2-2 2-3-3 ";
        QTest::newRow("one play was broken off")
            << Ticks{0, 5, 9} << Ticks{0, 80} << 12 << "0-1-5 5-6-12 ";
    }

    void pagesEndWhereLongHoldsBegin()
    {
        QFETCH(QVector<int>, actual);
        QFETCH(QVector<int>, held);
        QFETCH(int, end);
        QString told;
        for (const timing::PageTime& page : timing::PageTimes(actual, held, end))
            told += QString("%1-%2-%3 ").arg(page.begin).arg(page.hold).arg(page.end);
        QTEST(told, "pages");
    }

    void findsTheTextLayer_data()
    {
        QTest::addColumn<Layers>("layers");
        for (const Layers& layers : {
                 Layers{"text alone", 0, 0, false, false, 0, 0, 64},
                 Layers{"over neon and dazzle", 0, 0, true, true, 0, 1, 64},
                 Layers{"over dazzle", 0, 0, false, true, 0, 0, 64},
                 Layers{"its layer failed", 0, 0, true, false, 1, -1, 0},
                 Layers{"its layer failed, dazzle has one", 0, 0, true, true, 1, -1, 0},
                 Layers{"dazzle's layer failed", 0, 0, true, true, 2, 1, 64},
                 Layers{"upwards over neon", 1, 2, true, false, 0, 1, 64},
                 Layers{"sideways over neon", 1, 1, true, true, 0, 0, 80},
                 Layers{"still over neon", 2, 0, true, false, 0, 1, 64},
             })
            QTest::newRow(layers.name) << layers;
    }

    void findsTheTextLayer()
    {
        QFETCH(Layers, layers);
        Load(files.Of({files.Node({"abcde"}, {{"EffectType", layers.effectType},
                                              {"ContinueStyle", layers.style},
                                              {"CheckNeonBg", int(layers.neon)},
                                              {"CheckDazzle", int(layers.dazzle)}})}));
        Torv::FailCall(Torv::OpPicAppendImageLayer, layers.failingAppend);
        player->Start();
        QCOMPARE(player->Scenery().TextLayer(0), layers.layer);
        QCOMPARE(player->TextPicture(0).width(), layers.width);
        QCOMPARE(player->Swapped(0), layers.layer >= 0);
    }

    void keepsNodesApart()
    {
        scene::SceneNode small = files.Node({"ab", 4, 9, 7, 1, QSize(48, 24)});
        small.pos = QPoint(64, 0);
        scene::Scene scene = files.Of({files.Node({}), files.Node({"  "}), small});
        scene.display = QSize(112, 32);
        Load(scene)->Start();
        player->Advance();
        const QSize sizes[] = {QSize(64, 32), QSize(0, 0), QSize(48, 24)};
        for (int i = 0; i < 3; ++i)
            QCOMPARE(player->TextPicture(i).size(), sizes[i]);
        QCOMPARE(player->State(1), 2);
        QVERIFY(!player->Swapped(1));
        // A character of each. Baseline 32/2 + 20/2 - 4 = 22, so rows 22 - 14 to 22 - 14 + 16.
        const QImage picture = player->Picture();
        for (const QPoint& inside : {QPoint(8, 16), QPoint(64 + 8, 12)})
            QCOMPARE(picture.pixel(inside), qRgb(0xFF, 0xA0, 0x40));
        for (const QPoint& outside :
             {QPoint(0, 16), QPoint(15, 16), QPoint(8, 6), QPoint(8, 26), QPoint(64 + 24, 12)})
            QCOMPARE(qAlpha(picture.pixel(outside)), 0);
        Lw::HNeonNodeBase* node = player->Scenery().Node(2);
        QCOMPARE(node->Pos(), QPoint(64, 0));
        QCOMPARE(node->GetHoldTime(), 7);
    }

    /** Each start is seeded again, so the first pictures of two nodes are equal. */
    void seedsEveryStart()
    {
        const scene::Scene scene = files.Of({files.Node({"abcd", 8}), files.Node({"abcd", 8})});
        QList<QImage> pictures;
        for (uint seed : {1, 1, 2}) {
            Load(scene)->Start(seed);
            pictures.append(player->TextPicture(0).copy());
            QCOMPARE(player->TextPicture(1), pictures.last());
        }
        QCOMPARE(pictures.at(1), pictures.at(0));
        QVERIFY(pictures.at(2) != pictures.at(0));
    }

    /** What played before is gone, half of the new scene is not there. */
    void refusesWhatCannotPlay()
    {
        scene::SceneNode clock = files.Node({});
        clock.type = "clock";
        const QMap<QString, scene::Scene> faults{
            {"$.pages[0].areas[0].nodes[1].type: expected LW_animationText_Plugin",
             files.Of({files.Node({}), clock})},
            {"$.pages: expected at least one node", files.Of({})}};
        for (const QString& expected : faults.keys()) {
            Load(files.Of({files.Node({})}))->Start();
            const scene::Scene bad = faults.value(expected);
            QString error;
            try {
                player->Load(bad);
            } catch (const files::Failure& failure) {
                error = failure.message;
            }
            QVERIFY2(error.startsWith(bad.path + ": " + expected), qPrintable(error));
            QCOMPARE(Torv::Accounts().liveSessions, 0);
            QCOMPARE(player->NodeCount(), 0);
        }
    }

    void filmRestsOnTheLastPage()
    {
        const scene::Scene scene = files.Of({files.Node({"abc", 4, 9, 2})});
        film::FilmSettings settings;
        settings.scale = 2;
        settings.background = QColor(1, 2, 3);
        film::Film film(Load(scene), scene, settings);
        QList<QImage> pictures;
        QCOMPARE(film.FrameCount(), 12); // the end is tick 7; played on, 11 would be as 3 again
        film.Play({0, 3, 4, 7, 8, 9, 10, 11},
                  [&](int, const QImage& picture) { pictures.append(picture); });
        QCOMPARE(pictures.size(), 8);
        QCOMPARE(pictures.at(0).size(), QSize(128, 64));
        QCOMPARE(pictures.at(0).pixel(2 * 40, 2 * 16), qRgb(1, 2, 3));
        QCOMPARE(pictures.at(1).pixel(2 * 40, 2 * 16), qRgb(0xFF, 0xA0, 0x40));
        for (const QImage& later : pictures.mid(2))
            QCOMPARE(later, pictures.at(1));
    }

    /** Ends are looked for without outlines. */
    void findsTheSameEndWithoutOutlines()
    {
        for (int effect = 0; effect < scene::Effects().size(); ++effect) {
            const scene::Scene scene = files.Of({files.Node({"abcdef", effect, 9, 3})});
            const int end =
                timing::PlayToEnd(Load(scene), timing::ticksOfADay, 1).value(0).finishedTick;
            QVERIFY(end > 0);
            QCOMPARE(timing::Simulate(player.get(), scene, 1).value(0).FinishedMs(),
                     qint64(end) * 66);
        }
        Load(files.Of({files.Node({"abc", 30})}));
        QCOMPARE(timing::PlayToEnd(player.get(), timing::ticksOfADay, 1).value(0).ending,
                 timing::Ending::TooLong);
        QCOMPARE(player->Tick(), 0); // an effect that does not exist is not waited for
    }

    /** Two pages: areas of two nodes and of one, then one with a planned time of 0. */
    void playsByTheHostsSchedule()
    {
        scene::Scene scene = files.Of({files.Node({"a"}), files.Node({"b", 4, 9, 3})});
        scene.display = QSize(192, 32);
        scene::SceneNode right = files.Node({"a"});
        right.pos = QPoint(64, 0);
        scene.pages.first().areas.append(scene::SceneArea{{right}});
        scene::SceneNode last = files.Node({"ab", 4, 9, 3});
        last.pos = QPoint(128, 0);
        scene.pages.append(scene::ScenePage{{scene::SceneArea{{last, files.Node({" "})}}}});
        const player::Schedule schedule = player::HostSchedule(scene, {100, 300, 150, 200, 0});
        QStringList showings;
        for (const player::Showing& showing : schedule.showings)
            showings.append(
                QString("%1: %2-%3").arg(showing.node).arg(showing.from).arg(showing.until));
        QCOMPARE(showings.join(", "), QString("0: 0-100, 2: 0-400, 1: 100-400, 3: 400-600"));
        QCOMPARE(schedule.length, 600);

        Load(scene)->Start(schedule, 1);
        QStringList shown; // tick 2 is at 132 ms, 6 at 396, 7 at 462, 10 at 660
        for (; player->Tick() <= 10; player->Advance()) {
            QString nodes;
            for (int node = 0; node < 5; ++node)
                nodes += player->Scenery().Session(node) ? QString::number(node) : QString();
            shown.append(nodes);
        }
        QCOMPARE(shown.join(' '), QString("02 02 12 12 12 12 12 3 3 3 "));

        film::FilmSettings settings;
        settings.schedule = true;
        film::Film film(Load(scene), scene, settings);
        const player::Schedule told = player::HostSchedule(scene, player->Durations());
        QCOMPARE(film.FrameCount(), int((told.length + 65) / 66));
        QImage end;
        film.Play({int(told.showings.at(3).until / 66)},
                  [&](int, const QImage& picture) { end = picture; });
        QCOMPARE(end.pixel(128 + 8, 16), qRgb(0xFF, 0xA0, 0x40));
        QCOMPARE(end.pixel(8, 16), qRgb(0, 0, 0));
    }

    /** What is said not to be heeded changes no picture; all else does, in one of the scenes. */
    void heedsWhatTheTableSays()
    {
        QImage red(8, 8, QImage::Format_RGB32);
        red.fill(Qt::red);
        red.save(files.Path("red.png"));
        QSet<const scene::Attribute*> effective;
        for (const QMap<QString, QVariant>& more :
             QList<QMap<QString, QVariant>>{{},
                                            {{"EffectType", 1}},
                                            {{"EffectType", 1}, {"ContinueStyle", 2}},
                                            {{"CheckDazzle", 1}},
                                            {{"CheckDazzle", 1}, {"CheckColorGradient", 1}},
                                            {{"CheckDazzle", 1}, {"CheckPictureFills", 1}},
                                            {{"CheckNeonBg", 1}},
                                            {{"CheckNeonBg", 1}, {"neonEffect", 28}}}) {
            scene::SceneNode node = files.Node({"abcdef", 5, 7, 1}, more);
            node.neonEffect = node.attributes.take("neonEffect").toInt() + 1;
            node.files["FillImage"] = node.files["NeonGifPath"] = files.Path("red.png");
            const QByteArray before = Played(node);
            for (const scene::Attribute& attribute : scene::Attributes()) {
                const QString key = attribute.key;
                scene::SceneNode changed = node;
                if (attribute.home == scene::Home::Files)
                    changed.files.remove(key);
                else if (attribute.field)
                    scene::SetNumber(&changed, attribute, scene::NumberOf(node, attribute) + 9);
                else if (attribute.home == scene::Home::Attributes && key != "Text")
                    scene::SetNumber(&changed, attribute,
                                     scene::NumberOf(node, attribute) == 0 ? 1 : 0);
                else
                    continue;
                const bool differs = Played(changed) != before;
                QString why;
                if (scene::IsUsed(attribute, node, &why) && differs)
                    effective.insert(&attribute);
                else
                    QVERIFY2(!differs, qPrintable(key + ": " + why));
                QCOMPARE(why.isEmpty(), scene::IsUsed(attribute, node));
            }
        }
        for (const scene::Attribute& attribute : scene::Attributes())
            if (attribute.home == scene::Home::Attributes || attribute.home == scene::Home::Files)
                QVERIFY2(effective.contains(&attribute) || attribute.key == QString("Text") ||
                             attribute.use.usedBy == QString("nothing"),
                         attribute.key);
    }

    void givesUpOnAnEncoderThatStandsStill()
    {
        const QTemporaryDir programs;
        QFile script(programs.filePath("ffmpeg"));
        QVERIFY(script.open(QIODevice::WriteOnly) && script.write("#!/bin/sh\nexec sleep 600\n"));
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        script.close();
        const QByteArray before = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(programs.path()) + ':' + before);
        QString message;
        try {
            film::WriteVideo(
                files.Path("still.webp"), *film::FilmKindOf("still.webp"),
                {QSize(8, 8), 1, false, false}, [](film::FilmStage, const film::TakePicture&) {},
                [] {}, 100);
        } catch (const files::Failure& failure) {
            message = failure.message;
        }
        QVERIFY2(
            message.endsWith("still.webp cannot be written: ffmpeg has stood still for 0.1 s and "
                             "was ended"),
            qPrintable(message));
        qputenv("PATH", before);
    }

private:
    /** The pictures of four seconds, and the planned time. */
    QByteArray Played(const scene::SceneNode& node)
    {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        for (Load(files.Of({node}))->Start(); player->Tick() < 60; player->Advance()) {
            const QImage picture = player->Picture();
            hash.addData(reinterpret_cast<const char*>(picture.constBits()),
                         int(picture.sizeInBytes()));
        }
        return hash.result() + QByteArray::number(player->Durations().first());
    }

    player::Player* Load(const scene::Scene& scene)
    {
        player = std::make_unique<player::Player>(player::VirtualDispatcher::Current(), plugin);
        player->Load(scene);
        return player.get();
    }

    TestScenes files;
    Lw::INodePlugin* plugin = nullptr;
    std::unique_ptr<player::Player> player;
};

int main(int argc, char** argv)
{
    QCoreApplication::setEventDispatcher(new player::VirtualDispatcher);
    QGuiApplication application(argc, argv);
    TestPlayer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_player.moc"
