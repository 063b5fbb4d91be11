/**
 * @file
 * What a play really takes, measured on the plugin.
 */
#ifndef ANIMTEXT_SIMULATION_H
#define ANIMTEXT_SIMULATION_H

#include "timing/playlength.h"

#include <QString>
#include <QVector>

namespace AnimText {

/** What was measured of one node. */
struct Simulation
{
    Ending ending = Ending::TooLong;
    int animationTicks = 0; ///< ticks for which pictures were animated
    int holdTicks = 0;      ///< ticks for which finished pages stood
    qint64 finishedMs = -1; ///< when the node was finished, milliseconds; -1 never
};

/**
 * Plays @p scene to its end, and once more without holds, which tells animation and holds apart.
 * @param player any scene that it has is replaced
 * @return one entry a node; empty, with one line in @p error, when the scene cannot be played
 */
QVector<Simulation> Simulate(Player* player, const Scene& scene, uint seed, const Watch& watch,
                             QString* error);

} // namespace AnimText

#endif
