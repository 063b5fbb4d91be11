/**
 * @file
 * A film as one file that the ffmpeg program encodes.
 */
#ifndef ANIMTEXT_VIDEOFILE_H
#define ANIMTEXT_VIDEOFILE_H

#include "film/filmprogram.h"

#include <QTemporaryFile>

namespace AnimText {

/**
 * ffmpeg takes the raw pictures on its standard input and writes under another name in the same
 * folder; the file gets its own name when what was written is seen to be the whole film.
 */
class VideoFile : public FilmFile
{
public:
    /**
     * @param kind gif, apng, webp, mp4 or webm
     * @param patience milliseconds for which ffmpeg may stand still
     */
    VideoFile(const QString& path, const QString& kind, const GoOn& goOn,
              int patience = 5 * 60 * 1000);

    bool Open(const FilmFormat& format, QString* error) override;
    bool Add(int frame, const QImage& picture, QString* error) override;
    bool Finish(QString* error) override;
    QString Remark() const override;

private:
    bool Start(FilmProgram* program, const QStringList& input, const QStringList& encoding,
               const QString& muxer, const QTemporaryFile& output, QString* error);
    bool EncodeSpool(QString* error);
    bool HalvesColours() const;
    bool IsSpooled() const;
    QStringList Encoding() const;
    bool Named(bool done, QString* error) const;

    QString path;
    QString target; // behind the links of path
    QString kind;
    GoOn goOn;
    int patience;
    FilmFormat format;
    QTemporaryFile unfinished;
    QTemporaryFile spool; // every picture, until the palette is known
    FilmProgram encoder;
    bool coloured = false;
};

} // namespace AnimText

#endif
