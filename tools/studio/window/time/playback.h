/**
 * @file
 * The current tick and how it advances.
 */
#pragma once

#include <QObject>
#include <QPair>
#include <QTimer>

#include <functional>

namespace AnimText::studio::window::time {

class Playback : public QObject
{
    Q_OBJECT

public:
    explicit Playback(QObject* parent = nullptr);

    int Tick() const { return tick; }
    /** Ticks per step; negative plays backward, 0 is stopped. */
    int Pace() const { return pace; }
    bool IsPlaying() const { return pace != 0; }
    int Length() const { return length; }
    /** First and last tick of the loop; all ticks unless a range is set. */
    int LoopBegin() const { return HasLoop() ? loop.first : 0; }
    int LoopEnd() const { return HasLoop() ? loop.second : length - 1; }
    bool HasLoop() const { return loop.first >= 0; }

    /** Sets the number of ticks, at least 1. */
    void SetLength(int ticks);
    /** Goes to @p tick or the nearest one that exists. */
    void Seek(int tick);
    void SetPace(int ticks);
    /** Starts or stops playing. */
    void Toggle();
    /** Plays in @p direction, 1 or -1, at one tick per step; if it already does, twice as fast.
     */
    void Shuttle(int direction);
    void SetLoop(int begin, int end);
    void ClearLoop();

    /** Returns whether the picture of @p tick is ready; playing waits for it. */
    std::function<bool(int tick)> isReady;

signals:
    void TickChanged(int tick);
    void PaceChanged(int pace);
    void RangeChanged();

private:
    void Step();

    QTimer timer;
    int tick = 0;
    int pace = 0;
    int length = 1;
    QPair<int, int> loop{-1, -1};
};

} // namespace AnimText::studio::window::time
