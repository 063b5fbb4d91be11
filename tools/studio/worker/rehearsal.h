/**
 * @file
 * Plays the document's sign in workers and provides the picture of any tick.
 */
#pragma once

#include "studio/model/sign.h"
#include "studio/worker/picturecache.h"
#include "studio/worker/scenefolder.h"
#include "studio/worker/workerlink.h"
#include "validate/validate.h"

#include <QThreadPool>

namespace AnimText::studio::worker {

/** Never blocks the window. */
class Rehearsal : public QObject
{
    Q_OBJECT

public:
    /**
     * @param plugin the plugin library; empty for the one beside the program
     * @param cacheBytes memory limit for pictures
     */
    explicit Rehearsal(const QString& plugin, qint64 cacheBytes = 192 << 20);
    ~Rehearsal() override;

    /** Sets the sign and the part to play; earlier pictures become invalid. */
    void SetSign(const model::Sign& sign, const Part& part);
    /** Makes @p tick the current one; Shown() follows at once or when its picture is ready. */
    void Look(int tick);

    int Tick() const { return wanted; }
    /** Whether the last picture of Shown() is that of the current tick. */
    bool IsCurrent() const { return current; }
    QImage Picture(int tick) const { return cache.Find(tick); }
    QByteArray Calls(int tick) const { return cache.Calls(tick); }
    bool Has(int tick) const { return cache.Has(tick); }
    const Timing& GetTiming() const { return timing; }
    /** Whether the timing is that of the present sign. */
    bool IsMeasured() const { return measured == generation; }
    qint64 KeptBytes() const { return cache.Bytes(); }

signals:
    /** The picture of the current tick. */
    void Shown(const QImage& picture);
    /** The shown picture is out of date; a new one is being made. */
    void Stale();
    void TimingChanged();
    void FindingsChanged(const QList<AnimText::validate::Finding>& findings);
    /** @param why why nothing can be shown; empty once it can */
    void Trouble(const QString& why);

private:
    void Prepare();
    void Prepared(const Order& order, const QString& error);
    void TakeAnswer(const Answer& answer);
    void TakeTiming(const Timing& timing);
    void AskAhead();
    void Ask(int from, int to);

    WorkerLink player;
    WorkerLink measurer;
    SceneFolder folder;
    QThreadPool pool;
    PictureCache cache;
    Timing timing;
    model::Sign sign;
    Part part;
    Order order; // of the sign that was prepared last; its scene is empty if it has no texts
    quint32 generation = 0;
    quint32 measured = 0;
    int wanted = 0;
    int orderedFrom = 0;
    int orderedTo = -1; // last tick requested from the worker
    bool current = false;
    bool busy = false; // a sign is being prepared
};

} // namespace AnimText::studio::worker
