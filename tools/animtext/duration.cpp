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

namespace AnimText::animtext {

namespace {

scene::Json ToJson(const timing::NodePlay& simulation)
{
    return scene::Json::Object(
        {{"animationTicks", simulation.animationTicks},
         {"holdTicks", simulation.holdTicks},
         {"finishedMs",
          simulation.FinishedMs() < 0 ? scene::Json() : scene::Json(simulation.FinishedMs())}});
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
    if (std::llabs(difference) <= player::tickLength)
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

QString InWords(qint64 planned, const timing::NodePlay& simulation)
{
    switch (simulation.ending) {
    case timing::Ending::ScrollsOn:
        return "Actual: the text reports that it has finished when it starts; the device scrolls "
               "it until it is stopped.";
    case timing::Ending::StandsStill: return "Actual: the text stands still and never finishes.";
    case timing::Ending::NothingToPlay: return "Actual: there is no text to play.";
    case timing::Ending::TooLong:
        return "Actual: the text had not finished when the simulation stopped.";
    case timing::Ending::Finishes: break;
    }
    return QStringLiteral("Actual:  %1 (%2 of animation, %3 of holds)\n%4")
        .arg(Seconds(simulation.FinishedMs()), Ticks(simulation.animationTicks),
             Ticks(simulation.holdTicks), Difference(planned, simulation.FinishedMs()));
}

QByteArray JsonLine(int node, int nodes, qint64 planned, const timing::NodePlay* simulation)
{
    scene::Json line = scene::Json::Object();
    if (nodes > 1)
        line.Add("node", node);
    line.Add("duration", planned);
    if (simulation)
        line.Add("simulated", ToJson(*simulation));
    return line.Text() + '\n';
}

QByteArray ToText(int node, int nodes, qint64 planned, const timing::NodePlay* simulation)
{
    QString text = nodes > 1 ? QStringLiteral("Node %1: ").arg(node) : QString();
    text += QStringLiteral("planned: %1 (%2 ms)\n").arg(Seconds(planned)).arg(planned);
    if (simulation)
        text += InWords(planned, *simulation) + QLatin1Char('\n');
    text[0] = text.at(0).toUpper();
    return text.toUtf8();
}

QVector<timing::NodePlay> SimulateAll(player::Player* player, const scene::Scene& scene, uint seed)
{
    cli::Progress progress("simulating tick", 0);
    cli::WatchForInterruption();
    QString error;
    const auto watch = [&](int tick) {
        progress.Show(tick);
        cli::StopIfInterrupted();
        return true;
    };
    const QVector<timing::NodePlay> simulations =
        timing::Simulate(player, scene, seed, watch, &error);
    files::FailUnless(!simulations.isEmpty(), error, files::BadInput);
    return simulations;
}

void PrintTimes(const cli::CommandLine& line, const shared::Playing& playing,
                const scene::Scene& scene)
{
    const std::unique_ptr<player::Player> player = playing.Load(scene);
    const int nodes = player->NodeCount();
    const QVector<qint64> planned = player->Durations();
    QVector<timing::NodePlay> simulations;
    if (line.IsSet("simulate"))
        simulations = SimulateAll(player.get(), scene, playing.Seed());
    for (int node = 0; node < nodes; ++node) {
        const timing::NodePlay* simulation =
            simulations.isEmpty() ? nullptr : &simulations.at(node);
        const auto print = line.IsSet("json") ? JsonLine : ToText;
        cli::Print(print(node, nodes, planned.at(node), simulation));
    }
}

constexpr int speeds[] = {0, 4, 5, 9};

struct Times
{
    qint64 planned = 0;
    timing::NodePlay actual;
};

Times Measure(const shared::Playing& playing, scene::Scene scene, int effect, int speed)
{
    scene::SceneNode& node = scene.At({});
    scene::SetMotion(&node, {scene::Mode::Entrance, effect});
    node.attributes["AnimationSpeed"] = speed;
    const std::unique_ptr<player::Player> player = playing.Load(scene);
    Times times;
    times.planned = player->Scenery().Node(0)->Duration();
    QString error;
    const auto goOn = [](int) { return !cli::Interrupted(); };
    times.actual = timing::Simulate(player.get(), scene, playing.Seed(), goOn, &error).value(0);
    cli::StopIfInterrupted();
    files::FailUnless(error.isEmpty(), error, files::BadInput);
    return times;
}

QByteArray EffectLine(const scene::Motion& effect, int speed, const Times& times)
{
    return scene::Json::Object({{"effect", effect.number},
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
void PrintTable(const shared::Playing& playing, const scene::Scene& scene, bool json)
{
    files::FailUnless(!scene.Nodes().isEmpty(),
                      scene.path + ": $.pages: expected at least one node", files::BadInput);
    const cli::Silence silence;
    scene::Scene only = scene;
    only.pages = {scene::ScenePage{{scene::SceneArea{{*scene.Nodes().first()}}}}};
    QString text;
    if (!json)
        text = "Times in seconds: planned, actual, and their difference.\n\n" + Heading();
    cli::Progress progress("simulating", scene::Effects().size() * qint64(std::size(speeds)));
    cli::WatchForInterruption();
    qint64 done = 0;
    for (const scene::Motion& effect : scene::Effects()) {
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
    cli::Print(text.toUtf8());
}

int PrintDuration(const cli::CommandLine& line)
{
    const scene::Scene scene = shared::OpenPlayableScene(line, line.Arguments().first());
    const shared::Playing playing(line);
    if (line.IsSet("table"))
        PrintTable(playing, scene, line.IsSet("json"));
    else
        PrintTimes(line, playing, scene);
    return files::Done;
}

} // namespace

cli::Command DurationCommand()
{
    return {
        "duration",
        "print the planned and the actual time of a scene",
        {"SCENE.json", 1, 1},
        "Prints the planned time of each text, which the host asks for before it plays a scene. "
        "With --simulate, also prints the actual time. If the text needs longer than planned, the "
        "sign cuts off its end.",
        shared::WithShowOptions(
            {cli::Option::Flag("simulate",
                               "Play the scene on virtual time to find the actual time."),
             cli::Option::Flag("table",
                               "Print both times of the first text for every entrance effect "
                               "at speeds 0, 4, 5 and 9."),
             cli::Option::Flag("json", "Print a JSON line for each text.")}),
        PrintDuration,
        {"animtext duration sign.json --simulate", "animtext duration sign.json --table"}};
}

} // namespace AnimText::animtext
