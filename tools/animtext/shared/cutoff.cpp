#include "animtext/shared/cutoff.h"

#include "cli/messages.h"
#include "cli/output.h"
#include "files/failure.h"
#include "player/plugin.h"
#include "scene/motion.h"
#include "timing/playlength.h"

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

/** Plays a text with another speed and another hold. */
using Play = std::function<CutTimes(int speed, int hold)>;

/** The nearest speed that avoids the cut, or else a hold that makes the play so long. */
QString WayOut(const CutTimes& now, int speed, int hold, const Play& play)
{
    for (int distance = 1; distance <= 9; ++distance) {
        for (int other : {speed - distance, speed + distance}) {
            if (other >= 0 && other <= 9 && play(other, hold).IsEnough())
                return QStringLiteral("speed %1 avoids this").arg(other);
        }
    }
    const qint64 perUnit = play(speed, hold + 1).planned - now.planned;
    const double growth = double(now.Cut()) / mostCut - double(now.planned);
    double other = perUnit > 0 ? hold + std::ceil(growth / double(perUnit)) : longestHold + 1;
    for (int tries = 0; tries < 3 && other <= longestHold;
         ++tries, other = std::ceil(other * 1.1)) {
        if (play(speed, int(other)).IsEnough())
            return QStringLiteral("no speed avoids this, but a hold of %1s does")
                .arg(other / 10, 0, 'f', 1);
    }
    return "no speed or hold avoids this; use another effect";
}

QString InSeconds(qint64 milliseconds)
{
    return QStringLiteral("%1 s").arg(double(milliseconds) / 1000, 0, 'f', 2);
}

} // namespace

void WarnOfCut(const scene::Scene& scene, const scene::SceneNode& node)
try {
    cli::SuppressMessages();
    player::Player player(player::VirtualDispatcher::Current(),
                          player::LoadPlugin(player::PluginPath()));
    scene::Scene alone = scene;
    alone.pages = {scene::ScenePage{{scene::SceneArea{{node}}}}};
    // Backgrounds cost time to paint and do not change the play.
    for (const char* background : {"CheckNeonBg", "CheckDazzle", "CheckPictureFills"})
        alone.At({}).attributes.remove(background);
    const QString speedKey = scene::MotionOf(node).SpeedKey();
    const qint64 pixels = qMax<qint64>(1, qint64(node.size.width()) * node.size.height());
    const int longest = int(qMin(longestPlay, mostPixels / pixels)); // ticks
    const Play play = [&](int speed, int hold) {
        alone.At({}).attributes[speedKey] = speed;
        alone.At({}).hold = hold;
        CutTimes times;
        const timing::BlankScene blank(alone);
        player.Load(blank.Get());
        times.planned = player.Durations().value(0);
        if (times.planned / player::tickLength > longest)
            return times;
        const auto plays = timing::PlayToEnd(&player, longest, player::standardSeed);
        if (plays.value(0).ending == timing::Ending::Finishes)
            times.actual = plays.value(0).FinishedMs();
        return times;
    };
    const int speed = node.attributes.value(speedKey).toInt();
    const CutTimes now = play(speed, node.hold);
    if (!now.IsCut() || now.Cut() <= qint64(node.hold) * holdUnit)
        return;
    cli::Warn(
        QStringLiteral("the sign cuts off the last %3 % of this text: planned %1, needs %2; %4")
            .arg(InSeconds(now.planned), InSeconds(now.actual))
            .arg(100.0 * double(now.Cut()) / double(now.actual), 0, 'f', 0)
            .arg(WayOut(now, speed, node.hold, play)));
} catch (const files::Failure&) {
    // What cannot be played is not cut off.
}

} // namespace AnimText::animtext::shared
