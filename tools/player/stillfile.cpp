#include "player/stillfile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace AnimText {

QByteArray PngOf(QImage picture, bool transparent)
{
    if (!transparent)
        picture.reinterpretAsFormat(QImage::Format_RGB32);
    QByteArray png;
    QBuffer buffer(&png);
    QImageWriter writer(&buffer, "png");
    writer.setCompression(11); // of 0 to 100: level 1 of zlib's 9
    return writer.write(picture) ? png : QByteArray();
}

bool WritePng(const QString& path, const QByteArray& png, QString* error)
{
    QSaveFile file(path);
    // What is still to be written when it is committed can fail unnoticed.
    if (!png.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(png) == png.size() &&
        file.flush() && file.commit())
        return true;
    *error = QStringLiteral("%1 cannot be written: %2").arg(path, file.errorString());
    return false;
}

StillFile::StillFile(const QString& path)
    : path(QFileInfo(path).absoluteFilePath())
{
}

bool StillFile::Open(const FilmFormat& format, QString*)
{
    transparent = format.transparent;
    return true;
}

bool StillFile::Add(int, const QImage& picture, QString*)
{
    png = PngOf(picture, transparent);
    return true;
}

bool StillFile::Finish(QString* error)
{
    return WritePng(path, png, error);
}

} // namespace AnimText
