/**
 * @file
 * A film as a folder of PNGs, frame-0000.png and on.
 */
#ifndef ANIMTEXT_PNGFOLDER_H
#define ANIMTEXT_PNGFOLDER_H

#include "player/filmfile.h"

#include <QTemporaryDir>

namespace AnimText {

/**
 * The pictures are written into a folder beside the one they are for, which takes its place in the
 * end. A folder that is there already is replaced if it holds nothing but such pictures.
 */
class PngFolder : public FilmFile
{
public:
    explicit PngFolder(const QString& path);

    bool Open(const FilmFormat& format, QString* error) override;
    bool Add(const QImage& picture, QString* error) override;
    bool Finish(const std::function<bool()>& goOn, QString* error) override;

private:
    QString path;
    std::unique_ptr<QTemporaryDir> folder;
    int frames = 0;
};

} // namespace AnimText

#endif
