#include "animtext/shared/durationtable.h"

#include "cli/interruption.h"
#include "cli/messages.h"
#include "cli/progress.h"
#include "scene/motion.h"

#include <hneonnodebase.h>

#include <cmath>

namespace AnimText {

namespace {

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

QByteArray JsonLine(const Motion& effect, int speed, const Times& times)
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

} // namespace

Json ToJson(const NodePlay& play)
{
    return Json::Object({{"animationTicks", play.animationTicks},
                         {"holdTicks", play.holdTicks},
                         {"finishedMs", play.finishedTick < 0 ? Json() : Json(play.FinishedMs())}});
}

void PrintDurationTable(const Playing& playing, const Scene& scene, bool json)
{
    FailUnless(!scene.Nodes().isEmpty(), scene.path + ": $.pages: expected at least one node",
               BadInput);
    const Silence silence;
    Scene only = scene;
    only.pages = {ScenePage{{SceneArea{{*scene.Nodes().first()}}}}};
    QString text;
    if (!json)
        text = "Times in seconds: planned, actual, and their difference.\n\n" + Heading();
    Progress progress(QStringLiteral("simulating"), Effects().size() * qint64(std::size(speeds)));
    WatchForInterruption();
    qint64 done = 0;
    for (const Motion& effect : Effects()) {
        if (!json)
            text += QStringLiteral("%1  %2").arg(effect.number, 3).arg(effect.name, -34);
        for (int speed : speeds) {
            const Times times = Measure(playing, only, effect.number, speed);
            text += json ? QString(JsonLine(effect, speed, times)) : Cell(times);
            progress.Show(++done);
        }
        if (!json)
            text += '\n';
    }
    Print(text.toUtf8());
}

} // namespace AnimText
