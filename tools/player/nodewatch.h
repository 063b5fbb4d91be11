/**
 * @file
 * What the nodes of a scene send to the display, tick by tick.
 */
#ifndef ANIMTEXT_NODEWATCH_H
#define ANIMTEXT_NODEWATCH_H

#include "player/player.h"

namespace AnimText {

/** A tick of one node. */
struct NodeTick
{
    int tick = 0;
    bool swapped = false;  ///< a new picture of the text was handed to the display
    QSize size{0, 0};      ///< of the picture that the display shows
    QByteArray sha1;       ///< of its rows; empty without a picture
    int state = 0;         ///< 0 finished, 1 playing, 2 nothing to play
    QByteArray background; ///< SHA-1 of the dazzle background; empty without one
};

class NodeWatch
{
public:
    /** @param player is looked at as long as this lives */
    explicit NodeWatch(Player* player);

    /** The player's current tick; call it once in every tick from 0. */
    NodeTick Look(int node);

private:
    struct Shown
    {
        QSize size{0, 0};
        QByteArray sha1;
    };

    Player* player;
    QVector<Shown> shown; ///< kept while it stays the same
};

} // namespace AnimText

#endif
