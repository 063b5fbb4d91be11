#include "film/png.h"

#include "files/failure.h"
#include "files/wholefile.h"

#include <QBuffer>
#include <QFile>
#include <QHash>
#include <QImageWriter>

namespace AnimText::film {

namespace {

const QString softwareMark = "animtext";
constexpr int mostColors = 256;      // in a table
constexpr qint64 largestHead = 4096; // bytes before the pixels: with 256 colors, less than 2000

/** @p picture, which has 32 bits a pixel, with a table of its colors, if those are at most 256. */
QImage Indexed(const QImage& picture)
{
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    QVector<QRgb> colors;
    QHash<QRgb, uchar> indices;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        uchar* to = indexed.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            if (x > 0 && from[x] == from[x - 1]) {
                to[x] = to[x - 1];
                continue;
            }
            const auto known = indices.constFind(from[x]);
            to[x] = known == indices.constEnd() ? uchar(colors.size()) : *known;
            if (known != indices.constEnd())
                continue;
            if (colors.size() == mostColors)
                return picture;
            indices.insert(from[x], to[x]);
            colors.append(from[x]);
        }
    }
    indexed.setColorTable(colors);
    return indexed;
}

} // namespace

QByteArray PngOf(QImage picture, bool transparent, PngEffort effort)
{
    if (!transparent)
        picture.reinterpretAsFormat(QImage::Format_RGB32);
    QByteArray png;
    QBuffer buffer(&png);
    QImageWriter writer(&buffer, "png");
    // A quarter of the bytes to compress, and none of libpng's search for the best filter.
    QImage indexed = Indexed(picture);
    if (effort == PngEffort::Small && indexed.colorCount() == 2) {
        const QVector<QRgb> colors = indexed.colorTable();
        indexed = picture.createMaskFromColor(colors.at(1)); // also clears the bits after a row
        indexed.setColorTable(colors);
    }
    writer.setText("Software", softwareMark);
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

void WritePng(const QString& path, const QByteArray& png)
{
    files::FailUnless(!png.isEmpty(), path + " cannot be written: the picture is too large");
    files::WriteWhole(path, png);
}

} // namespace AnimText::film
