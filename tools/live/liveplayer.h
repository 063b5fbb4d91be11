/**
 * @file
 * Plays a scene in real time, with the event loop's own timers.
 */
#pragma once

#include "player/stage.h"
#include "timing/playlength.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <memory>

namespace AnimText::live {

class TickKeeper;

struct LiveSettings
{
    bool loop = false;     ///< starts again when all texts have ended
    bool schedule = false; ///< page by page for the planned times, as the host plays
    uint seed = player::standardSeed;
};

/** How well playing has kept up with the clock. */
struct Punctuality
{
    qint64 time = 0;     ///< milliseconds played, without pauses
    qint64 due = 0;      ///< ticks until now, the first one included
    qint64 pictures = 0; ///< that the first node has given to the display
    qint64 latest = 0;   ///< longest delay from a tick to the screen, milliseconds
    qint64 madeUp = 0;   ///< ticks delivered after the next one was due
};

/**
 * The plugin's timers run in the event loop of the thread, which must not use virtual time.
 * Shown() is emitted after every tick, and more often where the device itself moves a text. Only
 * one player may play at a time.
 */
class LivePlayer : public QObject
{
    Q_OBJECT

public:
    explicit LivePlayer(Lw::INodePlugin* plugin, QObject* parent = nullptr);
    ~LivePlayer() override;

    /** Plays @p scene from its start. Throws Failure and continues with the previous scene. */
    void Play(const scene::Scene& scene, const LiveSettings& settings);

    /** Stops or restarts the display's clock, and everything with it. */
    void SetPaused(bool paused);
    bool IsPaused() const { return paused; }
    /** Whether all texts have ended; never while looping. Unpausing starts the scene again. */
    bool HasEnded() const { return ended; }

    /** Milliseconds since playing started, without pauses. */
    qint64 Time() const;
    const player::Stage& Scenery() const { return *stage; }
    /** Since playing started, over all its loops. */
    Punctuality Kept() const;

signals:
    /** The display's picture, also when a tick has not changed it. */
    void Shown(const QImage& picture);
    void Ended();

private:
    static qint64 Clock(void* player);
    void Run();
    void Show();
    void Move();
    void Tick();
    void Change();
    bool IsOver();
    void End();
    void Freeze();

    Lw::INodePlugin* plugin;
    std::unique_ptr<player::Stage> stage;
    scene::Scene scene;
    LiveSettings settings;
    player::Schedule schedule;
    struct Part
    {
        timing::Ending ending = timing::Ending::TooLong;
        qint64 end = -1; // milliseconds; -1 while unknown
        bool frozen = false;
    };
    QVector<Part> parts;
    QTimer ticks;
    std::unique_ptr<TickKeeper> keeper;
    QTimer moves;   // between ticks, while the device moves a text
    QTimer changes; // of the schedule
    QElapsedTimer running;
    qint64 before = 0;    // milliseconds played up to the last pause
    qint64 lastShown = 0; // milliseconds at the last tick
    QImage shown;
    Punctuality earlier;  // of the previous loops; its delay also of this one
    bool resting = false; // all nodes that can finish have done so, and are stopped
    bool paused = false;
    bool ended = false;
};

} // namespace AnimText::live
