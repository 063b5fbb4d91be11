/**
 * @file
 * The actual time of a play, measured with the plugin.
 */
#ifndef ANIMTEXT_SIMULATION_H
#define ANIMTEXT_SIMULATION_H

#include "timing/playlength.h"

#include <QString>
#include <QVector>

namespace AnimText {

/** Measurements of one node. */
struct Simulation
{
    Ending ending = Ending::TooLong;
    int animationTicks = 0; ///< ticks for which pictures were animated
    int holdTicks = 0;      ///< ticks for which finished pages were held
    qint64 finishedMs = -1; ///< when the node was finished, milliseconds; -1 never
};

/**
 * Plays @p scene to its end, and again without holds, to separate animation and holds.
 * @param player its scene is replaced
 * @return one entry a node; empty, with one line in @p error, when the scene cannot be played
 */
QVector<Simulation> Simulate(Player* player, const Scene& scene, uint seed, const Watch& watch,
                             QString* error);

} // namespace AnimText

#endif
