#include "compare/pictures.h"

#include <QFile>
#include <QMap>

#include <algorithm>

namespace AnimText {

bool ReadPam(const QString& path, QImage* picture, QString* error)
{
    constexpr int largestSide = 65535;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: cannot be read: %2").arg(path, file.errorString());
        return false;
    }
    QMap<QByteArray, int> header;
    bool isHeader = file.readLine(8).trimmed() == "P7";
    while (isHeader && !file.atEnd()) {
        const QByteArray line = file.readLine(80).trimmed();
        if (line == "ENDHDR")
            break;
        header[line.left(line.indexOf(' '))] = line.mid(line.indexOf(' ') + 1).toInt();
    }
    const int width = header.value("WIDTH");
    const int height = header.value("HEIGHT");
    const int depth = header.value("DEPTH");
    const qint64 size = qint64(width) * height * depth;
    QByteArray bytes;
    if (width > 0 && height > 0 && width <= largestSide && height <= largestSide &&
        (depth == 3 || depth == 4) && size == file.bytesAvailable())
        bytes = file.readAll();
    if (bytes.isEmpty()) {
        *error = QStringLiteral("%1: expected a PAM picture of 24 or 32 bits").arg(path);
        return false;
    }
    *picture = QImage(reinterpret_cast<const uchar*>(bytes.constData()), width, height,
                      width * depth, depth == 4 ? QImage::Format_RGBA8888 : QImage::Format_RGB888)
                   .convertToFormat(QImage::Format_ARGB32);
    return true;
}

QImage DifferenceOf(const QImage& a, const QImage& b)
{
    const QSize size = a.size().expandedTo(b.size());
    // Where one is smaller, only the other shows.
    const QImage first = a.copy(QRect(QPoint(0, 0), size)).convertToFormat(QImage::Format_ARGB32);
    const QImage second = b.copy(QRect(QPoint(0, 0), size)).convertToFormat(QImage::Format_ARGB32);
    QImage difference(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb pixelA = first.pixel(x, y);
            const QRgb pixelB = second.pixel(x, y);
            const int light = qGray(pixelA) * qAlpha(pixelA) / 255;
            const int other = qGray(pixelB) * qAlpha(pixelB) / 255;
            const int dim = light / 3;
            QRgb shown = qRgb(dim, dim, dim);
            if (pixelA != pixelB)
                shown = light >= other ? qRgb(255, dim, dim) : qRgb(dim, 255, dim);
            difference.setPixel(x, y, shown);
        }
    }
    return difference;
}

} // namespace AnimText
