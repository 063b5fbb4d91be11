#include "studio/window/time/playback.h"

#include "player/player.h"

#include <algorithm>

namespace AnimText::studio::window::time {
namespace {

constexpr int fastest = 8; // ticks per step

} // namespace

Playback::Playback(QObject* parent)
    : QObject(parent)
{
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(player::tickLength);
    connect(&timer, &QTimer::timeout, this, &Playback::Step);
}

void Playback::SetLength(int ticks)
{
    if (ticks == length)
        return;
    length = std::max(1, ticks);
    if (loop.first >= length)
        ClearLoop();
    loop.second = std::min(loop.second, length - 1);
    emit RangeChanged();
    Seek(tick); // the current tick may be beyond the end now
}

void Playback::Seek(int wanted)
{
    const int next = qBound(0, wanted, length - 1);
    if (next == tick)
        return;
    tick = next;
    emit TickChanged(tick);
}

void Playback::SetPace(int ticks)
{
    if (ticks == pace)
        return;
    pace = ticks;
    if (pace == 0)
        timer.stop();
    else
        timer.start();
    emit PaceChanged(pace);
}

void Playback::Toggle()
{
    if (!IsPlaying() && tick >= LoopEnd())
        Seek(LoopBegin());
    SetPace(IsPlaying() ? 0 : 1);
}

void Playback::Shuttle(int direction)
{
    const bool faster = pace * direction > 0;
    SetPace(faster ? direction * std::min(fastest, std::abs(pace) * 2) : direction);
}

void Playback::SetLoop(int begin, int end)
{
    loop = {std::max(0, std::min(begin, end)), std::min(length - 1, std::max(begin, end))};
    emit RangeChanged();
}

void Playback::ClearLoop()
{
    loop = {-1, -1};
    emit RangeChanged();
}

void Playback::Step()
{
    int next = tick + pace;
    if (next > LoopEnd())
        next = LoopBegin();
    else if (next < LoopBegin())
        next = LoopEnd();
    if (isReady && !isReady(next))
        return;
    Seek(next);
}

} // namespace AnimText::studio::window::time
