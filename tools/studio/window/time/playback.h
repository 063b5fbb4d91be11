/**
 * @file
 * Where in time one is: the tick that is looked at, and how it moves on.
 */
#ifndef ANIMTEXT_PLAYBACK_H
#define ANIMTEXT_PLAYBACK_H

#include <QObject>
#include <QTimer>

#include <functional>

namespace AnimText {

class Playback : public QObject
{
    Q_OBJECT

public:
    explicit Playback(QObject* parent = nullptr);

    int Tick() const { return tick; }
    /** Ticks to a step: negative backwards, 0 while it stands. */
    int Pace() const { return pace; }
    bool IsPlaying() const { return pace != 0; }
    int Length() const { return length; }
    /** The ticks that are played over and over; all of them unless a range was set. */
    int LoopBegin() const { return hasLoop ? loopBegin : 0; }
    int LoopEnd() const { return hasLoop ? loopEnd : length - 1; }
    bool HasLoop() const { return hasLoop; }

    /** Ticks that there are, 1 at least. */
    void SetLength(int ticks);
    /** Goes to that tick, or the nearest that there is. */
    void Seek(int tick);
    void SetPace(int ticks);
    /** Plays, or stands still. */
    void Toggle();
    /** Faster in that direction, 1 or -1; from standing or the other direction at one tick a step.
     */
    void Shuttle(int direction);
    void SetLoop(int begin, int end);
    void ClearLoop();

    /** Asked before a step whether its picture is there; playing waits until it is. */
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
    bool hasLoop = false;
    int loopBegin = 0;
    int loopEnd = 0;
};

} // namespace AnimText

#endif
