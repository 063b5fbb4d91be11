/**
 * @file
 * A folder with a web page that shows every motion.
 */
#pragma once

#include "author/author.h"
#include "player/player.h"

#include <QString>

#include <functional>

namespace AnimText::gallery {

/** What the gallery shows. */
struct GalleryOptions
{
    author::TextSource text;
    scene::SceneNode node; ///< settings; the motion and the speed are the gallery's own
    QString words;         ///< the options of `animtext author` for this text
    QString folder;        ///< where the gallery goes
    uint seed = player::standardSeed;
};

/** Receives the number of finished plays; throws to stop. */
using GalleryWatch = std::function<void(int done, int all)>;

/**
 * Plays every motion at every speed and writes the folder, which needs no server. Throws Failure;
 * an existing gallery is then unchanged.
 * @param player its scene is replaced
 * @return the size of all its files, bytes
 */
qint64 WriteGallery(const GalleryOptions& options, player::Player* player,
                    const GalleryWatch& watch);

} // namespace AnimText::gallery
