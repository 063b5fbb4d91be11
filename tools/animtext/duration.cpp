#include "animtext/commands.h"
#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/messages.h"
#include "cli/progress.h"
#include "scene/json.h"
#include "scene/motion.h"
#include "timing/playlength.h"

#include <hneonnodebase.h>

#include <cmath>
#include <cstdlib>

namespace AnimText {

namespace {

Json ToJson(const NodePlay& simulation)
{
    return Json::Object(
        {{"animationTicks", simulation.animationTicks},
         {"holdTicks", simulation.holdTicks},
         {"finishedMs", simulation.FinishedMs() < 0 ? Json() : Json(simulation.FinishedMs())}});
}

QString Seconds(qint64 milliseconds)
{
    return QStringLiteral("%1 s").arg(double(milliseconds) / 1000, 0, 'f', 2);
}

QString Ticks(int number)
{
    return QStringLiteral("%1 tick%2").arg(number).arg(number == 1 ? "" : "s");
}

QString Difference(qint64 planned, qint64 actual)
{
    const qint64 difference = actual - planned;
    if (std::llabs(difference) <= tickLength)
        return "Both times agree to within a tick.";
    QString length = Seconds(std::llabs(difference));
    if (planned > 0)
        length += QString::asprintf(" (%.1f %%)",
                                    100.0 * double(std::llabs(difference)) / double(planned));
    return QString(difference > 0
                       ? "The sign cuts off the last %1."
                       : "The text ends %1 early and plays again until the planned time is over.")
        .arg(length);
}

QString InWords(qint64 planned, const NodePlay& simulation)
{
    switch (simulation.ending) {
    case Ending::ScrollsOn:
        return "Actual: the text reports that it has finished when it starts; the device scrolls "
               "it until it is stopped.";
    case Ending::StandsStill: return "Actual: the text stands still and never finishes.";
    case Ending::NothingToPlay: return "Actual: there is no text to play.";
    case Ending::TooLong: return "Actual: the text had not finished when the simulation stopped.";
    case Ending::Finishes: break;
    }
    return QStringLiteral("Actual:  %1 (%2 of animation, %3 of holds)\n%4")
        .arg(Seconds(simulation.FinishedMs()), Ticks(simulation.animationTicks),
             Ticks(simulation.holdTicks), Difference(planned, simulation.FinishedMs()));
}

QByteArray JsonLine(int node, int nodes, qint64 planned, const NodePlay* simulation)
{
    Json line = Json::Object();
    if (nodes > 1)
        line.Add("node", node);
    line.Add("duration", planned);
    if (simulation)
        line.Add("simulated", ToJson(*simulation));
    return line.Text() + '\n';
}

QByteArray ToText(int node, int nodes, qint64 planned, const NodePlay* simulation)
{
    QString text = nodes > 1 ? QStringLiteral("Node %1: ").arg(node) : QString();
    text += QStringLiteral("planned: %1 (%2 ms)\n").arg(Seconds(planned)).arg(planned);
    if (simulation)
        text += InWords(planned, *simulation) + QLatin1Char('\n');
    text[0] = text.at(0).toUpper();
    return text.toUtf8();
}

QVector<NodePlay> SimulateAll(Player* player, const Scene& scene, uint seed)
{
    Progress progress("simulating tick", 0);
    WatchForInterruption();
    QString error;
    const auto watch = [&](int tick) {
        progress.Show(tick);
        StopIfInterrupted();
        return true;
    };
    const QVector<NodePlay> simulations = Simulate(player, scene, seed, watch, &error);
    FailUnless(!simulations.isEmpty(), error, BadInput);
    return simulations;
}

void PrintTimes(const CommandLine& line, const Playing& playing, const Scene& scene)
{
    const std::unique_ptr<Player> player = playing.Load(scene);
    const int nodes = player->NodeCount();
    const QVector<qint64> planned = player->Durations();
    QVector<NodePlay> simulations;
    if (line.IsSet("simulate"))
        simulations = SimulateAll(player.get(), scene, playing.Seed());
    for (int node = 0; node < nodes; ++node) {
        const NodePlay* simulation = simulations.isEmpty() ? nullptr : &simulations.at(node);
        const auto print = line.IsSet("json") ? JsonLine : ToText;
        Print(print(node, nodes, planned.at(node), simulation));
    }
}

constexpr int speeds[] = {0, 4, 5, 9};

struct Times
{
    qint64 planned = 0;
    NodePlay actual;
};

Times Measure(const Playing& playing, Scene scene, int effect, int speed)
{
    SceneNode& node = scene.At({});
    SetMotion(&node, {Mode::Entrance, effect});
    node.attributes[QStringLiteral("AnimationSpeed")] = speed;
    const std::unique_ptr<Player> player = playing.Load(scene);
    Times times;
    times.planned = player->Scenery().Node(0)->Duration();
    QString error;
    const auto goOn = [](int) { return !Interrupted(); };
    times.actual = Simulate(player.get(), scene, playing.Seed(), goOn, &error).value(0);
    StopIfInterrupted();
    FailUnless(error.isEmpty(), error, BadInput);
    return times;
}

QByteArray EffectLine(const Motion& effect, int speed, const Times& times)
{
    return Json::Object({{"effect", effect.number},
                         {"name", effect.name},
                         {"speed", speed},
                         {"duration", times.planned},
                         {"simulated", ToJson(times.actual)}})
               .Text() +
           '\n';
}

QString Cell(const QString& planned, const QString& actual, const QString& difference)
{
    return QStringLiteral("  |%1%2%3").arg(planned, 9).arg(actual, 9).arg(difference, 7);
}

QString Cell(const Times& times)
{
    const auto seconds = [](qint64 ms) { return QString::number(double(ms) / 1000, 'f', 1); };
    if (times.actual.FinishedMs() < 0)
        return Cell(seconds(times.planned), "-", "");
    QString difference;
    if (times.planned > 0) {
        const double ratio = double(times.actual.FinishedMs()) / double(times.planned) - 1;
        const long percent = std::lround(100 * ratio);
        difference = QString::asprintf(percent == 0 ? "%ld%%" : "%+ld%%", percent);
    }
    return Cell(seconds(times.planned), seconds(times.actual.FinishedMs()), difference);
}

QString Heading()
{
    QString speedLine(39, ' ');
    QString columnLine = QStringLiteral(" no  %1").arg("effect", -34);
    for (int speed : speeds) {
        speedLine += QStringLiteral("  |%1").arg(QStringLiteral("speed %1").arg(speed), 9);
        if (speed != speeds[std::size(speeds) - 1])
            speedLine += QString(16, ' ');
        columnLine += Cell("planned", "actual", "diff");
    }
    return speedLine + '\n' + columnLine + '\n';
}

/** The times of the first text of @p scene with every effect. */
void PrintTable(const Playing& playing, const Scene& scene, bool json)
{
    FailUnless(!scene.Nodes().isEmpty(), scene.path + ": $.pages: expected at least one node",
               BadInput);
    const Silence silence;
    Scene only = scene;
    only.pages = {ScenePage{{SceneArea{{*scene.Nodes().first()}}}}};
    QString text;
    if (!json)
        text = "Times in seconds: planned, actual, and their difference.\n\n" + Heading();
    Progress progress("simulating", Effects().size() * qint64(std::size(speeds)));
    WatchForInterruption();
    qint64 done = 0;
    for (const Motion& effect : Effects()) {
        if (!json)
            text += QStringLiteral("%1  %2").arg(effect.number, 3).arg(effect.name, -34);
        for (int speed : speeds) {
            const Times times = Measure(playing, only, effect.number, speed);
            text += json ? QString(EffectLine(effect, speed, times)) : Cell(times);
            progress.Show(++done);
        }
        if (!json)
            text += '\n';
    }
    Print(text.toUtf8());
}

int PrintDuration(const CommandLine& line)
{
    const Scene scene = OpenPlayableScene(line, line.Arguments().first());
    const Playing playing(line);
    if (line.IsSet("table"))
        PrintTable(playing, scene, line.IsSet("json"));
    else
        PrintTimes(line, playing, scene);
    return Done;
}

} // namespace

Command DurationCommand()
{
    return {
        "duration",
        "print the planned and the actual time of a scene",
        "SCENE.json",
        1,
        1,
        "Prints the planned time of each text, which the host asks for before it plays a scene. "
        "With --simulate, also prints the actual time. If the text needs longer than planned, the "
        "sign cuts off its end.",
        WithShowOptions(
            {Option::Flag("simulate", "Play the scene on virtual time to find the actual time."),
             Option::Flag("table", "Print both times of the first text for every entrance effect "
                                   "at speeds 0, 4, 5 and 9."),
             Option::Flag("json", "Print a JSON line for each text.")}),
        PrintDuration,
        {"animtext duration sign.json --simulate", "animtext duration sign.json --table"}};
}

} // namespace AnimText
