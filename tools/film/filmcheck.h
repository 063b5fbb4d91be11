/**
 * @file
 * Looks at a film that an encoder has written.
 */
#pragma once

#include "film/videofile.h"

namespace AnimText::film {

/**
 * Reads the headers of every picture in the file @p written. Throws Failure, which names @p film,
 * unless they are those of @p format.
 * @param kind gif, apng, webp, mp4 or webm
 */
void CheckFilm(const QString& film, const QString& written, const QString& kind,
               const FilmFormat& format, const GoOn& goOn);

} // namespace AnimText::film
