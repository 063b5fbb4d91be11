/** @file The pictures of an animation file, each for its own time, over and over. */
#ifndef LW_NEONFILM_H
#define LW_NEONFILM_H

#include <QImage>
#include <QImageReader>

#include <memory>

namespace Lw {

class NeonFilm
{
public:
    /**
     * A file that cannot be shown is named in one debug message.
     * @param path of an animation or a picture in a format that Qt reads, at most 64 megapixels
     * @param area in pixels; the pictures are stretched to fill it
     */
    NeonFilm(const QString& path, QSize area);

    /**
     * Paints the picture that is due.
     * @param image of the area's size
     * @param milliseconds since the film began; never less than in the call before
     * @return false when there is none
     */
    bool Paint(QImage& image, qint64 milliseconds);

private:
    void Advance();
    void GiveUp(const char* reason);

    QString path;
    QSize area;
    std::unique_ptr<QImageReader> reader; ///< null when no further picture is wanted
    QImage picture;                       ///< the one that is shown; null for none
    qint64 shownUntil = 0;                ///< milliseconds
    int picturesRead = 0;                 ///< since the file was opened
    bool isPainted = false;               ///< the picture is in the image already
};

} // namespace Lw

#endif
