#include "timing/playlength.h"

#include <hneonnodebase.h>
#include <torvsdk.h>

#include <QDataStream>
#include <QPainterPath>

#include <algorithm>

#include <sys/mman.h>

namespace AnimText::timing {

namespace {

constexpr int longHold = 50;    // units of 100 ms
constexpr int certainHold = 40; // ticks without a picture that only a hold can be; none of the
                                // speeds waits longer than 16 from one picture to the next

} // namespace

NodePlay PlayAtStart(const player::Stage& stage, int node)
{
    if (stage.Render(node)->renderState() == 2)
        return {Ending::NothingToPlay, -1, 0};
    if (stage.Motion(node).IsSideways())
        return {Ending::ScrollsOn, 0, ScrollPass(stage, node)};
    if (stage.Motion(node).mode == scene::Mode::Still)
        return {Ending::StandsStill, -1, stage.Node(node)->Duration()};
    return {};
}

BlankScene::BlankScene(const scene::Scene& from)
    : scene(from)
{
    int longest = 0;
    for (const scene::SceneNode* node : scene.Nodes())
        longest = std::max(longest, int(node->attributes.value("Text").toString().size()));
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
    for (scene::SceneNode* node : scene.Nodes()) {
        const auto file = node->files.find("PathData");
        if (file != node->files.end())
            *file = QStringLiteral("/proc/self/fd/%1").arg(memory);
    }
}

QVector<NodePlay> PlayToEnd(player::Player* player, int longest, uint seed, const Watch& watch)
{
    player->Start(seed);
    QVector<NodePlay> plays;
    QList<int> playing; // that can end
    for (int node = 0; node < player->NodeCount(); ++node) {
        plays.append(PlayAtStart(player->Scenery(), node));
        if (plays.at(node).ending != Ending::TooLong || !player->Scenery().Motion(node).Row())
            continue;
        playing.append(node);
        if (player->Swapped(node))
            plays[node].pictures.append(0);
    }
    while (!playing.isEmpty() && player->Tick() < longest) {
        player->Advance();
        for (int node : QList<int>(playing)) {
            if (player->Swapped(node))
                plays[node].pictures.append(player->Tick());
            if (player->State(node) == 0) {
                plays[node].ending = Ending::Finishes;
                plays[node].finishedTick = player->Tick();
                plays[node].end = player->Time();
                playing.removeOne(node);
            }
        }
        if (watch)
            watch(player->Tick());
    }
    return plays;
}

namespace {

/**
 * Plays @p scene without outlines, first with its holds changed, at most for @p longestChanged
 * ticks, then as it is, and has @p compare look at both plays of each node that finishes.
 */
QVector<NodePlay>
PlayTwice(player::Player* player, const scene::Scene& scene, int longest, uint seed,
          const Watch& watch, int (*holdOf)(int hold), int longestChanged,
          const std::function<void(int node, const NodePlay& changed, NodePlay* play)>& compare)
{
    const BlankScene blank(scene);
    scene::Scene changed = blank.Get();
    for (scene::SceneNode* node : changed.Nodes())
        node->hold = holdOf(node->hold);
    player->Load(changed);
    const QVector<NodePlay> others = PlayToEnd(player, longestChanged, seed, watch);
    player->Load(blank.Get());
    QVector<NodePlay> plays = PlayToEnd(player, longest, seed, watch);
    for (int node = 0; node < plays.size(); ++node) {
        if (plays.at(node).ending == Ending::Finishes)
            compare(node, others.at(node), &plays[node]);
    }
    return plays;
}

} // namespace

QVector<NodePlay> Simulate(player::Player* player, const scene::Scene& scene, uint seed,
                           const Watch& watch)
{
    const auto noHold = [](int) { return 0; };
    return PlayTwice(player, scene, ticksOfADay, seed, watch, noHold, ticksOfADay,
                     [&](int node, const NodePlay& moving, NodePlay* play) {
                         // With no plays, the first check finds it finished, whatever was drawn.
                         if (player->Scenery().Node(node)->GetAttributeToInt("PlayTimes") <= 0)
                             return;
                         play->animationTicks =
                             moving.pictures.size() * std::max(1, moving.pictures.value(1));
                         play->holdTicks = play->finishedTick - moving.finishedTick;
                     });
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

QVector<NodePlay> MeasurePages(player::Player* player, const scene::Scene& scene, int longest,
                               const Watch& watch)
{
    const auto unmistakable = [](int hold) { return std::min(std::max(0, hold), 1000) + longHold; };
    return PlayTwice(player, scene, longest, player::standardSeed, watch, unmistakable, 3 * longest,
                     [](int, const NodePlay& held, NodePlay* play) {
                         play->pages = PageTimes(play->pictures, held.pictures, play->finishedTick);
                     });
}

qint64 ScrollPass(const player::Stage& stage, int node)
{
    const scene::NodeMotion motion = stage.Motion(node);
    const QSize area = stage.Node(node)->Size();
    const int speed = stage.Node(node)->GetAttributeToInt(motion.SpeedKey());
    const qint64 crossing =
        GeteffectDuration(area.width(), area.height(), 26 + motion.number, speed - 1);
    const QImage line = Torv::FrontImage(stage.Session(node), 0);
    if (crossing <= 0 || area.width() <= 0 || line.isNull())
        return stage.Node(node)->Duration();
    return crossing * (area.width() + line.width()) / area.width();
}

} // namespace AnimText::timing
