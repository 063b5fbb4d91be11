/**
 * @file
 * A scene played on the desktop for the length of a recording.
 */
#pragma once

#include "compare/recording.h"
#include "player/player.h"

#include <QImage>

#include <QMap>

namespace AnimText::compare {

/**
 * Records what the plugin does with the loaded scene until there are as many calls as in
 * @p recorded. The calls with which a host ends a text are removed from @p recorded. Throws Failure
 * after a signal.
 * @param differing in each session, the first picture that is not the recorded one
 */
Recording PlayOnDesk(player::Player* player, uint seed, Recording* recorded,
                     QMap<int, QImage>* differing);

} // namespace AnimText::compare
