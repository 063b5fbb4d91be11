#include "neonfilm.h"

#include <QFileInfo>
#include <QPainter>
#include <QtDebug>

namespace Lw {

namespace {

// Shorter delays are mistakes of old drawing programs; all viewers show such pictures this long.
const int ShortestDelay = 20;
const int UsualDelay = 100;

// The most pictures to skip for one that is due; beyond that the film plays more slowly.
const int MostPicturesAtOnce = 16;

} // namespace

NeonFilm::NeonFilm(const QString& path)
{
    // Anything except a regular file could keep the reader waiting forever.
    isOver = !QFileInfo(path).isFile();
    if (isOver)
        qDebug() << "Neon picture" << path << "is ignored: no such file";
    else
        reader.setFileName(path);
}

bool NeonFilm::Paint(QImage& image, qint64 milliseconds)
{
    QImage due;
    for (int i = 0; i < MostPicturesAtOnce && !isOver && milliseconds >= shownUntil; ++i) {
        const QImage next = Next();
        isOver = next.isNull();
        due = isOver ? due : next;
    }
    if (!due.isNull()) {
        image.fill(0);
        QPainter painter(&image);
        painter.drawImage(
            0, 0, due.scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return picturesRead > 0;
}

/** The next picture, or the first one again after the last; null when there is no other. */
QImage NeonFilm::Next()
{
    if (picturesRead > 1 && !reader.canRead()) {
        reader.setFileName(reader.fileName());
        picturesRead = 0;
    }
    const QSize size = reader.size();
    const bool isTooLarge = qint64(size.width()) * size.height() > 64 * 1000 * 1000;
    const QImage next = isTooLarge || size.isEmpty() ? QImage() : reader.read();
    if (!next.isNull())
        ++picturesRead;
    else if (picturesRead == 0)
        qDebug() << "Neon picture" << reader.fileName()
                 << "is ignored: expected a picture of at most 64 megapixels";
    const int delay = reader.nextImageDelay();
    shownUntil += delay < ShortestDelay ? UsualDelay : delay;
    return next;
}

} // namespace Lw
