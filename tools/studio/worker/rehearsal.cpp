#include "studio/worker/rehearsal.h"

#include <algorithm>

namespace AnimText::studio::worker {
namespace {

constexpr int ticksUnmeasured = 150; // painted ahead while the length is unknown

} // namespace

Rehearsal::Rehearsal(const QString& plugin, qint64 cacheBytes)
    : player(plugin)
    , measurer(plugin)
    , cache(cacheBytes)
{
    connect(&player, &WorkerLink::Answered, this, &Rehearsal::TakeAnswer);
    connect(&player, &WorkerLink::Died, this, [this](const QString& why) {
        orderedTo = -1;
        emit Trouble(why);
    });
    connect(&measurer, &WorkerLink::Answered, this, [this](const Answer& answer) {
        const bool isMeasured = answer.kind == Answer::Measured && answer.error.isEmpty();
        if (isMeasured && answer.generation == generation)
            TakeTiming(answer.timing);
    });
    connect(&measurer, &WorkerLink::Died, this, &Rehearsal::Trouble);
    pool.setMaxThreadCount(2);
    pool.setExpiryTimeout(-1);
    player.Start();
}

Rehearsal::~Rehearsal()
{
    pool.waitForDone();
}

void Rehearsal::SetSign(const model::Sign& next, const Part& nextPart)
{
    sign = next;
    part = nextPart;
    current = false;
    ++generation;
    emit Stale();
    if (!busy)
        Prepare();
}

void Rehearsal::Prepare()
{
    busy = true;
    pool.start([this, next = sign, nextPart = part, of = generation] {
        QString error;
        const scene::Scene scene = folder.Put(next, nextPart.page, &error);
        Order prepared;
        prepared.generation = of;
        prepared.scene = scene::SceneToJson(scene);
        prepared.path = scene.path;
        prepared.part = nextPart;
        QMetaObject::invokeMethod(this, [this, prepared, error] { Prepared(prepared, error); });
    });
}

void Rehearsal::Prepared(const Order& prepared, const QString& error)
{
    busy = false;
    if (prepared.generation != generation) {
        Prepare();
        return;
    }
    if (!error.isEmpty()) { // there is nothing to play
        emit Trouble(error);
        return;
    }
    order = prepared;
    cache.Clear();
    orderedTo = -1;
    if (std::none_of(sign.texts.begin(), sign.texts.end(), [this](const model::SignText& text) {
            return part.page < 0 || text.page == part.page;
        })) {
        order.scene.clear();
        TakeTiming(Timing()); // goes back to the start, which is all there is
        QImage dark(sign.display, QImage::Format_ARGB32);
        dark.fill(Qt::transparent);
        cache.Insert(wanted, dark, QByteArray(), wanted);
        emit FindingsChanged({});
        Look(wanted);
        return;
    }
    Ask(wanted, wanted);
    Order measuring = order;
    measuring.measures = true;
    measurer.Send(measuring);
    pool.start([this, checked = sign, of = generation] {
        // All pages, because findings name places in the whole sign.
        QString error;
        const scene::Scene scene = folder.Put(checked, -1, &error);
        if (!error.isEmpty())
            return; // the next change reports it
        const QList<validate::Finding> findings = validate::ValidateScene(scene);
        QMetaObject::invokeMethod(this, [this, of, findings] {
            if (of == generation)
                emit FindingsChanged(findings);
        });
    });
}

void Rehearsal::TakeAnswer(const Answer& answer)
{
    if (answer.kind == Answer::Ready && !answer.error.isEmpty())
        emit Trouble(answer.error);
    if (answer.generation != order.generation || order.generation != generation)
        return;
    if (answer.kind == Answer::Loaded)
        emit Trouble(answer.error);
    if (answer.kind == Answer::Picture) {
        cache.Insert(answer.tick, answer.picture, answer.calls, wanted);
        orderedFrom = answer.tick + 1;
        if (answer.tick == wanted)
            Look(wanted);
    }
    if (answer.kind == Answer::Idle) {
        orderedTo = -1;
        AskAhead();
    }
}

void Rehearsal::TakeTiming(const Timing& times)
{
    timing = times;
    measured = generation;
    emit TimingChanged();
    AskAhead();
}

void Rehearsal::Look(int tick)
{
    wanted = std::max(0, tick);
    if (order.generation != generation)
        return;
    if (cache.Has(wanted)) {
        current = true;
        emit Shown(cache.Find(wanted));
    } else {
        current = false;
    }
    AskAhead();
}

/** Requests the ticks that are likely to be shown next, as far as memory allows. */
void Rehearsal::AskAhead()
{
    if (order.generation != generation || order.scene.isEmpty())
        return;
    const int room = cache.Room(sign.display) * 3 / 4;
    const bool coming = orderedTo >= wanted && orderedFrom <= wanted;
    if (!cache.Has(wanted)) {
        if (!coming)
            Ask(std::max(0, wanted - room / 16), wanted + room / 4);
        return;
    }
    if (orderedTo >= 0)
        return;
    // Ahead first, then behind.
    const int last = std::max(wanted, IsMeasured() ? timing.Ticks() : ticksUnmeasured);
    const int ahead = wanted + cache.RunFrom(wanted);
    if (ahead <= last && ahead < wanted + room / 2) {
        Ask(ahead, std::min(last, wanted + room / 2));
        return;
    }
    int behind = std::max(0, wanted - room / 3);
    behind += cache.RunFrom(behind);
    if (behind < wanted)
        Ask(behind, wanted);
}

void Rehearsal::Ask(int from, int to)
{
    orderedFrom = order.first = from;
    orderedTo = order.last = to;
    player.Send(order);
}

} // namespace AnimText::studio::worker
