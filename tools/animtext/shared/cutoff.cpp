#include "animtext/shared/cutoff.h"

#include "cli/messages.h"
#include "cli/output.h"
#include "player/plugin.h"
#include "scene/motion.h"
#include "timing/playlength.h"

#include <QSize>

#include <algorithm>
#include <cmath>

namespace AnimText {

namespace {

constexpr qint64 longestPlay = 30 * 60 * 1000 / tickLength; // ticks
constexpr qint64 mostPixels = 1000 * 1000 * 1000;           // cleared in all ticks of a play
constexpr double mostCut = 0.05;                            // of the planned time
constexpr int holdUnit = 100;                               // milliseconds
constexpr int longestHold = 1000000;                        // hold units

/** Times of one play, milliseconds. */
struct CutTimes
{
    qint64 planned = 0;
    qint64 real = -1; ///< -1: not known to end

    qint64 Cut() const { return real - planned; }
    bool IsCut() const { return real >= 0 && double(Cut()) > mostCut * double(planned); }
};

class Measurement
{
public:
    Measurement(const Scene& from, const SceneNode& node, Lw::INodePlugin* plugin)
        : player(VirtualDispatcher::Current(), plugin)
        , scene(from)
        , speedKey(MotionOf(node).SpeedKey())
    {
        SceneNode plain = node;
        for (const char* background : {"CheckNeonBg", "CheckDazzle", "CheckPictureFills"})
            plain.attributes.remove(
                QLatin1String(background)); // they cost time to paint and do not change the play
        scene.pages = {ScenePage{{SceneArea{{plain}}}}};
        const qint64 pixels = qMax<qint64>(1, qint64(node.size.width()) * node.size.height());
        longest = int(qMin(longestPlay, mostPixels / pixels));
    }

    int Speed() const { return Node().attributes.value(speedKey).toInt(); }
    int Hold() const { return Node().hold; }

    CutTimes WithSpeed(int speed)
    {
        Scene other = scene;
        other.At({}).attributes[speedKey] = speed;
        return Measure(other);
    }

    CutTimes WithHold(int hold)
    {
        Scene other = scene;
        other.At({}).hold = hold;
        return Measure(other);
    }

private:
    const SceneNode& Node() const { return scene.At({}); }

    CutTimes Measure(const Scene& wanted)
    {
        CutTimes times;
        QString error;
        const BlankScene blank(wanted);
        if (!player.Load(blank.Get(), &error))
            return times;
        times.planned = player.Durations().value(0);
        if (times.planned / tickLength > longest)
            return times;
        const NodePlay play =
            PlayToEnd(&player, longest, standardSeed, [](int) { return true; }).value(0);
        if (play.ending == Ending::Finishes)
            times.real = qint64(play.finishedTick) * tickLength;
        return times;
    }

    Player player;
    Scene scene;
    QString speedKey;
    int longest = 0; // ticks
};

/** The nearest speed that avoids the cut, or -1. */
int SpeedThatFits(Measurement* measurement)
{
    const int own = measurement->Speed();
    for (int distance = 1; distance <= 9; ++distance) {
        for (int speed : {own - distance, own + distance}) {
            const CutTimes times =
                speed >= 0 && speed <= 9 ? measurement->WithSpeed(speed) : CutTimes();
            if (times.real >= 0 && !times.IsCut())
                return speed;
        }
    }
    return -1;
}

/** A hold that makes the play so long that the cut is below the limit, or -1. */
int HoldThatFits(Measurement* measurement, const CutTimes& now)
{
    const int own = measurement->Hold();
    const qint64 perUnit = measurement->WithHold(own + 1).planned - now.planned;
    if (perUnit <= 0)
        return -1;
    const double growth = double(now.Cut()) / mostCut - double(now.planned);
    double hold = own + std::ceil(growth / double(perUnit));
    for (int tries = 0; tries < 3 && hold <= longestHold; ++tries, hold = std::ceil(hold * 1.1)) {
        const CutTimes times = measurement->WithHold(int(hold));
        if (times.real >= 0 && !times.IsCut())
            return int(hold);
    }
    return -1;
}

QString InSeconds(qint64 milliseconds)
{
    return QStringLiteral("%1 s").arg(double(milliseconds) / 1000, 0, 'f', 2);
}

} // namespace

void WarnOfCut(const Scene& scene, const SceneNode& node)
{
    QString error;
    Lw::INodePlugin* plugin = LoadPlugin(PluginPath(), &error);
    if (!plugin)
        return;
    const Silence silence;
    Measurement measurement(scene, node, plugin);
    const CutTimes now = measurement.WithHold(node.hold);
    if (!now.IsCut() || now.Cut() <= qint64(node.hold) * holdUnit)
        return;
    const int speed = SpeedThatFits(&measurement);
    const int hold = speed < 0 ? HoldThatFits(&measurement, now) : -1;
    const QString way = speed >= 0 ? QStringLiteral("speed %1 avoids this").arg(speed)
                        : hold >= 0
                            ? QStringLiteral("no speed avoids this, but a hold of %1s does")
                                  .arg(double(hold) / 10, 0, 'f', 1)
                            : QStringLiteral("no speed or hold avoids this; use another effect");
    Warn(QStringLiteral("the sign cuts off the last %3 % of this text: planned %1, needs %2; %4")
             .arg(InSeconds(now.planned), InSeconds(now.real))
             .arg(100.0 * double(now.Cut()) / double(now.real), 0, 'f', 0)
             .arg(way));
}

} // namespace AnimText
