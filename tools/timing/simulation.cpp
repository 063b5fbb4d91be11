#include "timing/simulation.h"

#include <hneonnodebase.h>

namespace AnimText {

namespace {

Scene WithoutHolds(Scene scene)
{
    for (SceneNode* node : scene.Nodes())
        node->hold = 0;
    return scene;
}

bool HasHolds(const Scene& scene)
{
    for (const SceneNode* node : scene.Nodes()) {
        if (node->hold > 0)
            return true;
    }
    return false;
}

} // namespace

QVector<Simulation> Simulate(Player* player, const Scene& scene, uint seed, const Watch& watch,
                             QString* error)
{
    const BlankScene blank(scene);
    const Scene holdless = WithoutHolds(blank.Get());
    if (!player->Load(holdless, error))
        return {};
    const QVector<NodePlay> moving = PlayToEnd(player, LongestPlay(scene), seed, watch);
    QVector<NodePlay> whole = moving;
    if (HasHolds(scene)) {
        if (!player->Load(blank.Get(), error))
            return {};
        whole = PlayToEnd(player, LongestPlay(scene), seed, watch);
    }

    QVector<Simulation> simulations(whole.size());
    for (int node = 0; node < whole.size(); ++node) {
        Simulation& simulation = simulations[node];
        simulation.ending = whole.at(node).ending;
        if (simulation.ending == Ending::ScrollsOn)
            simulation.finishedMs = 0;
        if (simulation.ending != Ending::Finishes)
            continue;
        simulation.finishedMs = qint64(whole.at(node).finishedTick) * tickLength;
        // With no plays, the first check finds it finished, whatever was drawn.
        const int plays =
            player->Scenery().Node(node)->GetAttributeToInt(QStringLiteral("PlayTimes"));
        if (plays > 0) {
            simulation.animationTicks =
                moving.at(node).frames * qMax(1, moving.at(node).ticksPerFrame);
            simulation.holdTicks = whole.at(node).finishedTick - moving.at(node).finishedTick;
        }
    }
    return simulations;
}

} // namespace AnimText
