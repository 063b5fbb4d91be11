/**
 * @file
 * A scene that plays on the wall clock, with the event loop's own timers.
 */
#ifndef ANIMTEXT_LIVEPLAYER_H
#define ANIMTEXT_LIVEPLAYER_H

#include "live/tickkeeper.h"
#include "player/schedule.h"
#include "player/stage.h"
#include "timing/playlength.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <memory>

namespace AnimText {

struct LiveSettings
{
    bool loop = false;     ///< begins anew when everything has come to its end
    bool schedule = false; ///< as the host plays it, by the times that it is told
    uint seed = standardSeed;
};

/** How a play has kept up with the clock. */
struct Punctuality
{
    qint64 time = 0;     ///< milliseconds played, pauses not counted
    qint64 due = 0;      ///< ticks up to now, the start among them
    qint64 pictures = 0; ///< of the text, handed to the display by its first node
    qint64 latest = 0;   ///< the most milliseconds by which the screen came after a tick
    qint64 madeUp = 0;   ///< ticks that came later than the next one should have
};

/**
 * The plugin's timers run in the event loop of the thread, which must not be one on virtual time.
 * What the display shows is told after every tick; where the device moves a text by itself, more
 * often. One player plays at a time.
 */
class LivePlayer : public QObject
{
    Q_OBJECT

public:
    explicit LivePlayer(Lw::INodePlugin* plugin, QObject* parent = nullptr);
    ~LivePlayer() override;

    /**
     * Plays @p scene from its start. On failure answers false, with one line in @p error, and goes
     * on with what it played before.
     */
    bool Play(const Scene& scene, const LiveSettings& settings, QString* error);

    /** The display's clock, and with it everything, stands still. */
    void SetPaused(bool paused);
    bool IsPaused() const { return paused; }
    /** Everything has come to its end; only without loop. Being unpaused it begins anew. */
    bool HasEnded() const { return ended; }

    /** Milliseconds since the play began, pauses not counted. */
    qint64 Time() const;
    const Stage& Scenery() const { return *stage; }
    /** Since the play began, all its rounds together. */
    Punctuality Kept() const;

signals:
    /** What the display shows from now on; the same again where a tick has changed nothing. */
    void Shown(const QImage& picture);
    void Ended();

private:
    static qint64 Clock(void* player);
    bool Begin(const Scene& wanted, QString* error);
    void Run();
    void Show();
    void Move();
    void Tick();
    void Change();
    bool IsOver();
    void End();
    void Freeze();

    Lw::INodePlugin* plugin;
    std::unique_ptr<Stage> stage;
    Scene scene;
    LiveSettings settings;
    Schedule schedule;
    std::unique_ptr<ScheduledPlay> scheduled;
    struct Part
    {
        Ending ending = Ending::TooLong;
        qint64 end = -1; // milliseconds; -1 as long as it is not known
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
    Punctuality punctuality;
    Punctuality earlier;  // of the rounds before
    bool resting = false; // what finishes has finished and stands still
    bool paused = false;
    bool ended = false;
};

} // namespace AnimText

#endif
