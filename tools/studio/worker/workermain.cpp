#include "studio/worker/workermain.h"

#include "files/failure.h"
#include "player/callline.h"
#include "player/plugin.h"
#include "studio/worker/messages.h"

#include <QFile>
#include <QGuiApplication>

#include <csignal>
#include <memory>
#include <poll.h>
#include <sys/resource.h>
#include <unistd.h>

namespace AnimText::studio::worker {
namespace {

constexpr int lowNiceness = 10;

/** Thrown where a play is measured that nobody waits for any more. */
struct AnotherOrder
{
};

/**
 * Reads orders from standard input and answers until the input ends. An order cancels the previous
 * one. A plugin that crashes ends only this process.
 */
class WorkerLoop
{
public:
    /** @param output descriptor for the answers; nothing else may be written to it */
    WorkerLoop(player::VirtualDispatcher* dispatcher, int output)
        : dispatcher(dispatcher)
    {
        answers.open(output, QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    void Run(const QString& pluginPath)
    {
        try {
            plugin = player::LoadPlugin(player::PluginPath(pluginPath));
        } catch (const files::Failure& failure) {
            pluginError = failure.message;
        }
        Send(Answer::Ready, pluginError);
        while (!ended) {
            if (Take(&received, &order))
                Begin();
            else if (player && next <= order.last)
                Step();
            else
                Receive(true);
        }
    }

private:
    /** Reads the available input. @return whether there is any that has not been handled */
    bool Receive(bool wait)
    {
        pollfd input{STDIN_FILENO, POLLIN, 0};
        while (!ended && poll(&input, 1, wait ? -1 : 0) > 0) {
            char buffer[65536];
            const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
            ended = count <= 0;
            received.append(buffer, int(std::max<ssize_t>(0, count)));
            wait = false;
        }
        return !received.isEmpty();
    }

    void Begin()
    {
        next = order.first;
        shown = QImage();
        if (order.generation == generation && !order.measures)
            return;
        generation = order.measures ? 0 : order.generation;
        started = false;
        QString error = pluginError;
        Timing timing;
        try {
            files::FailUnless(plugin &&
                                  scene::ReadSceneText(order.scene, order.path, &scene, &error,
                                                       scene::MissingFiles::AreAccepted),
                              error);
            Load();
            if (order.measures)
                timing = MeasureTiming(player.get(), scene, order.part.schedule, [this](int) {
                    if (Receive(false) || ended)
                        throw AnotherOrder();
                });
        } catch (const files::Failure& failure) {
            error = failure.message;
            player.reset();
        } catch (const AnotherOrder&) {
            player.reset();
            return;
        }
        if (order.measures)
            player.reset();
        Send(order.measures ? Answer::Measured : Answer::Loaded, error, timing);
    }

    /** With a new player, because some state survives a restart. */
    void Load()
    {
        player.reset(); // releases the display's clock
        player = std::make_unique<player::Player>(dispatcher, plugin);
        player->Load(scene);
    }

    void Restart()
    {
        if (started)
            Load();
        Torv::ClearFaults();
        for (const QPair<qint32, qint32>& fault : order.part.faults)
            Torv::FailCall(Torv::Operation(fault.first), fault.second);
        if (order.part.calls)
            player->Scenery().WatchCalls(
                [this](const Torv::CallRecord& call) { calls += player::CallLine(call) + '\n'; });
        player->Start(order.part.schedule ? player::HostSchedule(scene, player->Durations())
                                          : player::AllAtOnce(player->NodeCount()),
                      player::standardSeed);
        started = true;
    }

    /** Plays one tick toward the next one to send, which may be that of the last picture. */
    void Step()
    {
        if (!started || player->Tick() != next)
            calls.clear();
        if (!started || player->Tick() > next)
            Restart();
        else if (player->Tick() < next)
            player->Advance();
        if (player->Tick() == next) {
            Answer answer;
            answer.kind = Answer::Picture;
            answer.generation = order.generation;
            answer.tick = next++;
            answer.calls = calls;
            const QImage picture = player->Picture();
            if (picture != shown)
                answer.picture = shown = picture;
            Send(answer);
            if (next > order.last)
                Send(Answer::Idle);
        }
        Receive(false);
    }

    void Send(Answer::Kind kind, const QString& error = {}, const Timing& timing = {})
    {
        Answer answer;
        answer.kind = kind;
        answer.generation = order.generation;
        answer.tick = order.last;
        answer.error = error;
        answer.timing = timing;
        Send(answer);
    }

    void Send(const Answer& answer)
    {
        const QByteArray message = Packed(answer);
        ended = answers.write(message) != message.size() || ended;
    }

    player::VirtualDispatcher* dispatcher;
    QFile answers;
    bool ended = false;
    QByteArray received;
    Lw::INodePlugin* plugin = nullptr;
    QString pluginError;
    Order order;
    quint32 generation = 0; // of the scene that was loaded; 0 for none
    scene::Scene scene;
    std::unique_ptr<player::Player> player; // null if the scene cannot be played
    bool started = false;                   // the player is at a tick of the ordered scene
    int next = 0;                           // the next tick to send
    QImage shown;                           // the picture that was sent last for the order
    QByteArray calls;                       // device calls of the player's tick
};

} // namespace

int WorkerMain(int argc, char** argv)
{
    // Ctrl+C ends the studio; a worker ends with its input.
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    // The plugin's own output must not mix with the answers.
    const int output = dup(STDOUT_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);

    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    auto* dispatcher = new player::VirtualDispatcher;
    QCoreApplication::setEventDispatcher(dispatcher);
    QString plugin;
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--plugin") == 0 && i + 1 < argc)
            plugin = QString::fromLocal8Bit(argv[i + 1]);
        else if (qstrcmp(argv[i], "--no-haste") == 0)
            setpriority(PRIO_PROCESS, 0, lowNiceness);
    }
    int ownName = 1;
    QGuiApplication application(ownName, argv);
    WorkerLoop(dispatcher, output).Run(plugin);
    return 0;
}

} // namespace AnimText::studio::worker
