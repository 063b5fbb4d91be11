#include "studio/worker/timing.h"

#include <hneonnodebase.h>

#include <algorithm>

namespace AnimText {
namespace {

constexpr int longest = 20 * 60 * 1000 / tickLength; // ticks to measure at most

/** Actual time of a text in milliseconds; negative if it never ends. */
qint64 ActualEnd(const NodePlay& play, const Player& player, Stage* stage, int node)
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
    PagedPlay play;
    if (!MeasurePages(player, scene, std::min(longest, LongestPlay(scene)), watch, &play, error))
        return false;

    const QVector<qint64> durations = player->Durations();
    *timing = Timing();
    for (int node = 0; node < play.nodes.size(); ++node) {
        TextTime text;
        text.ending = play.nodes.at(node).ending;
        text.planned = durations.at(node);
        text.actual = ActualEnd(play.nodes.at(node), *player, &player->Scenery(), node);
        text.pages = play.pages.at(node);
        timing->isCut = timing->isCut || text.ending == Ending::TooLong;
        timing->length = std::max({timing->length, text.planned, text.actual});
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
        stream << qint32(text.ending) << text.planned << text.actual << text.from << text.until
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
        stream >> ending >> text.planned >> text.actual >> text.from >> text.until >> pages;
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
