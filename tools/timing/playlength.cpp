#include "timing/playlength.h"

#include <hneonnodebase.h>
#include <torvsdk.h>

#include <QDataStream>
#include <QPainterPath>

#include <algorithm>

#include <sys/mman.h>

namespace AnimText {

namespace {

constexpr qint64 ticksOfADay = 24LL * 3600 * 1000 / tickLength;
constexpr int longHold = 50;    // units of 100 ms
constexpr int certainHold = 40; // ticks without a picture that only a hold can be; none of the
                                // speeds waits longer than 16 from one picture to the next

qint64 Number(const SceneNode& node, const char* key)
{
    return node.attributes.value(QLatin1String(key)).toInt();
}

/** Upper bound: each character crosses the area and turns twice. */
qint64 LongestPlay(const SceneNode& node)
{
    const qint64 characters = node.attributes.value(QStringLiteral("Text")).toString().size() + 2;
    qint64 sizes = 0;
    for (const char* key : {"TextWidth", "TextHeight"}) {
        for (const QHash<QString, QString>& row : node.lists.value(QLatin1String(key))) {
            for (const QString& value : row)
                sizes += std::max(0, value.toInt());
        }
    }
    const qint64 frames =
        characters * (qint64(node.size.width()) + 3 * node.size.height() + 1000) + 2 * sizes;
    const qint64 hold = characters * (std::max(0, node.hold) * 100LL / tickLength + 20);
    const qint64 throttle = 16;
    const qint64 plays = std::max<qint64>(1, Number(node, "PlayTimes"));
    const qint64 run = (frames + hold) * throttle;
    return plays > ticksOfADay / run ? ticksOfADay : plays * run;
}

Scene WithoutHolds(Scene scene)
{
    for (SceneNode* node : scene.Nodes())
        node->hold = 0;
    return scene;
}

/** Holds are unmistakable. */
Scene WithLongHolds(Scene scene)
{
    for (SceneNode* node : scene.Nodes())
        node->hold = std::min(std::max(0, node->hold), 1000) + longHold;
    return scene;
}

} // namespace

Ending EndingAtStart(const Stage& stage, int node)
{
    if (stage.Render(node)->renderState() == 2)
        return Ending::NothingToPlay;
    if (stage.Motion(node).IsSideways())
        return Ending::ScrollsOn;
    return stage.Motion(node).mode == Mode::Still ? Ending::StandsStill : Ending::TooLong;
}

BlankScene::BlankScene(const Scene& from)
    : scene(from)
{
    int longest = 0;
    for (const SceneNode* node : scene.Nodes())
        longest = std::max(longest,
                           int(node->attributes.value(QStringLiteral("Text")).toString().size()));
    QByteArray list;
    QDataStream inner(&list, QIODevice::WriteOnly);
    inner.setVersion(QDataStream::Qt_4_8);
    inner << QVector<QPainterPath>(longest);
    const int memory = memfd_create("outlines", MFD_CLOEXEC);
    if (memory < 0 || !outlines.open(memory, QIODevice::WriteOnly, QFile::AutoCloseHandle))
        return;
    QDataStream outer(&outlines);
    outer << list.toBase64();
    if (outer.status() != QDataStream::Ok || !outlines.flush())
        return;
    for (SceneNode* node : scene.Nodes()) {
        const auto file = node->files.find(QStringLiteral("PathData"));
        if (file != node->files.end())
            *file = QStringLiteral("/proc/self/fd/%1").arg(memory);
    }
}

int LongestPlay(const Scene& scene)
{
    qint64 longest = 1;
    for (const SceneNode* node : scene.Nodes())
        longest = std::max(longest, LongestPlay(*node));
    return int(std::min(longest, ticksOfADay));
}

QVector<NodePlay> PlayToEnd(Player* player, int longest, uint seed, const Watch& watch)
{
    player->Start(seed);
    QVector<NodePlay> plays(player->NodeCount());
    const auto playing = [](const NodePlay& play) { return play.ending == Ending::TooLong; };
    for (int node = 0; node < plays.size(); ++node) {
        NodePlay& play = plays[node];
        play.ending = EndingAtStart(player->Scenery(), node);
        if (play.ending == Ending::ScrollsOn)
            play.finishedTick = 0;
        if (playing(play) && player->Swapped(node))
            play.pictures.append(0);
    }
    while (std::any_of(plays.begin(), plays.end(), playing) && player->Tick() < longest) {
        player->Advance();
        for (int node = 0; node < plays.size(); ++node) {
            NodePlay& play = plays[node];
            if (!playing(play))
                continue;
            if (player->Swapped(node))
                play.pictures.append(player->Tick());
            if (player->State(node) == 0) {
                play.ending = Ending::Finishes;
                play.finishedTick = player->Tick();
            }
        }
        if (watch && !watch(player->Tick()))
            return {};
    }
    return plays;
}

QVector<NodePlay> Simulate(Player* player, const Scene& scene, uint seed, const Watch& watch,
                           QString* error)
{
    const BlankScene blank(scene);
    const int longest = LongestPlay(scene);
    if (!player->Load(WithoutHolds(blank.Get()), error))
        return {};
    const QVector<NodePlay> moving = PlayToEnd(player, longest, seed, watch);
    if (moving.isEmpty() || !player->Load(blank.Get(), error))
        return {};
    QVector<NodePlay> plays = PlayToEnd(player, longest, seed, watch);
    for (int node = 0; node < plays.size(); ++node) {
        NodePlay& play = plays[node];
        // With no plays, the first check finds it finished, whatever was drawn.
        const bool isPlayed =
            player->Scenery().Node(node)->GetAttributeToInt(QStringLiteral("PlayTimes")) > 0;
        if (play.ending == Ending::Finishes && isPlayed) {
            const QVector<int>& pictures = moving.at(node).pictures;
            play.animationTicks = pictures.size() * std::max(1, pictures.value(1));
            play.holdTicks = play.finishedTick - moving.at(node).finishedTick;
        }
    }
    return plays;
}

/** Pages end where nothing was painted for longer than anything except a hold can take. */
QVector<PageTime> PageTimes(const QVector<int>& actual, const QVector<int>& held, int end)
{
    QVector<PageTime> pages;
    const int count = std::min(actual.size(), held.size());
    PageTime page;
    for (int i = 0; i < count; ++i) {
        const bool last = i + 1 == count;
        if (!last && held.at(i + 1) - held.at(i) < certainHold)
            continue;
        page.hold = std::min(actual.at(i) + 1, end);
        page.end = last ? end : actual.at(i + 1);
        pages.append(page);
        page.begin = page.end;
    }
    return pages;
}

QVector<NodePlay> MeasurePages(Player* player, const Scene& scene, int longest, const Watch& watch,
                               QString* error)
{
    const BlankScene blank(scene);
    if (!player->Load(WithLongHolds(blank.Get()), error))
        return {};
    const QVector<NodePlay> held = PlayToEnd(player, 3 * longest, standardSeed, watch);
    if (held.isEmpty() || !player->Load(blank.Get(), error))
        return {};
    QVector<NodePlay> plays = PlayToEnd(player, longest, standardSeed, watch);
    for (int node = 0; node < plays.size(); ++node) {
        NodePlay& play = plays[node];
        if (play.ending == Ending::Finishes)
            play.pages = PageTimes(play.pictures, held.at(node).pictures, play.finishedTick);
    }
    return plays;
}

qint64 ScrollPass(const Stage& stage, int node)
{
    const NodeMotion motion = stage.Motion(node);
    const QSize area = stage.Node(node)->Size();
    const int speed = stage.Node(node)->GetAttributeToInt(motion.SpeedKey());
    const qint64 crossing =
        GeteffectDuration(area.width(), area.height(), 26 + motion.number, speed - 1);
    const QImage line = Torv::FrontImage(stage.Session(node), 0);
    if (crossing <= 0 || area.width() <= 0 || line.isNull())
        return 0;
    return crossing * (area.width() + line.width()) / area.width();
}

} // namespace AnimText
