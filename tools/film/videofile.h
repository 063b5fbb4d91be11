/**
 * @file
 * A film that is a file of many pictures.
 */
#pragma once

#include "film/film.h"
#include "film/kinds.h"

namespace AnimText::film {

/** What is known about a film before its first picture. */
struct FilmFormat
{
    QSize size;               ///< of every picture, in pixels
    int frames = 0;           ///< how many pictures will come
    bool transparent = false; ///< whether they have transparency
    bool lossless = false;    ///< every pixel as it is, for the kinds that can
};

/** Called now and then; throws to stop the work. */
using GoOn = std::function<void()>;

/** Plays the film and passes all its pictures, in their order. */
using PlayPictures = std::function<void(FilmStage stage, const TakePicture& take)>;

/**
 * Writes a film that the ffmpeg program encodes, whole or not at all. Throws Failure with a line
 * that names the film.
 * @param play is called twice for kinds that need a palette
 * @param patience milliseconds for which ffmpeg may make no progress
 */
void WriteVideo(const QString& path, const FilmKind& kind, const FilmFormat& format,
                const PlayPictures& play, const GoOn& goOn, int patience = 5 * 60 * 1000);

} // namespace AnimText::film
