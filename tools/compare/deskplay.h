/**
 * @file
 * A scene played on the desktop for the length of a recording.
 */
#pragma once

#include "compare/recording.h"
#include "player/player.h"

#include <QImage>

#include <functional>

namespace AnimText::compare {

/** A picture of a recording by its place there. */
struct PicturePlace
{
    int session = -1;
    int call = -1;
};

/**
 * Records what the plugin does with @p scene until there are as many calls as in @p recorded. The
 * calls with which a host ends a text are removed from @p recorded.
 * @param goOn    called at every tick; false stops
 * @param wanted  the place of a picture that @p picture is set to
 */
bool PlayOnDesk(player::Player* player, const scene::Scene& scene, uint seed,
                const std::function<bool()>& goOn, Recording* recorded, Recording* desk,
                PicturePlace wanted, QImage* picture, QString* error);

} // namespace AnimText::compare
