#include "animtext/shared/durationtable.h"

#include "cli/interruption.h"
#include "cli/messages.h"
#include "cli/progress.h"
#include "scene/motion.h"

#include <hneonnodebase.h>

namespace AnimText {

namespace {

constexpr int speeds[] = {0, 4, 5, 9};

struct Times
{
    qint64 planned = 0;
    NodePlay actual;
};

Scene OnlyFirst(const Scene& scene)
{
    Scene only = scene;
    only.pages = {ScenePage{{SceneArea{{*scene.Nodes().first()}}}}};
    return only;
}

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

QByteArray Cell(const Times& times)
{
    const auto seconds = [](qint64 ms) { return QByteArray::number(double(ms) / 1000, 'f', 1); };
    QByteArray real = "-";
    QByteArray difference;
    const qint64 finished = times.actual.FinishedMs();
    if (finished >= 0) {
        real = seconds(finished);
        if (times.planned > 0) {
            const double ratio = double(finished) / double(times.planned) - 1;
            const QByteArray percent = QByteArray::number(100 * ratio, 'f', 0);
            difference = (percent.startsWith('-') || percent == "0" ? "" : "+") + percent + '%';
            if (difference == "-0%")
                difference = "0%";
        }
    }
    return "  |" + seconds(times.planned).rightJustified(9) + real.rightJustified(9) +
           difference.rightJustified(7);
}

QByteArray Heading()
{
    QByteArray speedLine(39, ' ');
    QByteArray columnLine = " no  " + QByteArray("effect").leftJustified(34);
    for (int speed : speeds) {
        speedLine +=
            "  |" + ("speed " + QByteArray::number(speed)).rightJustified(9) + QByteArray(16, ' ');
        columnLine += "  |" + QByteArray("planned").rightJustified(9) +
                      QByteArray("actual").rightJustified(9) + QByteArray("diff").rightJustified(7);
    }
    return speedLine.trimmed().prepend(QByteArray(39 + 2, ' ')) + '\n' + columnLine + '\n';
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
    const Scene only = OnlyFirst(scene);
    QByteArray text =
        json ? QByteArray()
             : "Times in seconds: planned, actual, and their difference.\n\n" + Heading();
    Progress progress(QStringLiteral("simulating"), Effects().size() * qint64(std::size(speeds)));
    WatchForInterruption();
    qint64 done = 0;
    for (const Motion& effect : Effects()) {
        if (!json)
            text += QByteArray::number(effect.number).rightJustified(3) + "  " +
                    QByteArray(effect.name).leftJustified(34);
        for (int speed : speeds) {
            const Times times = Measure(playing, only, effect.number, speed);
            text += json ? JsonLine(effect, speed, times) : Cell(times);
            progress.Show(++done);
        }
        if (!json)
            text += '\n';
    }
    Print(text);
}

} // namespace AnimText
