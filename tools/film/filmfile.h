/**
 * @file
 * The output of a film: a file or a folder that appears whole or not at all.
 */
#pragma once

#include "film/kinds.h"

#include <QByteArray>
#include <QImage>
#include <QString>

#include <functional>
#include <memory>

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

/**
 * Takes the pictures of a film in their order. An unfinished film leaves nothing behind. Everything
 * throws Failure with a line that names the film.
 */
class FilmFile
{
public:
    virtual ~FilmFile() = default;

    virtual void Add(int frame, const QImage& picture) = 0;
    /** Checks what was written and moves the complete film to its place. */
    virtual void Finish() = 0;
};

using FilmFilePointer = std::unique_ptr<FilmFile>;

/** One picture, as a PNG. */
FilmFilePointer MakeStill(const QString& path, const FilmFormat& format);

/**
 * A folder of PNGs, frame-0000.png and on; each has the number of its frame. An existing folder is
 * replaced if it holds only such pictures.
 */
FilmFilePointer MakePngFolder(const QString& path, const FilmFormat& format);

/** Passes pictures of a film to @p take. */
using PlayPictures = std::function<void(const std::function<void(const QImage&)>& take)>;

/**
 * A film that the ffmpeg program encodes.
 * @param play all pictures, for the kinds that need a palette beforehand
 * @param patience milliseconds for which ffmpeg may make no progress
 */
FilmFilePointer MakeVideo(const QString& path, const FilmKind& kind, const FilmFormat& format,
                          const PlayPictures& play, const GoOn& goOn, int patience = 5 * 60 * 1000);

} // namespace AnimText::film
