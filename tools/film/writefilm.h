/**
 * @file
 * A scene's play, written as a film.
 */
#pragma once

#include "film/film.h"

#include <QPair>

namespace AnimText::film {

/** What was written. */
struct WrittenFilm
{
    QSize size; ///< of every picture, in pixels
    int frames = 0;
    qint64 bytes = 0;          ///< of the file, or of all files in the folder
    bool halvesColors = false; ///< whether colors were stored at half the resolution
};

/**
 * Writes some of a film's pictures. The file at @p path is replaced when the film is complete; a
 * failure leaves it unchanged and throws.
 * @param range the first and the last picture
 * @param path of some FilmKind
 * @param isLossless keeps every pixel, where the kind can
 */
WrittenFilm WriteFilm(Film* film, QPair<int, int> range, const QString& path, bool isLossless,
                      const FilmWatch& watch);

} // namespace AnimText::film
