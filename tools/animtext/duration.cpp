#include "animtext/commands.h"
#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/messages.h"
#include "cli/progress.h"
#include "scene/json.h"
#include "scene/motion.h"
#include "timing/playlength.h"

#include <cmath>
#include <cstdlib>
#include <optional>

namespace AnimText::animtext {

namespace {

constexpr int speeds[] = {0, 4, 5, 9}; // of the table

/** Those of a text. */
struct Times
{
    qint64 planned;                         ///< milliseconds
    std::optional<timing::NodePlay> actual; ///< if it was played
};

/** Those of each text of @p scene, which is played if @p watch is not empty. */
QVector<Times> Measure(const cli::CommandLine& line, const scene::Scene& scene,
                       const std::function<void(int tick)>& watch)
{
    const std::unique_ptr<player::Player> player = shared::PlayerOf(line, scene);
    QVector<Times> times;
    for (qint64 planned : player->Durations())
        times.append({planned, std::nullopt});
    if (!watch)
        return times;
    cli::WatchForInterruption();
    const auto goOn = [&](int tick) {
        watch(tick);
        cli::StopIfInterrupted();
    };
    const auto plays = timing::Simulate(player.get(), scene, shared::SeedOf(line), goOn);
    for (int node = 0; node < plays.size(); ++node)
        times[node].actual = plays.at(node);
    return times;
}

/** @p line with @p times. */
QByteArray JsonLine(scene::Json line, const Times& times)
{
    line.Add("duration", times.planned);
    if (times.actual) {
        const qint64 finished = times.actual->FinishedMs();
        line.Add("simulated",
                 scene::Json::Object(
                     {{"animationTicks", times.actual->animationTicks},
                      {"holdTicks", times.actual->holdTicks},
                      {"finishedMs", finished < 0 ? scene::Json() : scene::Json(finished)}}));
    }
    return line.Text() + '\n';
}

QString Seconds(qint64 milliseconds)
{
    return QStringLiteral("%1 s").arg(double(milliseconds) / 1000, 0, 'f', 2);
}

QString Difference(qint64 planned, qint64 actual)
{
    const qint64 difference = std::llabs(actual - planned);
    if (difference <= player::tickLength)
        return "Both times agree to within a tick.";
    QString length = Seconds(difference);
    if (planned > 0)
        length += QString::asprintf(" (%.1f %%)", 100.0 * double(difference) / double(planned));
    return QString(actual > planned
                       ? "The sign cuts off the last %1."
                       : "The text ends %1 early and plays again until the planned time is over.")
        .arg(length);
}

QString InWords(qint64 planned, const timing::NodePlay& actual)
{
    switch (actual.ending) {
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
        .arg(Seconds(actual.FinishedMs()), scene::Counted(actual.animationTicks, "tick"),
             scene::Counted(actual.holdTicks, "tick"), Difference(planned, actual.FinishedMs()));
}

void PrintTimes(const cli::CommandLine& line, const scene::Scene& scene)
{
    cli::Progress progress;
    std::function<void(int)> watch;
    if (line.IsSet("simulate"))
        watch = [&](int tick) { progress.Show("simulating tick", tick); };
    const QVector<Times> all = Measure(line, scene, watch);
    progress.Wipe();
    for (int node = 0; node < all.size(); ++node) {
        const Times& times = all.at(node);
        const bool isOne = all.size() == 1;
        if (line.IsSet("json")) {
            cli::Print(JsonLine(
                isOne ? scene::Json::Object() : scene::Json::Object({{"node", node}}), times));
            continue;
        }
        const QString name = isOne ? "Planned" : QStringLiteral("Node %1: planned").arg(node);
        QString text =
            QStringLiteral("%1: %2 (%3 ms)\n").arg(name, Seconds(times.planned)).arg(times.planned);
        if (times.actual)
            text += InWords(times.planned, *times.actual) + QLatin1Char('\n');
        cli::Print(text.toUtf8());
    }
}

QString Cell(const QString& planned, const QString& actual, const QString& difference)
{
    return QStringLiteral("  |%1%2%3").arg(planned, 9).arg(actual, 9).arg(difference, 7);
}

QString Cell(const Times& times)
{
    const qint64 finished = times.actual->FinishedMs();
    const auto seconds = [](qint64 ms) { return QString::number(double(ms) / 1000, 'f', 1); };
    QString difference;
    if (finished >= 0 && times.planned > 0) {
        const long percent = std::lround(100 * (double(finished) / double(times.planned) - 1));
        difference = QString::asprintf(percent == 0 ? "%ld%%" : "%+ld%%", percent);
    }
    return Cell(seconds(times.planned), finished < 0 ? "-" : seconds(finished), difference);
}

QString Heading()
{
    QString speedLine(39, ' ');
    QString columnLine = QStringLiteral(" no  %1").arg("effect", -34);
    for (int speed : speeds) {
        speedLine += Cell(QStringLiteral("speed %1").arg(speed), "", "");
        columnLine += Cell("planned", "actual", "diff");
    }
    speedLine.chop(16); // blanks
    return speedLine + '\n' + columnLine + '\n';
}

/** The times of the first text of @p scene with every effect. */
void PrintTable(const cli::CommandLine& line, const scene::Scene& scene)
{
    const bool json = line.IsSet("json");
    files::FailUnless(!scene.Nodes().isEmpty(),
                      scene.path + ": $.pages: expected at least one node", files::BadInput);
    cli::SuppressMessages();
    scene::Scene only = scene;
    only.pages = {scene::ScenePage{{scene::SceneArea{{*scene.Nodes().first()}}}}};
    QString text;
    if (!json)
        text = "Times in seconds: planned, actual, and their difference.\n\n" + Heading();
    cli::Progress progress;
    const qint64 all = scene::Effects().size() * qint64(std::size(speeds));
    qint64 done = 0;
    for (const scene::Motion& effect : scene::Effects()) {
        scene::SetMotion(&only.At({}), {scene::Mode::Entrance, effect.number});
        if (!json)
            text += QStringLiteral("%1  %2").arg(effect.number, 3).arg(effect.name, -34);
        for (int speed : speeds) {
            only.At({}).attributes["AnimationSpeed"] = speed;
            const Times times = Measure(line, only, [](int) {}).first();
            text += json ? QString(JsonLine(scene::Json::Object({{"effect", effect.number},
                                                                 {"name", effect.name},
                                                                 {"speed", speed}}),
                                            times))
                         : Cell(times);
            progress.Show("simulating", ++done, all);
        }
        if (!json)
            text += '\n';
    }
    cli::Print(text.toUtf8());
}

void PrintDuration(const cli::CommandLine& line)
{
    const scene::Scene scene = shared::OpenPlayableScene(line, line.Arguments().first());
    if (line.IsSet("table"))
        PrintTable(line, scene);
    else
        PrintTimes(line, scene);
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
            {Option::Flag("simulate", "Play the scene on virtual time to find the actual time."),
             Option::Flag("table", "Print both times of the first text for every entrance effect "
                                   "at speeds 0, 4, 5 and 9."),
             Option::Flag("json", "Print a JSON line for each text.")}),
        PrintDuration,
        {"animtext duration sign.json --simulate", "animtext duration sign.json --table"}};
}

} // namespace AnimText::animtext
