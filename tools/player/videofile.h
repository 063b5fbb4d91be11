/**
 * @file
 * A film as one file that the ffmpeg program encodes.
 */
#ifndef ANIMTEXT_VIDEOFILE_H
#define ANIMTEXT_VIDEOFILE_H

#include "player/filmfile.h"

#include <QProcess>
#include <QTemporaryFile>

namespace AnimText {

/**
 * ffmpeg takes the raw pictures on its standard input and writes under another name in the same
 * folder; the file gets its own name when it is whole.
 */
class VideoFile : public FilmFile
{
public:
    /** @param kind gif, apng, webp, mp4 or webm */
    VideoFile(const QString& path, const QString& kind);
    ~VideoFile() override;

    bool Open(const FilmFormat& format, QString* error) override;
    bool Add(const QImage& picture, QString* error) override;
    bool Finish(const std::function<bool()>& goOn, QString* error) override;

private:
    QStringList Encoding(const FilmFormat& format) const;
    QString Complaint();

    QString path;
    QString kind;
    QTemporaryFile unfinished;
    QProcess encoder;
};

} // namespace AnimText

#endif
