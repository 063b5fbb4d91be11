#include "neonfilm.h"

#include <QFileInfo>
#include <QPainter>
#include <QtDebug>

namespace Lw {

namespace {

const qint64 MostPixels = qint64(64) * 1000 * 1000;

// Shorter delays are mistakes of old drawing programs; everybody shows such pictures this long.
const int ShortestDelay = 20;
const int UsualDelay = 100;

// A film that falls further behind than this skips the rest.
const int MostPicturesAtOnce = 16;

} // namespace

NeonFilm::NeonFilm(const QString& path, QSize area)
    : path(path)
    , area(area)
{
    // Anything but a regular file could keep the reader waiting for ever.
    if (QFileInfo(path).isFile()) {
        reader.reset(new QImageReader(path));
        Advance();
    } else {
        GiveUp("no such file");
    }
}

bool NeonFilm::Paint(QImage& image, qint64 milliseconds)
{
    for (int i = 0; reader && milliseconds >= shownUntil; ++i) {
        Advance();
        if (i == MostPicturesAtOnce)
            shownUntil = milliseconds + 1;
    }
    if (picture.isNull())
        return false;
    if (!isPainted) {
        image.fill(0);
        QPainter painter(&image);
        painter.drawImage(0, 0,
                          picture.scaled(area, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        isPainted = true;
    }
    return true;
}

/** Goes on to the next picture, or to the first one again after the last. */
void NeonFilm::Advance()
{
    for (bool isAgain = false;; isAgain = true) {
        const QSize size = reader->canRead() ? reader->size() : QSize();
        if (qint64(size.width()) * size.height() > MostPixels)
            return GiveUp("more than 64 megapixels");
        const QImage next = size.isEmpty() ? QImage() : reader->read();
        if (!next.isNull()) {
            const int delay = reader->nextImageDelay();
            picture = next;
            shownUntil += delay < ShortestDelay ? UsualDelay : delay;
            ++picturesRead;
            isPainted = false;
            return;
        }
        if (picturesRead == 0)
            return GiveUp(isAgain ? "it cannot be read again" : "not a picture that can be read");
        // A single picture stands still.
        reader.reset(picturesRead > 1 ? new QImageReader(path) : 0);
        picturesRead = 0;
        if (!reader)
            return;
    }
}

void NeonFilm::GiveUp(const char* reason)
{
    qDebug() << "Neon picture" << path << "is ignored:" << reason;
    reader.reset();
}

} // namespace Lw
