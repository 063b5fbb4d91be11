/**
 * @file
 * The colors of a film whose format has at most 256.
 */
#ifndef ANIMTEXT_PALETTE_H
#define ANIMTEXT_PALETTE_H

#include "film/film.h"
#include "film/filmfile.h"

namespace AnimText {

/** @p picture with every pixel either fully transparent or opaque, as GIF needs it. */
QImage WithoutHalfTones(const QImage& picture);

/**
 * Plays the pictures @p wanted, and finds their colors. Where there are more than 256, ffmpeg
 * chooses from some of the pictures. Returns false with one line in @p error.
 */
bool FindPalette(Film* film, const QVector<int>& wanted, const FilmWatch& watch, Palette* palette,
                 QString* error);

} // namespace AnimText

#endif
