#include "animtext/commands.h"
#include "animtext/shared/durationtable.h"
#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/progress.h"

#include <cstdlib>

namespace AnimText {

namespace {

QString Seconds(qint64 milliseconds)
{
    return QStringLiteral("%1 s").arg(double(milliseconds) / 1000, 0, 'f', 2);
}

QString Count(int number, const QString& one, const QString& many)
{
    return QStringLiteral("%1 %2").arg(number).arg(number == 1 ? one : many);
}

QString Difference(qint64 model, qint64 real)
{
    const qint64 difference = real - model;
    if (std::llabs(difference) <= tickLength)
        return QStringLiteral("The play takes what the host is told, to a tick.");
    const QString part =
        model > 0 ? QStringLiteral(" (%1 %)").arg(
                        100.0 * double(std::llabs(difference)) / double(model), 0, 'f', 1)
                  : QString();
    return difference > 0
               ? QStringLiteral("Told %1, really %2: the last %3%4 are cut off.")
                     .arg(Seconds(model), Seconds(real), Seconds(difference), part)
               : QStringLiteral("The play ends %1%2 before the time that the host is told, and "
                                "begins anew until then.")
                     .arg(Seconds(-difference), part);
}

QString InWords(qint64 model, const Simulation& simulation)
{
    switch (simulation.ending) {
    case Ending::ScrollsOn:
        return QStringLiteral("It reports itself finished as soon as it starts, and the device "
                              "scrolls on until it is stopped.");
    case Ending::StandsStill:
        return QStringLiteral("It stands still and never reports itself finished.");
    case Ending::NothingToPlay: return QStringLiteral("There is no text to play.");
    case Ending::TooLong:
        return QStringLiteral("It had not finished when the simulation was broken off.");
    case Ending::Finishes: break;
    }
    return QStringLiteral("Really it is finished after %1: %2 of animation and %3 of holds.\n%4")
        .arg(Seconds(simulation.finishedMs),
             Count(simulation.animationTicks, QStringLiteral("tick"), QStringLiteral("ticks")),
             Count(simulation.holdTicks, QStringLiteral("tick"), QStringLiteral("ticks")),
             Difference(model, simulation.finishedMs));
}

QByteArray JsonLine(int node, int nodes, qint64 model, const Simulation* simulation)
{
    Json line = Json::Object();
    if (nodes > 1)
        line.Add("node", node);
    line.Add("duration", model);
    if (simulation)
        line.Add("simulated", ToJson(*simulation));
    return line.Text() + '\n';
}

QByteArray ToText(int node, int nodes, qint64 model, const Simulation* simulation)
{
    QString text = nodes > 1 ? QStringLiteral("Node %1: ").arg(node) : QString();
    text += QStringLiteral("the host is told %1 (%2 ms).\n").arg(Seconds(model)).arg(model);
    if (simulation)
        text += InWords(model, *simulation) + QLatin1Char('\n');
    text[0] = text.at(0).toUpper();
    return text.toUtf8();
}

QVector<Simulation> SimulateAll(Player* player, const Scene& scene, uint seed)
{
    Progress progress(QStringLiteral("simulating, tick"), 0);
    const auto watch = [&](int tick) {
        progress.Show(tick);
        return !Interrupted();
    };
    WatchForInterruption();
    QString error;
    const QVector<Simulation> simulations = Simulate(player, scene, seed, watch, &error);
    StopIfInterrupted();
    if (simulations.isEmpty())
        throw Failure{BadInput, error};
    return simulations;
}

void Tell(const CommandLine& line, const Playing& playing, const Scene& scene)
{
    const std::unique_ptr<Player> player = playing.Load(scene);
    const int nodes = player->NodeCount();
    const QVector<qint64> models = player->Durations();

    QVector<Simulation> simulations;
    if (line.IsSet("simulate"))
        simulations = SimulateAll(player.get(), scene, playing.Seed());
    for (int node = 0; node < nodes; ++node) {
        const Simulation* simulation = simulations.isEmpty() ? nullptr : &simulations.at(node);
        Print(line.IsSet("json") ? JsonLine(node, nodes, models.at(node), simulation)
                                 : ToText(node, nodes, models.at(node), simulation));
    }
}

int TellDuration(const CommandLine& line)
{
    const Scene scene = OpenPlayableScene(line, line.Arguments().first());
    const Playing playing(line);
    if (line.IsSet("table"))
        TellDurationTable(playing, scene, line.IsSet("json"));
    else
        Tell(line, playing, scene);
    return Done;
}

} // namespace

Command DurationCommand()
{
    return {"duration",
            "tells how long the host thinks a scene plays, and how long it does",
            "SCENE.json",
            1,
            1,
            "Tells the play time that the host is told before a scene plays and, simulated, the "
            "time that the play really takes.",
            WithShowOptions(
                {Option::Flag("simulate", "Plays the scene too, and tells the difference."),
                 Option::Flag("table", "Tells both times of the scene's first text for every "
                                       "entrance effect at speeds 0, 4, 5 and 9."),
                 Option::Flag("json", "Prints a line of JSON for each text.")}),
            TellDuration};
}

} // namespace AnimText
