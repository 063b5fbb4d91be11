/**
 * @file
 * A folder with a web page on which every motion is seen.
 */
#ifndef ANIMTEXT_GALLERY_H
#define ANIMTEXT_GALLERY_H

#include "author/author.h"
#include "player/player.h"

#include <QString>

#include <functional>

namespace AnimText {

/** What is shown, and by what. */
struct GalleryOptions
{
    AuthorOptions text; ///< the motion and the speed are the gallery's own
    QString words;      ///< the options that tell `animtext author` of this text
    QString folder;     ///< where the gallery goes
    uint seed = standardSeed;
};

/** Told of how many plays are done; false breaks off. */
using GalleryWatch = std::function<bool(int done, int all)>;

/**
 * Lets the plugin play every motion at every speed and writes the folder, which needs no server.
 * @param player any scene that it has is replaced
 * @param bytes  set to the size of all its files
 * @return false, with one line in @p error; a gallery that was there is then left as it was
 */
bool WriteGallery(const GalleryOptions& options, Player* player, const GalleryWatch& watch,
                  qint64* bytes, QString* error);

} // namespace AnimText

#endif
