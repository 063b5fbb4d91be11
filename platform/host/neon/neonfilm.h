/** @file The pictures of an animation file, each for its own time, over and over. */
#ifndef LW_NEONFILM_H
#define LW_NEONFILM_H

#include <QImage>
#include <QImageReader>

namespace Lw {

class NeonFilm
{
public:
    /**
     * Prints a debug message if the file cannot be shown.
     * @param path of an animation or a picture in a format that Qt reads, at most 64 megapixels
     */
    explicit NeonFilm(const QString& path);

    /**
     * Paints the picture that is due, stretched to fill the image. False when there is none.
     * @param image the same in every call; keeps the picture before until the next one is due
     * @param milliseconds since the film began; never less than in the call before
     */
    bool Paint(QImage& image, qint64 milliseconds);

private:
    QImage Next();

    QImageReader reader;
    qint64 shownUntil = 0; ///< milliseconds
    int picturesRead = 0;  ///< since the file was opened last
    bool isOver = false;   ///< no further picture is wanted
};

} // namespace Lw

#endif
