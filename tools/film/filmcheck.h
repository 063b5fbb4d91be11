/**
 * @file
 * Looks at a film that an encoder has written.
 */
#ifndef ANIMTEXT_FILMCHECK_H
#define ANIMTEXT_FILMCHECK_H

#include "film/filmfile.h"

namespace AnimText {

/** What there is in a film's file. */
struct FilmFacts
{
    QSize size;
    int frames = 0; ///< formats may keep pictures that are alike as one
    double milliseconds = 0;
};

/**
 * Reads the headers of every picture in the file @p path.
 * @param kind gif, apng, webp, mp4 or webm
 */
bool ReadFilmFacts(const QString& path, const QString& kind, const GoOn& goOn, FilmFacts* facts,
                   QString* error);

/** Whether these are the facts of a film like @p format; says on one line in @p error what not. */
bool HasWholeFilm(const FilmFacts& facts, const FilmFormat& format, QString* error);

} // namespace AnimText

#endif
