/**
 * @file
 * How long a scene plays, found out by playing it.
 */
#ifndef ANIMTEXT_PLAYLENGTH_H
#define ANIMTEXT_PLAYLENGTH_H

#include "player/player.h"

#include <QFile>
#include <QString>
#include <QVector>

#include <functional>

namespace AnimText {

/** How a node's play comes to its end. */
enum class Ending {
    Finishes,      ///< reports itself finished when its plays are done
    ScrollsOn,     ///< reports itself finished at once and is scrolled by the device
    StandsStill,   ///< one picture that never reports itself finished
    NothingToPlay, ///< has no text
    TooLong        ///< had not come to its end when the watch was broken off
};

/** What was seen of one node. */
struct NodePlay
{
    Ending ending = Ending::TooLong;
    int finishedTick = -1; ///< the first tick after which it was finished; -1 never
    int frames = 0;        ///< pictures of the text up to that tick
    int ticksPerFrame = 0; ///< from one picture to the next; 0 when there was only one
};

/** How a node's play ends as far as that is seen when it begins; TooLong when it has to be seen. */
Ending EndingAtStart(const Stage& stage, int node);

/** Told of every tick; answers false to break off. */
using Watch = std::function<bool(int tick)>;

/**
 * Plays the loaded scene from its start until every node has come to its end.
 * @param longest the last tick to play
 */
QVector<NodePlay> PlayToEnd(Player* player, int longest, uint seed, const Watch& watch = Watch());

/**
 * A scene whose characters have empty outlines. Outlines are only painted, so that it plays as the
 * scene that it is made from does, in a small part of the time.
 */
class BlankScene
{
public:
    explicit BlankScene(const Scene& from);

    const Scene& Get() const { return scene; }

private:
    Scene scene;
    QFile outlines; // of all its nodes, in memory: nothing stays of a process that is killed
};

/** More ticks than any play of the scene can take, as far as that can be told from its settings. */
int LongestPlay(const Scene& scene);

/**
 * What the device needs to scroll a node's text once through its area, until the area is empty
 * again, in milliseconds; 0 when it does not move. The player must have been started.
 */
qint64 ScrollPass(const Stage& stage, int node);

} // namespace AnimText

#endif
