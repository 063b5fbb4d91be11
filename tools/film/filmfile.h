/**
 * @file
 * The file or folder of a film.
 */
#pragma once

#include "film/film.h"
#include "film/kinds.h"

namespace AnimText::film {

/** What is known about a film before its first picture. */
struct FilmFormat
{
    QSize size;               ///< of every picture, in pixels
    int firstFrame = 0;       ///< the number of the first picture
    int frames = 0;           ///< how many pictures will come
    bool transparent = false; ///< whether they have transparency
    bool lossless = false;    ///< every pixel as it is, for the kinds that can
};

/** Called now and then; throws to stop the work. */
using GoOn = std::function<void()>;

/** Plays the film and passes all its pictures, in their order. */
using PlayPictures = std::function<void(FilmStage stage, const TakePicture& take)>;

// Each plays a film and writes it, whole or not at all. On failure they throw Failure with a line
// that names the film.

/** One picture, as a PNG. */
void WriteStill(const QString& path, const FilmFormat& format, const PlayPictures& play);

/**
 * A folder of PNGs, frame-0000.png and on; each has the number of its frame. An existing folder is
 * replaced if it holds only such pictures.
 */
void WritePngFolder(const QString& path, const FilmFormat& format, const PlayPictures& play);

/**
 * A film that the ffmpeg program encodes; kinds that need a palette are played twice.
 * @param patience milliseconds for which ffmpeg may make no progress
 */
void WriteVideo(const QString& path, const FilmKind& kind, const FilmFormat& format,
                const PlayPictures& play, const GoOn& goOn, int patience = 5 * 60 * 1000);

} // namespace AnimText::film
