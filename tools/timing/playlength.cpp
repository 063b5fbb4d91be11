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

void Look(Player* player, int node, NodePlay* play)
{
    const bool playing = play->ending == Ending::TooLong;
    if (player->Swapped(node)) {
        if (playing)
            ++play->frames;
        if (play->ticksPerFrame == 0)
            play->ticksPerFrame = player->Tick();
    }
    if (playing && player->State(node) == 0) {
        play->ending = Ending::Finishes;
        play->finishedTick = player->Tick();
    }
}

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
    for (int node = 0; node < plays.size(); ++node) {
        plays[node].ending = EndingAtStart(player->Scenery(), node);
        plays[node].finishedTick = plays.at(node).ending == Ending::ScrollsOn ? 0 : -1;
        plays[node].frames =
            plays.at(node).ending == Ending::TooLong && player->Swapped(node) ? 1 : 0;
    }
    const auto playing = [](const NodePlay& play) { return play.ending == Ending::TooLong; };
    while (std::any_of(plays.begin(), plays.end(), playing) && player->Tick() < longest) {
        player->Advance();
        for (int node = 0; node < plays.size(); ++node)
            Look(player, node, &plays[node]);
        if (watch && !watch(player->Tick()))
            break;
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
