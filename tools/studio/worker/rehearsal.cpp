#include "studio/worker/rehearsal.h"

#include "studio/worker/scenefolder.h"

#include <algorithm>

namespace AnimText {
namespace {

constexpr int ticksUnmeasured = 150; // painted ahead while the length is unknown

void RegisterTypes()
{
    qRegisterMetaType<TickPicture>();
    qRegisterMetaType<Timing>();
    qRegisterMetaType<LoadOrder>();
    qRegisterMetaType<quint32>("quint32");
}

} // namespace

Rehearsal::Rehearsal(const QString& plugin, qint64 cacheBytes, QObject* parent)
    : QObject(parent)
    , player(new WorkerLink(plugin))
    , measurer(new WorkerLink(plugin))
    , folder(std::make_shared<SceneFolder>())
    , cache(cacheBytes)
{
    RegisterTypes();
    for (WorkerLink* link : {player, measurer}) {
        link->moveToThread(&thread);
        connect(&thread, &QThread::finished, link, &QObject::deleteLater);
    }
    connect(&thread, &QThread::started, player, &WorkerLink::Start);
    connect(player, &WorkerLink::Loaded, this, &Rehearsal::TakeLoaded);
    connect(player, &WorkerLink::Picture, this, &Rehearsal::TakePicture);
    connect(player, &WorkerLink::Died, this, &Rehearsal::TakeDeath);
    connect(player, &WorkerLink::Idle, this, [this](quint32 of) {
        if (of != prepared)
            return;
        orderedTo = -1;
        AskAhead();
    });
    connect(player, &WorkerLink::Ready, this, [this](const QString& error) {
        if (!error.isEmpty())
            emit Trouble(error);
    });
    connect(measurer, &WorkerLink::Measured, this, [this](quint32 of, const Timing& times) {
        if (of != generation)
            return;
        timing = times;
        measured = of;
        emit TimingChanged();
        AskAhead();
    });
    pool.setMaxThreadCount(2);
    pool.setExpiryTimeout(-1);
    thread.start();
}

Rehearsal::~Rehearsal()
{
    pool.waitForDone();
    thread.quit();
    thread.wait();
}

void Rehearsal::SetSign(const Sign& next, const Part& nextPart)
{
    sign = next;
    part = nextPart;
    current = false;
    again = busy;
    ++generation;
    deaths = 0;
    emit Stale();
    if (busy)
        return;
    busy = true;
    pool.start([this, next, nextPart, of = generation] {
        QString error;
        const Scene scene = folder->Put(next, nextPart.page, &error);
        LoadOrder order;
        order.generation = of;
        order.scene = SceneToJson(scene);
        order.path = scene.path;
        order.schedule = nextPart.schedule;
        order.calls = nextPart.calls;
        order.faults = nextPart.faults;
        QMetaObject::invokeMethod(this, [this, of, order, error] { Prepared(of, order, error); });
    });
}

void Rehearsal::Prepared(quint32 of, const LoadOrder& order, const QString& error)
{
    busy = false;
    if (again) {
        again = false;
        --generation; // the present sign still has to be prepared
        SetSign(sign, part);
        return;
    }
    if (!error.isEmpty()) { // there is nothing to play
        emit Trouble(error);
        return;
    }
    prepared = of;
    loaded = order;
    cache.Clear();
    orderedTo = -1;
    if (std::none_of(sign.texts.begin(), sign.texts.end(), [this](const SignText& text) {
            return part.page < 0 || text.page == part.page;
        })) {
        timing = Timing();
        measured = of;
        QImage dark(sign.display, QImage::Format_ARGB32);
        dark.fill(Qt::transparent);
        cache.Insert(wanted, dark, QByteArray(), wanted);
        emit TimingChanged();
        emit FindingsChanged({});
        Look(wanted);
        return;
    }
    QMetaObject::invokeMethod(player, [link = player, order] { link->Load(order); });
    Order(wanted, wanted);
    QMetaObject::invokeMethod(measurer, [link = measurer, order] { link->Measure(order); });
    const Sign checked = sign;
    pool.start([this, checked, of] {
        // All pages, because findings name places in the whole sign.
        QString error;
        const Scene scene = folder->Put(checked, -1, &error);
        if (!error.isEmpty())
            return; // the next change reports it
        const QList<Finding> findings = ValidateScene(scene);
        QMetaObject::invokeMethod(this, [this, of, findings] {
            if (of == generation)
                emit FindingsChanged(findings);
        });
    });
}

void Rehearsal::TakeLoaded(quint32 of, const QString& error)
{
    if (of == prepared)
        emit Trouble(error);
}

void Rehearsal::TakePicture(const TickPicture& picture)
{
    if (picture.generation != prepared || prepared != generation)
        return;
    cache.Insert(picture.tick, picture.picture, picture.calls, wanted);
    orderedFrom = picture.tick + 1;
    if (picture.tick == wanted)
        Look(wanted);
}

void Rehearsal::TakeDeath(const QString& why)
{
    orderedTo = -1;
    if (++deaths > 1) {
        emit Trouble(why);
        return;
    }
    const LoadOrder order = loaded;
    QMetaObject::invokeMethod(player, [link = player, order] { link->Load(order); });
    Order(wanted, wanted);
}

void Rehearsal::Look(int tick)
{
    wanted = std::max(0, tick);
    if (prepared != generation)
        return;
    if (cache.Has(wanted)) {
        current = true;
        emit Shown(cache.Find(wanted));
    } else {
        current = false;
    }
    AskAhead();
}

int Rehearsal::LastTick() const
{
    return IsMeasured() ? timing.Ticks() : std::max(wanted, ticksUnmeasured);
}

/** Requests the ticks that are likely to be shown next, as far as memory allows. */
void Rehearsal::AskAhead()
{
    if (prepared != generation || !loaded.generation)
        return;
    const int room = cache.Room(sign.display) * 3 / 4;
    const bool coming = orderedTo >= wanted && orderedFrom <= wanted;
    if (!cache.Has(wanted)) {
        if (!coming)
            Order(std::max(0, wanted - room / 16), wanted + room / 4);
        return;
    }
    if (orderedTo >= 0)
        return;
    // Ahead first, then behind.
    const int last = std::max(wanted, LastTick());
    const int ahead = wanted + cache.RunFrom(wanted);
    if (ahead <= last && ahead < wanted + room / 2) {
        Order(ahead, std::min(last, wanted + room / 2));
        return;
    }
    int behind = std::max(0, wanted - room / 3);
    behind += cache.RunFrom(behind);
    if (behind < wanted)
        Order(behind, wanted);
}

void Rehearsal::Order(int from, int to)
{
    orderedFrom = from;
    orderedTo = to;
    QMetaObject::invokeMethod(player, [link = player, from, to] { link->Play(from, to); });
}

} // namespace AnimText
