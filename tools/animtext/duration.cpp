#include "animtext/commands.h"
#include "animtext/durationtable.h"
#include "animtext/opening.h"
#include "animtext/progress.h"
#include "player/simulation.h"

#include <hneonnodebase.h>

#include <QJsonDocument>
#include <QJsonObject>

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
               ? QStringLiteral("The play takes %1%2 longer than the host is told, and a host that "
                                "keeps to it cuts the end off.")
                     .arg(Seconds(difference), part)
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

QByteArray ToJson(int node, int nodes, qint64 model, const Simulation* simulation)
{
    // The keys stand in this order for those who read the lines by eye.
    QByteArray json = "{";
    if (nodes > 1)
        json += "\"node\":" + QByteArray::number(node) + ',';
    json += "\"duration\":" + QByteArray::number(model);
    if (simulation) {
        const QByteArray finished =
            simulation->finishedMs < 0 ? "null" : QByteArray::number(simulation->finishedMs);
        json +=
            ",\"simulated\":{\"animationTicks\":" + QByteArray::number(simulation->animationTicks) +
            ",\"holdTicks\":" + QByteArray::number(simulation->holdTicks) +
            ",\"finishedMs\":" + finished + '}';
    }
    return json + "}\n";
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

int Tell(const CommandLine& line, const Playing& playing, const Scene& scene)
{
    const std::unique_ptr<Player> player = playing.Load(scene);
    if (!player)
        return BadInput;
    const int nodes = player->NodeCount();
    QVector<qint64> models;
    for (int node = 0; node < nodes; ++node)
        models.append(player->Scenery().Node(node)->Duration());

    QVector<Simulation> simulations;
    if (line.IsSet(QStringLiteral("simulate"))) {
        QString error;
        Progress progress(QStringLiteral("simulating, tick"), 0);
        const auto watch = [&](int tick) {
            progress.Show(tick);
            return !Interrupted();
        };
        WatchForInterruption();
        simulations = Simulate(player.get(), scene, playing.seed, watch, &error);
        if (Interrupted())
            return Fail(FailedRun, QStringLiteral("interrupted"));
        if (simulations.isEmpty())
            return Fail(BadInput, error);
    }
    QByteArray text;
    const bool json = line.IsSet(QStringLiteral("json"));
    for (int node = 0; node < nodes; ++node) {
        const Simulation* simulation = simulations.isEmpty() ? nullptr : &simulations.at(node);
        text += json ? ToJson(node, nodes, models.at(node), simulation)
                     : ToText(node, nodes, models.at(node), simulation);
    }
    return Print(text) ? Done : FailedRun;
}

} // namespace

int RunDuration(const QStringList& words)
{
    CommandLine line(
        QStringLiteral("duration"), QStringLiteral("SCENE.json"),
        QStringLiteral("Tells the play time that the host is told before a scene plays and, "
                       "simulated, the time that the play really takes."));
    line.AddOption({QStringLiteral("simulate")},
                   QStringLiteral("Plays the scene too, and tells the difference."));
    line.AddOption({QStringLiteral("table")},
                   QStringLiteral("Tells both times of the scene's first text for every entrance "
                                  "effect at speeds 0, 4, 5 and 9."));
    line.AddOption({QStringLiteral("json")},
                   QStringLiteral("Writes a line of JSON for each text."));
    AddPlayOptions(&line);
    if (!line.Parse(words, 1, 1))
        return line.ExitStatus();

    Scene scene;
    Playing playing;
    if (const Status status = OpenSceneAndPlugin(&line, &scene, &playing))
        return status;
    if (line.IsSet(QStringLiteral("table")))
        return TellDurationTable(playing, scene, line.IsSet(QStringLiteral("json")));
    return Tell(line, playing, scene);
}

} // namespace AnimText
