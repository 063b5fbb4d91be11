#include "compare/pictures.h"

#include "files/failure.h"

#include <cstdio>

namespace AnimText::compare {

QImage ReadPam(const QString& path)
{
    QFile file(path);
    files::OpenToRead(&file);
    const QByteArray bytes = file.readAll();
    int width = 0, height = 0, depth = 0, pixels = 0;
    std::sscanf(bytes.constData(),
                "P7 WIDTH %5d HEIGHT %5d DEPTH %1d MAXVAL 255 TUPLTYPE %*s ENDHDR%n", &width,
                &height, &depth, &pixels);
    ++pixels; // behind the end of the line
    files::FailUnless(width > 0 && height > 0 && (depth == 3 || depth == 4) &&
                          qint64(width) * height * depth == bytes.size() - pixels,
                      path + ": expected a PAM picture of 24 or 32 bits", files::BadInput);
    return QImage(reinterpret_cast<const uchar*>(bytes.constData()) + pixels, width, height,
                  width * depth, depth == 4 ? QImage::Format_RGBA8888 : QImage::Format_RGB888)
        .convertToFormat(QImage::Format_ARGB32);
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

} // namespace AnimText::compare
