/**
 * @file
 * A film as one file that the ffmpeg program encodes.
 */
#ifndef ANIMTEXT_VIDEOFILE_H
#define ANIMTEXT_VIDEOFILE_H

#include "film/filmprogram.h"
#include "film/kinds.h"

#include <QTemporaryFile>

namespace AnimText {

/**
 * ffmpeg takes the raw pictures on its standard input and writes under another name in the same
 * folder; the file gets its name when a check has found the complete film.
 */
class VideoFile : public FilmFile
{
public:
    /** @param patience milliseconds for which ffmpeg may make no progress */
    VideoFile(const QString& path, const FilmKind& kind, const GoOn& goOn,
              int patience = FilmProgram::longestWait);

    bool Open(const FilmFormat& format, QString* error) override;
    bool Add(int frame, const QImage& picture, QString* error) override;
    bool Finish(QString* error) override;

private:
    QStringList Arguments() const;
    bool Named(bool done, QString* error) const;

    QString path;
    QString target; // path with its links followed
    FilmKind kind;
    GoOn goOn;
    FilmFormat format;
    Palette palette;
    QTemporaryFile unfinished;
    FilmProgram encoder;
};

} // namespace AnimText

#endif
