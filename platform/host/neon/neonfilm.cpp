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
    , shownUntil(0)
    , picturesRead(0)
    , isPainted(false)
{
    // Anything but a regular file could keep the reader waiting for ever.
    if (!QFileInfo(path).isFile()) {
        GiveUp("no such file");
        return;
    }
    Open();
    Advance();
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

void NeonFilm::Open()
{
    reader.reset(new QImageReader(path));
    picturesRead = 0;
}

NeonFilm::Reading NeonFilm::ReadPicture()
{
    if (!reader->canRead())
        return AtEnd;
    const QSize size = reader->size();
    if (size.isEmpty())
        return AtEnd;
    if (qint64(size.width()) * size.height() > MostPixels) {
        GiveUp("more than 64 megapixels");
        return Failed;
    }
    const QImage next = reader->read();
    if (next.isNull())
        return AtEnd;

    const int delay = reader->nextImageDelay();
    picture = next;
    shownUntil += delay < ShortestDelay ? UsualDelay : delay;
    ++picturesRead;
    isPainted = false;
    return Read;
}

/** Goes on to the next picture, or to the first one again after the last. */
void NeonFilm::Advance()
{
    if (ReadPicture() != AtEnd)
        return;
    if (picturesRead == 0) {
        GiveUp("not a picture that can be read");
    } else if (picturesRead == 1) {
        reader.reset(); // it stands still
    } else {
        Open();
        if (ReadPicture() == AtEnd)
            GiveUp("it cannot be read again");
    }
}

void NeonFilm::GiveUp(const char* reason)
{
    qDebug() << "Neon picture" << path << "is ignored:" << reason;
    reader.reset();
}

} // namespace Lw
