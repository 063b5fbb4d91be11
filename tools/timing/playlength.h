/**
 * @file
 * How long a scene plays, measured by playing it.
 */
#pragma once

#include "player/player.h"

#include <QDataStream>
#include <QFile>
#include <QVector>

#include <functional>

namespace AnimText::timing {

/** How a node's play ends. */
enum class Ending {
    Finishes,      ///< reports itself finished when its plays are done
    ScrollsOn,     ///< reports itself finished at once and is scrolled by the device
    StandsStill,   ///< one picture that never reports itself finished
    NothingToPlay, ///< has no text
    TooLong        ///< had not ended when the measurement stopped
};

/** A page's time on the display, in ticks from the start of its text. */
struct PageTime
{
    int begin = 0; ///< its first picture
    int hold = 0;  ///< the tick after its last picture
    int end = 0;   ///< the first tick of what follows

    friend QDataStream& operator<<(QDataStream& stream, const PageTime& page)
    {
        return stream << page.begin << page.hold << page.end;
    }
    friend QDataStream& operator>>(QDataStream& stream, PageTime& page)
    {
        return stream >> page.begin >> page.hold >> page.end;
    }
};

/** Measurements of one node. */
struct NodePlay
{
    Ending ending = Ending::TooLong;
    int finishedTick = -1; ///< the first tick after which it was finished; -1 never
    qint64 end = -1; ///< milliseconds: when it finishes, has scrolled through its area once, or the
                     ///< planned time of a still text is over; -1: not known
    QVector<int> pictures{}; ///< the ticks that brought a picture of the text, until it finished

    QVector<PageTime> pages{}; ///< see MeasurePages()
    int animationTicks = 0;    ///< see Simulate()
    int holdTicks = 0;

    /** When it was finished, milliseconds; -1 never. */
    qint64 FinishedMs() const
    {
        return finishedTick < 0 ? -1 : qint64(finishedTick) * player::tickLength;
    }
};

/** How and when a node's play ends, if that is known at its start; otherwise TooLong. */
NodePlay PlayAtStart(const player::Stage& stage, int node);

/** Called at every tick; throws to stop. */
using Watch = std::function<void(int tick)>;

constexpr int ticksOfADay = 24 * 3600 * 1000 / player::tickLength;

/**
 * Plays the loaded scene from its start until every node has ended that can: a motion that does not
 * exist shows empty pictures forever.
 * @param longest the last tick to play
 * @return one entry a node
 */
QVector<NodePlay> PlayToEnd(player::Player* player, int longest, uint seed,
                            const Watch& watch = Watch());

/**
 * Plays @p scene without outlines to its end, and again without holds, to separate the ticks for
 * which pictures were animated from those for which finished pages were held.
 * Throws Failure if the scene cannot be played.
 * @param player its scene is replaced
 * @return one entry a node
 */
QVector<NodePlay> Simulate(player::Player* player, const scene::Scene& scene, uint seed,
                           const Watch& watch = Watch());

/**
 * Plays @p scene without outlines, twice: once with every page held so long that holds are
 * unmistakable, then as it is, and divides the plays that finish into pages. The player is then at
 * the end of the second play.
 * @param longest ticks after which the second play is stopped
 * @return as Simulate()
 */
QVector<NodePlay> MeasurePages(player::Player* player, const scene::Scene& scene, int longest,
                               const Watch& watch);

/**
 * Divides a play into pages.
 * @param actual the ticks that brought a picture, rising
 * @param held   those of the same pictures, while pages were held for longer
 * @param end    the tick at which the play is over
 */
QVector<PageTime> PageTimes(const QVector<int>& actual, const QVector<int>& held, int end);

/**
 * A scene whose characters have empty outlines. Outlines are only painted, so it plays like the
 * scene that it is made from does, in a small part of the time.
 */
class BlankScene
{
public:
    explicit BlankScene(const scene::Scene& from);

    const scene::Scene& Get() const { return scene; }

private:
    scene::Scene scene;
    QFile outlines; // of all its nodes, in memory, so a killed process leaves nothing
};

/**
 * What the device needs to scroll a node's text once through its area, until the area is empty
 * again, in milliseconds; the planned time when it does not move. The player must have been
 * started.
 */
qint64 ScrollPass(const player::Stage& stage, int node);

} // namespace AnimText::timing
