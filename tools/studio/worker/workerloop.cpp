#include "studio/worker/workerloop.h"

#include "player/callline.h"
#include "player/plugin.h"

#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace AnimText {

WorkerLoop::WorkerLoop(VirtualDispatcher* dispatcher, const QString& pluginPath, int output)
    : dispatcher(dispatcher)
    , pluginPath(pluginPath)
    , output(output)
{
}

int WorkerLoop::Run()
{
    plugin = LoadPlugin(PluginPath(pluginPath), &pluginError);
    Send(Packed(Message::Ready, pluginError));
    while (!ended) {
        Message kind;
        QByteArray body;
        if (TakeMessage(&received, &kind, &body))
            Handle(kind, body);
        else if (next <= last)
            Step();
        else
            Receive(true);
    }
    return 0;
}

/** Reads the available input. @return whether there is a complete message */
bool WorkerLoop::Receive(bool wait)
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    while (!ended && poll(&input, 1, wait ? -1 : 0) > 0) {
        char buffer[65536];
        const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
        if (count < 0 && errno == EINTR)
            continue;
        ended = count <= 0;
        received.append(buffer, int(std::max<ssize_t>(0, count)));
        wait = false;
    }
    return received.size() > 4;
}

void WorkerLoop::Handle(Message kind, const QByteArray& body)
{
    LoadOrder wanted;
    switch (kind) {
    case Message::Load:
        Unpack(body, &wanted);
        Load(wanted);
        break;
    case Message::Measure:
        Unpack(body, &wanted);
        Measure(wanted);
        break;
    case Message::Play:
        if (player) {
            qint32 from = 0;
            qint32 to = -1;
            Unpack(body, &from, &to);
            next = from;
            last = to;
            sent = -2;
        }
        break;
    default: break;
    }
}

bool WorkerLoop::Read(const LoadOrder& from, Scene* read, QString* error) const
{
    if (!plugin) {
        *error = pluginError;
        return false;
    }
    return ReadSceneText(from.scene, from.path, read, error, MissingFiles::AreAccepted);
}

void WorkerLoop::Load(const LoadOrder& wanted)
{
    order = wanted;
    next = 0;
    last = -1;
    started = false;
    player.reset();
    QString error;
    Scene read;
    if (Read(order, &read, &error)) {
        scene = read;
        player = std::make_unique<Player>(dispatcher, plugin);
        if (!player->Load(scene, &error))
            player.reset();
    }
    Send(Packed(Message::Loaded, order.generation, error));
}

void WorkerLoop::Measure(const LoadOrder& wanted)
{
    player.reset();
    last = -1;
    QString error;
    Scene read;
    Timing timing;
    const bool isRead = Read(wanted, &read, &error);
    Player measured(dispatcher, plugin);
    const auto watch = [this](int) { return !Receive(false) && !ended; };
    if (isRead && MeasureTiming(&measured, read, wanted.schedule, watch, &timing, &error))
        Send(Packed(Message::Measured, wanted.generation, timing));
}

/** Loads the scene again, because some state survives a restart. */
void WorkerLoop::Restart()
{
    QString error;
    started = false;
    player.reset(); // releases the display's clock
    player = std::make_unique<Player>(dispatcher, plugin);
    if (!player->Load(scene, &error)) {
        last = -1;
        return;
    }
    Torv::ClearFaults();
    for (const QPair<qint32, qint32>& fault : order.faults)
        Torv::FailCall(Torv::Operation(fault.first), fault.second);
    player->Scenery().KeepCalls(order.calls);
    if (order.schedule)
        player->Start(HostSchedule(scene, player->Durations()), standardSeed);
    else
        player->Start(standardSeed);
    started = true;
}

/** Plays one tick toward the requested one. */
void WorkerLoop::Step()
{
    // The same tick may be requested again, with the same calls.
    if (!started || player->Tick() != next)
        calls.clear();
    if (!started || player->Tick() > next)
        Restart();
    else if (player->Tick() < next)
        player->Advance();
    if (!started)
        return;
    for (const Torv::CallRecord& call : player->Scenery().TakeCalls())
        calls += CallLine(call) + '\n';
    if (player->Tick() == next) {
        SendTick();
        ++next;
        if (next > last)
            Send(Packed(Message::Idle, order.generation));
    }
    Receive(false);
}

void WorkerLoop::SendTick()
{
    TickPicture tick;
    tick.generation = order.generation;
    tick.tick = player->Tick();
    const QImage picture = player->Picture();
    if (sent != tick.tick - 1 || picture != shown)
        tick.picture = picture;
    shown = picture;
    sent = tick.tick;
    tick.calls = calls;
    Send(Packed(Message::Picture, tick));
}

void WorkerLoop::Send(const QByteArray& bytes)
{
    for (int written = 0; written < bytes.size() && !ended;) {
        const ssize_t count =
            write(output, bytes.constData() + written, size_t(bytes.size() - written));
        if (count < 0 && errno != EINTR)
            ended = true;
        else
            written += int(std::max<ssize_t>(0, count));
    }
}

} // namespace AnimText
