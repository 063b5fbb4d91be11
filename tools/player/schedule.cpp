#include "player/schedule.h"

#include "player/stage.h"

#include <algorithm>

namespace AnimText::player {

Schedule HostSchedule(const scene::Scene& scene, const QVector<qint64>& durations)
{
    Schedule schedule;
    int node = 0;
    for (const scene::ScenePage& page : scene.pages) {
        const qint64 pageStart = schedule.length;
        QVector<int> lastOfAreas; // of each area
        for (const scene::SceneArea& area : page.areas) {
            qint64 time = pageStart;
            int last = -1;
            for (int i = 0; i < area.nodes.size(); ++i, ++node) {
                const qint64 end = time + std::max<qint64>(0, durations.value(node));
                if (end == time)
                    continue;
                last = schedule.showings.size();
                schedule.showings.append({node, time, end});
                time = end;
            }
            if (last >= 0)
                lastOfAreas.append(last);
            schedule.length = std::max(schedule.length, time);
        }
        for (int last : lastOfAreas)
            schedule.showings[last].until = schedule.length;
    }
    std::stable_sort(schedule.showings.begin(), schedule.showings.end(),
                     [](const Showing& a, const Showing& b) { return a.from < b.from; });
    return schedule;
}

ScheduledPlay::ScheduledPlay(Stage* stage, const Schedule& schedule, uint seed)
    : stage(stage)
    , coming(schedule.showings)
    , seed(seed)
{
}

qint64 ScheduledPlay::NextChange() const
{
    qint64 next = coming.isEmpty() ? -1 : coming.first().from;
    for (const Showing& showing : shown)
        next = next < 0 ? showing.until : std::min(next, showing.until);
    return next;
}

void ScheduledPlay::Change(qint64 time)
{
    for (int i = shown.size() - 1; i >= 0; --i) {
        if (shown.at(i).until <= time)
            stage->StopNode(shown.takeAt(i).node);
    }
    while (!coming.isEmpty() && coming.first().from <= time) {
        stage->StartNode(coming.first().node, seed);
        shown.append(coming.takeFirst());
    }
}

} // namespace AnimText::player
