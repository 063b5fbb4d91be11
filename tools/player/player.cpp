#include "player/player.h"

#include "player/callline.h"

#include <hneonnodebase.h>

namespace AnimText::player {

Player::Player(VirtualDispatcher* dispatcher, Lw::INodePlugin* plugin)
    : dispatcher(dispatcher)
    , stage(plugin)
{
    Torv::SetClock(Clock, this);
}

Player::~Player()
{
    stage.WatchCalls(nullptr);
    stage.Stop();
    Torv::SetClock(nullptr, nullptr);
}

qint64 Player::Clock(void* player)
{
    const auto* self = static_cast<const Player*>(player);
    return self->dispatcher->Now() - self->origin;
}

void Player::Start(const Schedule& schedule, uint seed)
{
    tick = 0;
    origin = dispatcher->Now();
    stage.Start(schedule, seed);
    // New sessions were not visible before.
    parts = QVector<Part>(NodeCount());
    CountSwaps();
    // A text that the device scrolls appears with its session.
    for (int node = 0; node < NodeCount(); ++node) {
        if (stage.Motion(node).IsSideways() && stage.Session(node))
            parts[node].swapped = true;
    }
}

void Player::Advance()
{
    ++tick;
    for (qint64 next; (next = stage.NextChange()) <= Time();) {
        dispatcher->AdvanceTo(origin + next);
        stage.Change(next);
    }
    dispatcher->AdvanceTo(origin + Time());
    CountSwaps();
}

void Player::CountSwaps()
{
    for (int node = 0; node < NodeCount(); ++node) {
        const qint64 count = Torv::SwapCount(stage.Session(node), stage.TextLayer(node));
        parts[node].swapped = count != parts.at(node).swaps;
        parts[node].swaps = count;
        parts[node].isKnown = parts.at(node).isKnown && !parts.at(node).swapped;
    }
}

NodeTick Player::Look(int node)
{
    Part& part = parts[node];
    if (!part.isKnown) { // a digest of a large picture takes longer than painting a tick
        const QImage picture = TextPicture(node);
        part.isKnown = true;
        part.size = picture.size();
        part.sha1 = Sha1Of(picture);
    }
    return {tick, part.swapped, part.size, part.sha1, State(node), Sha1Of(DazzlePicture(node))};
}

} // namespace AnimText::player
