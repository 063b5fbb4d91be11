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
    case Ending::Finishes: return play.FinishedMs();
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
    const QVector<NodePlay> plays = MeasurePages(player, scene, longest, watch, error);
    if (plays.isEmpty())
        return false;

    const QVector<qint64> durations = player->Durations();
    *timing = Timing();
    for (int node = 0; node < plays.size(); ++node) {
        TextTime text;
        text.ending = plays.at(node).ending;
        text.planned = durations.at(node);
        text.actual = ActualEnd(plays.at(node), *player, &player->Scenery(), node);
        text.pages = plays.at(node).pages;
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

} // namespace AnimText
