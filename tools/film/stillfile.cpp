#include "film/stillfile.h"

#include "files/wholefile.h"
#include "film/colortable.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>

namespace AnimText {

namespace {

const QString softwareMark = QStringLiteral("animtext");
constexpr qint64 largestHead = 4096; // bytes before the pixels: with 256 colors, less than 2000

} // namespace

QByteArray PngOf(QImage picture, bool transparent, PngEffort effort)
{
    if (!transparent)
        picture.reinterpretAsFormat(QImage::Format_RGB32);
    QByteArray png;
    QBuffer buffer(&png);
    QImageWriter writer(&buffer, "png");
    // A quarter of the bytes to compress, and none of libpng's search for the best filter.
    QImage indexed = ColorTable().Indexed(picture);
    if (indexed.isNull())
        indexed = picture;
    if (effort == PngEffort::Small && indexed.colorCount() == 2)
        indexed = indexed.convertToFormat(QImage::Format_Mono, indexed.colorTable());
    writer.setText(QStringLiteral("Software"), softwareMark);
    writer.setCompression(effort == PngEffort::Small ? 67 : 11); // levels 6 and 1 of zlib
    return writer.write(indexed) ? png : QByteArray();
}

bool IsOurPng(const QString& path)
{
    // libpng would print messages about a damaged file.
    QFile file(path);
    const QByteArray mark = QByteArrayLiteral("tEXtSoftware\0") + softwareMark.toLatin1();
    return file.open(QIODevice::ReadOnly) && file.read(largestHead).contains(mark);
}

bool WritePng(const QString& path, const QByteArray& png, QString* error)
{
    if (!png.isEmpty())
        return WriteWhole(path, png, error);
    *error = QStringLiteral("%1 cannot be written: the picture is too large").arg(path);
    return false;
}

StillFile::StillFile(const QString& path)
    : path(QFileInfo(path).absoluteFilePath())
{
}

bool StillFile::Open(const FilmFormat& format, QString* error)
{
    transparent = format.transparent;
    QString target;
    return FindTarget(path, &target, error);
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
