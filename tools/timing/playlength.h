/**
 * @file
 * How long a scene plays, measured by playing it.
 */
#ifndef ANIMTEXT_PLAYLENGTH_H
#define ANIMTEXT_PLAYLENGTH_H

#include "player/player.h"

#include <QFile>
#include <QString>
#include <QVector>

#include <functional>

namespace AnimText {

/** How a node's play ends. */
enum class Ending {
    Finishes,      ///< reports itself finished when its plays are done
    ScrollsOn,     ///< reports itself finished at once and is scrolled by the device
    StandsStill,   ///< one picture that never reports itself finished
    NothingToPlay, ///< has no text
    TooLong        ///< had not ended when the measurement stopped
};

/** Measurements of one node. */
struct NodePlay
{
    Ending ending = Ending::TooLong;
    int finishedTick = -1; ///< the first tick after which it was finished; -1 never
    int frames = 0;        ///< pictures of the text up to that tick
    int ticksPerFrame = 0; ///< from one picture to the next; 0 when there was only one
};

/** How a node's play ends, if known at its start; otherwise TooLong. */
Ending EndingAtStart(const Stage& stage, int node);

/** Called at every tick; returns false to stop. */
using Watch = std::function<bool(int tick)>;

/**
 * Plays the loaded scene from its start until every node has ended.
 * @param longest the last tick to play
 */
QVector<NodePlay> PlayToEnd(Player* player, int longest, uint seed, const Watch& watch = Watch());

/**
 * A scene whose characters have empty outlines. Outlines are only painted, so it plays like the
 * scene that it is made from does, in a small part of the time.
 */
class BlankScene
{
public:
    explicit BlankScene(const Scene& from);

    const Scene& Get() const { return scene; }

private:
    Scene scene;
    QFile outlines; // of all its nodes, in memory, so a killed process leaves nothing
};

/** An upper bound of the ticks of a play, from the scene's settings. */
int LongestPlay(const Scene& scene);

/**
 * What the device needs to scroll a node's text once through its area, until the area is empty
 * again, in milliseconds; 0 when it does not move. The player must have been started.
 */
qint64 ScrollPass(const Stage& stage, int node);

} // namespace AnimText

#endif
