/**
 * @file
 * A scene's play, written as a film.
 */
#ifndef ANIMTEXT_WRITEFILM_H
#define ANIMTEXT_WRITEFILM_H

#include "film/film.h"

#include <QPair>

namespace AnimText {

/** What was written. */
struct WrittenFilm
{
    QSize size; ///< of every picture, in pixels
    int frames = 0;
    qint64 bytes = 0;          ///< of the file, or of all files in the folder
    bool halvesColors = false; ///< whether colors were stored at half the resolution
};

/**
 * Plays a planned film and writes some of its pictures. The file at @p path is replaced when the
 * film is complete; a failure leaves it unchanged.
 * @param range the first and the last picture
 * @param path of some FilmKind
 * @param isLossless keeps every pixel, where the kind can
 * @return false, with one line in @p error, when it fails or when @p watch stops it
 */
bool WriteFilm(Film* film, QPair<int, int> range, const QString& path, bool isLossless,
               const FilmWatch& watch, WrittenFilm* written, QString* error);

} // namespace AnimText

#endif
