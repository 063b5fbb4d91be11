#include "player/player.h"

#include <hneonnodebase.h>

namespace AnimText {

Player::Player(VirtualDispatcher* dispatcher, Lw::INodePlugin* plugin)
    : dispatcher(dispatcher)
    , stage(plugin)
{
    Torv::SetClock(Clock, this);
}

Player::~Player()
{
    stage.Stop();
    Torv::SetClock(nullptr, nullptr);
}

qint64 Player::Clock(void* player)
{
    const auto* self = static_cast<const Player*>(player);
    return self->dispatcher->Now() - self->origin;
}

bool Player::Load(const Scene& scene, QString* error)
{
    return stage.Build(scene, error);
}

QVector<qint64> Player::Durations() const
{
    QVector<qint64> durations;
    for (int node = 0; node < NodeCount(); ++node)
        durations.append(stage.Node(node)->Duration());
    return durations;
}

void Player::Start(uint seed)
{
    origin = dispatcher->Now();
    scheduled.reset();
    stage.Start(seed);
    Begin();
}

void Player::Start(const Schedule& schedule, uint seed)
{
    origin = dispatcher->Now();
    stage.Stop();
    scheduled = std::make_unique<ScheduledPlay>(&stage, schedule, seed);
    scheduled->Change(0);
    Begin();
}

void Player::Begin()
{
    tick = 0;
    // New sessions were not visible before.
    swaps = QVector<qint64>(NodeCount(), 0);
    swapped = QVector<bool>(NodeCount(), false);
    CountSwaps();
    // A text that the device scrolls appears with its session.
    for (int node = 0; node < NodeCount(); ++node) {
        if (stage.Motion(node).IsSideways() && stage.Session(node))
            swapped[node] = true;
    }
}

void Player::Advance()
{
    ++tick;
    while (scheduled && scheduled->NextChange() >= 0 && scheduled->NextChange() <= Time()) {
        const qint64 change = scheduled->NextChange();
        dispatcher->AdvanceTo(origin + change);
        scheduled->Change(change);
    }
    dispatcher->AdvanceTo(origin + Time());
    CountSwaps();
}

qint64 Player::Swaps(int node) const
{
    const int layer = stage.TextLayer(node);
    return layer < 0 ? 0 : Torv::SwapCount(stage.Session(node), layer);
}

void Player::CountSwaps()
{
    for (int node = 0; node < NodeCount(); ++node) {
        const qint64 count = Swaps(node);
        swapped[node] = count != swaps.at(node);
        swaps[node] = count;
    }
}

QImage Player::DazzlePicture(int node) const
{
    const int layer = stage.DazzleLayer(node);
    return layer < 0 ? QImage() : Torv::FrontImage(stage.Session(node), layer);
}

QImage Player::TextPicture(int node) const
{
    const int layer = stage.TextLayer(node);
    return layer < 0 ? QImage() : Torv::FrontImage(stage.Session(node), layer);
}

} // namespace AnimText
