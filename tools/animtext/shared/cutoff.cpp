#include "animtext/shared/cutoff.h"

#include "cli/messages.h"
#include "cli/output.h"
#include "player/plugin.h"
#include "scene/motion.h"
#include "timing/playlength.h"

#include <QSize>

#include <algorithm>
#include <cmath>

namespace AnimText::animtext::shared {

namespace {

constexpr qint64 longestPlay = 30 * 60 * 1000 / player::tickLength; // ticks
constexpr qint64 mostPixels = 1000 * 1000 * 1000; // cleared in all ticks of a play
constexpr double mostCut = 0.05;                  // of the planned time
constexpr int holdUnit = 100;                     // milliseconds
constexpr int longestHold = 1000000;              // hold units

/** Times of one play, milliseconds. */
struct CutTimes
{
    qint64 planned = 0;
    qint64 actual = -1; ///< -1: not known to end

    qint64 Cut() const { return actual - planned; }
    bool IsCut() const { return actual >= 0 && double(Cut()) > mostCut * double(planned); }
    bool IsEnough() const { return actual >= 0 && !IsCut(); }
};

/** Plays one text with other speeds and holds. */
class Measurement
{
public:
    Measurement(const scene::Scene& from, const scene::SceneNode& node, Lw::INodePlugin* plugin)
        : player(player::VirtualDispatcher::Current(), plugin)
        , scene(from)
        , speedKey(scene::MotionOf(node).SpeedKey())
        , speed(node.attributes.value(speedKey).toInt())
        , hold(node.hold)
    {
        scene::SceneNode plain = node;
        for (const char* background : {"CheckNeonBg", "CheckDazzle", "CheckPictureFills"})
            plain.attributes.remove(
                QLatin1String(background)); // they cost time to paint and do not change the play
        scene.pages = {scene::ScenePage{{scene::SceneArea{{plain}}}}};
        const qint64 pixels = qMax<qint64>(1, qint64(node.size.width()) * node.size.height());
        longest = int(qMin(longestPlay, mostPixels / pixels));
    }

    CutTimes With(int otherSpeed, int otherHold)
    {
        scene.At({}).attributes[speedKey] = otherSpeed;
        scene.At({}).hold = otherHold;
        CutTimes times;
        QString error;
        const timing::BlankScene blank(scene);
        if (!player.Load(blank.Get(), &error))
            return times;
        times.planned = player.Durations().value(0);
        if (times.planned / player::tickLength > longest)
            return times;
        const timing::NodePlay play =
            timing::PlayToEnd(&player, longest, player::standardSeed).value(0);
        if (play.ending == timing::Ending::Finishes)
            times.actual = play.FinishedMs();
        return times;
    }

    /** The nearest speed that avoids the cut, or -1. */
    int SpeedThatFits()
    {
        for (int distance = 1; distance <= 9; ++distance) {
            for (int other : {speed - distance, speed + distance}) {
                if (other >= 0 && other <= 9 && With(other, hold).IsEnough())
                    return other;
            }
        }
        return -1;
    }

    /** A hold that makes the play so long that the cut is below the limit, or -1. */
    int HoldThatFits(const CutTimes& now)
    {
        const qint64 perUnit = With(speed, hold + 1).planned - now.planned;
        if (perUnit <= 0)
            return -1;
        const double growth = double(now.Cut()) / mostCut - double(now.planned);
        double other = hold + std::ceil(growth / double(perUnit));
        for (int tries = 0; tries < 3 && other <= longestHold;
             ++tries, other = std::ceil(other * 1.1)) {
            if (With(speed, int(other)).IsEnough())
                return int(other);
        }
        return -1;
    }

    CutTimes Now() { return With(speed, hold); }

private:
    player::Player player;
    scene::Scene scene;
    const QString speedKey;
    const int speed;
    const int hold;
    int longest = 0; // ticks
};

QString InSeconds(qint64 milliseconds)
{
    return QStringLiteral("%1 s").arg(double(milliseconds) / 1000, 0, 'f', 2);
}

} // namespace

void WarnOfCut(const scene::Scene& scene, const scene::SceneNode& node)
{
    QString error;
    Lw::INodePlugin* plugin = player::LoadPlugin(player::PluginPath(), &error);
    if (!plugin)
        return;
    const cli::Silence silence;
    Measurement measurement(scene, node, plugin);
    const CutTimes now = measurement.Now();
    if (!now.IsCut() || now.Cut() <= qint64(node.hold) * holdUnit)
        return;
    const int speed = measurement.SpeedThatFits();
    const int hold = speed < 0 ? measurement.HoldThatFits(now) : -1;
    const QString way = speed >= 0  ? QStringLiteral("speed %1 avoids this").arg(speed)
                        : hold >= 0 ? QStringLiteral("no speed avoids this, but a hold of %1s does")
                                          .arg(double(hold) / 10, 0, 'f', 1)
                                    : "no speed or hold avoids this; use another effect";
    cli::Warn(
        QStringLiteral("the sign cuts off the last %3 % of this text: planned %1, needs %2; %4")
            .arg(InSeconds(now.planned), InSeconds(now.actual))
            .arg(100.0 * double(now.Cut()) / double(now.actual), 0, 'f', 0)
            .arg(way));
}

} // namespace AnimText::animtext::shared
