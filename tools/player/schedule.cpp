#include "player/schedule.h"

#include <algorithm>

namespace AnimText::player {

Schedule AllAtOnce(int nodes)
{
    Schedule schedule;
    for (int node = 0; node < nodes; ++node)
        schedule.showings.append({node, 0, never});
    schedule.length = never;
    return schedule;
}

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

} // namespace AnimText::player
