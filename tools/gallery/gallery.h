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

/** Receives the number of finished plays; false stops. */
using GalleryWatch = std::function<bool(int done, int all)>;

/**
 * Plays every motion at every speed and writes the folder, which needs no server.
 * @param player its scene is replaced
 * @param bytes  set to the size of all its files
 * @return false, with one line in @p error; an existing gallery is then unchanged
 */
bool WriteGallery(const GalleryOptions& options, player::Player* player, const GalleryWatch& watch,
                  qint64* bytes, QString* error);

} // namespace AnimText::gallery
