#include "film/png.h"

#include "files/failure.h"
#include "files/wholefile.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>

namespace AnimText::film {

namespace {

const QString softwareMark = "animtext";
constexpr qint64 largestHead = 4096; // bytes before the pixels: with 256 colors, less than 2000

/** @p picture, which is opaque, with a table of its colors, if those are at most 256. */
QImage Indexed(const QImage& picture, PngEffort effort)
{
    QImage indexed = picture.convertToFormat(QImage::Format_Indexed8);
    const QImage plain = indexed.convertToFormat(QImage::Format_RGB32);
    if (plain != picture) // there are more
        return picture;
    if (effort == PngEffort::Small && indexed.colorCount() == 2) {
        const QVector<QRgb> colors = indexed.colorTable();
        indexed = plain.createMaskFromColor(colors.at(1)); // also clears the bits after a row
        indexed.setColorTable(colors);
    }
    return indexed;
}

} // namespace

QByteArray PngOf(QImage picture, bool transparent, PngEffort effort)
{
    // A quarter of the bytes to compress, and none of libpng's search for the best filter.
    if (!transparent && picture.reinterpretAsFormat(QImage::Format_RGB32))
        picture = Indexed(picture, effort);
    QByteArray png;
    QBuffer buffer(&png);
    QImageWriter writer(&buffer, "png");
    writer.setText("Software", softwareMark);
    writer.setCompression(effort == PngEffort::Small ? 67 : 11); // levels 6 and 1 of zlib
    return writer.write(picture) ? png : QByteArray();
}

bool IsOurPng(const QString& path)
{
    // libpng would print messages about a damaged file.
    QFile file(path);
    const QByteArray mark = QByteArrayLiteral("tEXtSoftware\0") + softwareMark.toLatin1();
    return file.open(QIODevice::ReadOnly) && file.read(largestHead).contains(mark);
}

void WritePng(const QString& path, const QByteArray& png)
{
    files::FailUnless(!png.isEmpty(), path + " cannot be written: the picture is too large");
    files::WriteWhole(path, png);
}

} // namespace AnimText::film
