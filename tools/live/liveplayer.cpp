#include "live/liveplayer.h"

#include "player/player.h"

#include <hneonnodebase.h>

#include <QCoreApplication>
#include <QHash>
#include <QTimerEvent>

#include <algorithm>

namespace AnimText::live {

namespace {

constexpr int smoothly = 16;        // milliseconds, about one frame of a 60 Hz screen
constexpr qint64 longestWork = 500; // milliseconds to spend on skipped ticks

} // namespace

/**
 * Qt's timers skip ticks when the event loop is late, so playing would stay behind the clock for
 * good. While this object exists, it delivers the skipped ticks to timers of a tick's interval as
 * soon as the event loop runs again, except to those of @p player itself. It gives up on ticks that
 * it cannot deliver within half a second, for example when painting is slower than the clock.
 */
class TickKeeper : public QObject
{
public:
    explicit TickKeeper(QObject* player)
        : QObject(player)
    {
        clock.start();
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* timer = event->type() == QEvent::Timer ? qobject_cast<QTimer*>(object) : nullptr;
        if (!timer || sending || timer->interval() != player::tickLength ||
            timer->parent() == parent())
            return false;
        const qint64 now = clock.elapsed();
        const int id = timer->timerId();
        const auto last = due.constFind(id);
        qint64 mine = last != due.constEnd() ? *last + player::tickLength : now;
        sending = true;
        // A slot may stop its timer.
        while (now - mine >= player::tickLength && timer->timerId() == id) {
            if (clock.elapsed() - now > longestWork) {
                mine = now;
                break;
            }
            QTimerEvent missed(id);
            QCoreApplication::sendEvent(timer, &missed);
            mine += player::tickLength;
            ++madeUp;
        }
        sending = false;
        due.insert(id, mine);
        return false;
    }

