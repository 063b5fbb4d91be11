/**
 * @file
 * Plays whatever the document holds, in workers, and has the picture of any tick.
 */
#ifndef ANIMTEXT_REHEARSAL_H
#define ANIMTEXT_REHEARSAL_H

#include "studio/model/sign.h"
#include "studio/worker/picturecache.h"
#include "studio/worker/workerlink.h"
#include "validate/validate.h"

#include <QElapsedTimer>
#include <QThread>
#include <QThreadPool>

namespace AnimText {

class SceneFolder;

/** What of a sign is played, and how. */
struct Part
{
    int page = -1;                         ///< negative for all pages
    bool schedule = false;                 ///< as the host plays it
    bool calls = false;                    ///< keeps the device's calls
    QVector<QPair<qint32, qint32>> faults; ///< calls of the device that fail

    bool operator==(const Part& other) const
    {
        return page == other.page && schedule == other.schedule && calls == other.calls &&
               faults == other.faults;
    }
};

/** Belongs to the window's thread, and never keeps it waiting. */
class Rehearsal : public QObject
{
    Q_OBJECT

public:
    /**
     * @param plugin the library to be played with; empty for the one beside the program
     * @param cacheBytes for pictures that are kept
     */
    explicit Rehearsal(const QString& plugin, qint64 cacheBytes = 192 << 20,
                       QObject* parent = nullptr);
    ~Rehearsal() override;

    /** Another sign, or another part of it; the pictures that were made are of the past. */
    void SetSign(const Sign& sign, const Part& part);
    /** Looks at @p tick: its picture comes at once if it is there, else as soon as it is made. */
    void Look(int tick);

    int Tick() const { return wanted; }
    /** Whether the picture that was last told of is that of the tick that is looked at. */
    bool IsCurrent() const { return current; }
    QImage Picture(int tick) const { return cache.Find(tick); }
    QByteArray Calls(int tick) const { return cache.Calls(tick); }
    bool Has(int tick) const { return cache.Has(tick); }
    const Timing& GetTiming() const { return timing; }
    /** Whether the timing is that of the sign as it is. */
    bool IsMeasured() const { return measured == generation; }
    qint64 KeptBytes() const { return cache.Bytes(); }

signals:
    /** The picture of the tick that is looked at. */
    void Shown(const QImage& picture);
    /** The picture that was shown is no longer true; the next one is being made. */
    void Stale();
    void TimingChanged();
    void FindingsChanged(const QList<AnimText::Finding>& findings);
    /** Why nothing can be shown; empty when all is well again. */
    void Trouble(const QString& why);

private:
    void Prepared(quint32 forGeneration, const LoadOrder& order, const QString& error);
    void TakePicture(const TickPicture& picture);
    void TakeLoaded(quint32 forGeneration, const QString& error);
    void TakeDeath(const QString& why);
    void AskAhead();
    void Order(int from, int to);
    int LastTick() const;

    QThread thread;
    WorkerLink* player;
    WorkerLink* measurer;
    std::shared_ptr<SceneFolder> folder;
    QThreadPool pool;
    PictureCache cache;
    Timing timing;
    Sign sign;
    Part part;
    LoadOrder loaded;
    quint32 generation = 0;
    quint32 prepared = 0;
    quint32 measured = 0;
    int wanted = 0;
    int orderedFrom = 0;
    int orderedTo = -1; // what the worker was last asked for
    int deaths = 0;     // in a row, of this generation
    bool current = false;
    bool busy = false; // a sign is being prepared
    bool again = false;
};

} // namespace AnimText

#endif
