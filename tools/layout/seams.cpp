#include "layout/seams.h"

#include <QImage>
#include <QPainter>

#include <functional>
#include <numeric>

namespace AnimText::layout {
namespace {

/** A bitmap of @p box with the paths, each filled by its own rule. */
QImage Coverage(const QRectF& box, std::initializer_list<QPainterPath> paths)
{
    const QRect canvas = box.toAlignedRect().adjusted(-1, -1, 1, 1);
    QImage image(canvas.size().boundedTo(QSize(4096, 4096)), QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.translate(-canvas.topLeft());
    for (const QPainterPath& path : paths)
        painter.fillPath(path, Qt::white);
    return image;
}

int DifferentPixels(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar* row = a.constScanLine(y);
        count += std::inner_product(row, row + a.width(), b.constScanLine(y), 0, std::plus<>(),
                                    std::not_equal_to<>());
    }
    return count;
}

QPainterPath ByOddEven(QPainterPath path)
{
    path.setFillRule(Qt::OddEvenFill);
    return path;
}

} // namespace

QPainterPath WithoutOverlaps(const QPainterPath& path)
{
    const QRectF box = path.boundingRect();
    if (path.isEmpty() || path.fillRule() == Qt::OddEvenFill)
        return path;
    const QImage wanted = Coverage(box, {path});
    const int holes = DifferentPixels(wanted, Coverage(box, {ByOddEven(path)}));
    if (holes == 0)
        return path;
    // Qt's path arithmetic sometimes fails, so its result is used only if it is better.
    const QPainterPath simple = ByOddEven(path.simplified());
    return DifferentPixels(wanted, Coverage(box, {simple})) < holes ? simple : path;
}

QPainterPath WithoutSharedArea(const QPainterPath& path, const QPainterPath& neighbor)
{
    if (path.isEmpty() || neighbor.isEmpty() ||
        !path.boundingRect().intersects(neighbor.boundingRect()))
        return path;
    const QRectF box = path.boundingRect().united(neighbor.boundingRect());
    const QImage wanted = Coverage(box, {path, neighbor});
    const auto holes = [&](const QPainterPath& rest) {
        QPainterPath both;
        both.addPath(rest);
        both.addPath(neighbor);
        return DifferentPixels(wanted, Coverage(box, {both}));
    };
    const int before = holes(path);
    if (before == 0)
        return path;
    const QPainterPath rest = path.subtracted(neighbor);
    return holes(rest) < before ? rest : path;
}

} // namespace AnimText::layout
