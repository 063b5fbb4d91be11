#include "studio/worker/timing.h"

#include <hneonnodebase.h>

#include <algorithm>

namespace AnimText {
namespace {

constexpr int longest = 20 * 60 * 1000 / tickLength; // ticks that are measured
constexpr int longHold = 50;                         // units of 100 ms
constexpr int certainHold = 40; // ticks without a picture that only a hold can be; none of the
                                // speeds waits longer than 16 from one picture to the next

/** The scene with every page held for longer, so that its pages can be told apart. */
Scene WithLongHolds(Scene scene)
{
    for (ScenePage& page : scene.pages) {
        for (SceneArea& area : page.areas) {
            for (SceneNode& node : area.nodes)
                node.hold = std::min(std::max(0, node.hold), 1000) + longHold;
        }
    }
    return scene;
}

/** The ticks at which each text handed over a picture, in one play to the end. */
struct Play
{
    QVector<NodePlay> nodes;
    QVector<QVector<int>> pictures;
};

bool PlayWhole(Player* player, const Scene& scene, int last, const Watch& watch, Play* play,
               QString* error)
{
    if (!player->Load(scene, error))
        return false;
    play->pictures = QVector<QVector<int>>(player->NodeCount());
    play->pictures.fill({0}); // the start shows the first one
    QVector<bool> finished(player->NodeCount(), false);
    bool goesOn = true;
    const auto look = [&](int tick) {
        for (int node = 0; node < player->NodeCount(); ++node) {
            if (!finished.at(node) && player->Swapped(node))
                play->pictures[node].append(tick);
            finished[node] = finished.at(node) || player->State(node) == 0;
        }
        goesOn = !watch || watch(tick);
        return goesOn;
    };
    play->nodes = PlayToEnd(player, last, standardSeed, look);
    return goesOn;
}

/** Pages end where nothing was painted for longer than anything but a hold can take. */
QVector<PageTime> PagesOf(const QVector<int>& real, const QVector<int>& held, int end)
{
    QVector<PageTime> pages;
    const int count = std::min(real.size(), held.size());
    PageTime page;
    for (int i = 0; i < count; ++i) {
        const bool last = i + 1 == count;
        if (!last && held.at(i + 1) - held.at(i) < certainHold)
            continue;
        page.hold = std::min(real.at(i) + 1, end);
        page.end = last ? end : real.at(i + 1);
        pages.append(page);
        page.begin = page.end;
    }
    return pages;
}

/** When a text is done, in milliseconds; negative when it never is. */
qint64 RealEnd(const NodePlay& play, const Player& player, Stage* stage, int node)
{
    switch (play.ending) {
    case Ending::Finishes: return qint64(play.finishedTick) * tickLength;
    case Ending::ScrollsOn: {
        const qint64 pass = ScrollPass(*stage, node);
        return pass > 0 ? pass : player.Durations().at(node);
    }
    case Ending::StandsStill: return player.Durations().at(node);
    case Ending::NothingToPlay: return 0;
    case Ending::TooLong: return -1;
    }
    return -1;
}

} // namespace

bool MeasureTiming(Player* player, const Scene& scene, bool schedule, const Watch& watch,
                   Timing* timing, QString* error)
{
    const BlankScene blank(scene);
    Play held;
    Play real;
    if (!PlayWhole(player, WithLongHolds(blank.Get()), 3 * longest, watch, &held, error) ||
        !PlayWhole(player, blank.Get(), std::min(longest, LongestPlay(scene)), watch, &real, error))
        return false;

    const QVector<qint64> durations = player->Durations();
    *timing = Timing();
    for (int node = 0; node < real.nodes.size(); ++node) {
        TextTime text;
        text.ending = real.nodes.at(node).ending;
        text.told = durations.at(node);
        text.real = RealEnd(real.nodes.at(node), *player, &player->Scenery(), node);
        if (text.ending == Ending::Finishes)
            text.pages = PagesOf(real.pictures.at(node), held.pictures.at(node),
                                 real.nodes.at(node).finishedTick);
        timing->isCut = timing->isCut || text.ending == Ending::TooLong;
        timing->length = std::max({timing->length, text.told, text.real});
        timing->texts.append(text);
    }
    if (schedule) {
        const Schedule host = HostSchedule(scene, durations);
        for (const Showing& showing : host.showings) {
            timing->texts[showing.node].from = showing.from;
            timing->texts[showing.node].until = showing.until;
        }
        timing->length = host.length;
    }
    const qint64 measured = qint64(longest) * tickLength;
    timing->length = timing->isCut && !schedule ? measured : std::min(timing->length, measured);
    return true;
}

QDataStream& operator<<(QDataStream& stream, const Timing& timing)
{
    stream << timing.length << timing.isCut << qint32(timing.texts.size());
    for (const TextTime& text : timing.texts) {
        stream << qint32(text.ending) << text.told << text.real << text.from << text.until
               << qint32(text.pages.size());
        for (const PageTime& page : text.pages)
            stream << page.begin << page.hold << page.end;
    }
    return stream;
}

QDataStream& operator>>(QDataStream& stream, Timing& timing)
{
    qint32 texts = 0;
    stream >> timing.length >> timing.isCut >> texts;
    timing.texts.clear();
    for (qint32 i = 0; i < texts && stream.status() == QDataStream::Ok; ++i) {
        TextTime text;
        qint32 ending = 0;
        qint32 pages = 0;
        stream >> ending >> text.told >> text.real >> text.from >> text.until >> pages;
        text.ending = Ending(ending);
        for (qint32 p = 0; p < pages && stream.status() == QDataStream::Ok; ++p) {
            PageTime page;
            stream >> page.begin >> page.hold >> page.end;
            text.pages.append(page);
        }
        timing.texts.append(text);
    }
    return stream;
}

} // namespace AnimText
