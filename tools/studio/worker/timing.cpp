#include "studio/worker/timing.h"

#include <algorithm>

namespace AnimText::studio::worker {
namespace {

constexpr int longest = 20 * 60 * 1000 / player::tickLength; // ticks to measure at most

} // namespace

Timing MeasureTiming(player::Player* player, const scene::Scene& scene, bool schedule,
                     const timing::Watch& watch)
{
    const QVector<timing::NodePlay> plays = timing::MeasurePages(player, scene, longest, watch);
    const QVector<qint64> durations = player->Durations();
    Timing timing;
    for (int node = 0; node < plays.size(); ++node) {
        TextTime text;
        text.ending = plays.at(node).ending;
        text.planned = durations.at(node);
        text.actual = plays.at(node).end;
        text.pages = plays.at(node).pages;
        timing.isCut = timing.isCut || text.ending == timing::Ending::TooLong;
        timing.length = std::max({timing.length, text.planned, text.actual});
        timing.texts.append(text);
    }
    if (schedule) {
        const player::Schedule host = player::HostSchedule(scene, durations);
        for (const player::Showing& showing : host.showings) {
            timing.texts[showing.node].from = showing.from;
            timing.texts[showing.node].until = showing.until;
        }
        timing.length = host.length;
    }
    const qint64 measured = qint64(longest) * player::tickLength;
    timing.length = timing.isCut && !schedule ? measured : std::min(timing.length, measured);
    return timing;
}

} // namespace AnimText::studio::worker
