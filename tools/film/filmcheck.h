/**
 * @file
 * Looks at a film that an encoder has written.
 */
#ifndef ANIMTEXT_FILMCHECK_H
#define ANIMTEXT_FILMCHECK_H

#include "film/filmfile.h"

namespace AnimText {

/** What a film's file contains. */
struct FilmFacts
{
    QSize size;
    int frames = 0; ///< formats may store equal pictures once
    double milliseconds = 0;
};

/**
 * Reads the headers of every picture in the file @p path.
 * @param kind gif, apng, webp, mp4 or webm
 */
bool ReadFilmFacts(const QString& path, const QString& kind, const GoOn& goOn, FilmFacts* facts,
                   QString* error);

/** Whether the facts are those of @p format; otherwise @p error has one line on what differs. */
bool HasWholeFilm(const FilmFacts& facts, const FilmFormat& format, QString* error);

} // namespace AnimText

#endif