    qint64 madeUp = 0; ///< skipped ticks that were delivered, of all timers together

private:
    QElapsedTimer clock;
    QHash<int, qint64> due; // time of each timer's last tick, milliseconds, by timer id
    bool sending = false;
};

LivePlayer::LivePlayer(Lw::INodePlugin* plugin, QObject* parent)
    : QObject(parent)
    , plugin(plugin)
{
    for (QTimer* timer : {&ticks, &moves, &changes}) {
        timer->setParent(this);
        timer->setTimerType(Qt::PreciseTimer);
    }
    changes.setSingleShot(true);
    connect(&ticks, &QTimer::timeout, this, &LivePlayer::Tick);
    connect(&moves, &QTimer::timeout, this, &LivePlayer::Move);
    connect(&changes, &QTimer::timeout, this, &LivePlayer::Change);
    Torv::SetClock(Clock, this);
}

LivePlayer::~LivePlayer()
{
    stage.reset();
    Torv::SetClock(nullptr, nullptr);
}

qint64 LivePlayer::Clock(void* player)
{
    return static_cast<const LivePlayer*>(player)->Time();
}

qint64 LivePlayer::Time() const
{
    return before + (running.isValid() ? running.elapsed() : 0);
}

/** Uses a new stage each time: some state, such as the dazzle colors, would survive a restart.
 */
void LivePlayer::Play(const scene::Scene& wanted, const LiveSettings& newSettings)
{
    auto next = std::make_unique<player::Stage>(plugin);
    next->Build(wanted);
    stage = std::move(next);
    scene = wanted;
    settings = newSettings;
    paused = ended = resting = false;
    before = lastShown = 0;
    earlier = Punctuality();
    keeper = std::make_unique<TickKeeper>(this);
    parts = QVector<Part>(stage->NodeCount(), Part());
    running.start();
    schedule = settings.schedule ? player::HostSchedule(scene, stage->Durations())
                                 : player::AllAtOnce(stage->NodeCount());
    stage->Start(schedule, settings.seed);
    Run();
    for (int node = 0; node < parts.size(); ++node) {
        const timing::NodePlay play = timing::PlayAtStart(*stage, node);
        parts[node].ending = play.ending;
        parts[node].end = play.end; // where it is not known, the renderer will say
    }
    Show();
}

/** Starts the timers right after the plugin's, so that each tick follows theirs. */
void LivePlayer::Run()
{
    ticks.start(player::tickLength);
    for (int node = 0; node < parts.size(); ++node) {
        if (stage->Motion(node).IsSideways())
            moves.start(smoothly);
    }
    Change();
}

void LivePlayer::Show()
{
    shown = stage->Compose(Time());
    emit Shown(shown);
}

/** Shows what the device moves by itself, between ticks. */
void LivePlayer::Move()
{
    const QImage picture = stage->Compose(Time());
    if (picture != shown)
        emit Shown(shown = picture);
}

void LivePlayer::Tick()
{
    const qint64 now = Time();
    earlier.latest = std::max(earlier.latest, now - lastShown - player::tickLength);
    lastShown = now;
    if (IsOver())
        End();
    else
        Show();
}

/** Keeps the schedule's last texts on the display, which would go dark otherwise. */
void LivePlayer::Change()
{
    if (Time() < schedule.length)
        stage->Change(Time());
    const qint64 next = stage->NextChange();
    if (next < schedule.length)
        changes.start(int(std::max<qint64>(0, next - Time())));
}

bool LivePlayer::IsOver()
{
    if (settings.schedule)
        return Time() >= schedule.length;
    bool allFinished = true;
    for (int node = 0; node < parts.size(); ++node) {
        Part& part = parts[node];
        if (part.end < 0 && stage->Render(node)->renderState() == 0)
            part.end = Time();
        allFinished = allFinished && part.end >= 0;
    }
    if (!allFinished)
        return false;
    if (!resting && !settings.loop) {
        resting = true;
        for (int node = 0; node < parts.size(); ++node) {
            if (parts.at(node).ending == timing::Ending::TooLong)
                parts[node].end = Time() + std::max(0, stage->Node(node)->GetHoldTime()) * 100LL;
        }
        Freeze();
    }
    return std::all_of(parts.begin(), parts.end(),
                       [&](const Part& part) { return part.end <= Time(); });
}

void LivePlayer::End()
{
    if (settings.loop) {
        const Punctuality kept = Kept();
        Play(scene, settings);
        earlier = kept;
        return;
    }
    Show();
    SetPaused(true);
    ended = true;
    emit Ended();
}

void LivePlayer::SetPaused(bool wanted)
{
    if (ended && !wanted)
        Play(scene, settings);
    if (!stage || paused == wanted)
        return;
    paused = wanted;
    if (paused) {
        // The plugin's timers start with a whole tick when they continue.
        before = lastShown = Time() - Time() % player::tickLength;
        running.invalidate();
        for (QTimer* timer : {&ticks, &moves, &changes})
            timer->stop();
        Freeze();
    } else {
        running.start();
        Freeze();
        Run();
    }
}

/** Stops the nodes that must not play now, and only these. */
void LivePlayer::Freeze()
{
    for (int node = 0; node < parts.size(); ++node) {
        Part& part = parts[node];
        const bool wanted = paused || (resting && part.ending == timing::Ending::TooLong);
        if (part.frozen == wanted || !stage->Session(node))
            continue;
        part.frozen = wanted;
        stage->Render(node)->Pause();
    }
}

Punctuality LivePlayer::Kept() const
{
    Punctuality kept = earlier;
    kept.time += Time();
    kept.due += Time() / player::tickLength + 1;
    kept.madeUp += keeper ? keeper->madeUp : 0;
    if (stage && stage->NodeCount() > 0 && stage->TextLayer(0) >= 0)
        kept.pictures += Torv::SwapCount(stage->Session(0), stage->TextLayer(0));
    return kept;
}

} // namespace AnimText::live
