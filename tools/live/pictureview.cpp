#include "live/pictureview.h"

#include "film/lamps.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace AnimText::live {

namespace {

constexpr int largestZoom = 64;
constexpr double largestPitch = 4;
constexpr int checker = 8; // logical pixels
constexpr double leastFilled = 0.8;
constexpr double largestSoftScale = 4;

/** The rows in which two pictures of the same size and format differ; empty if they are equal. */
QRect Difference(const QImage& one, const QImage& other)
{
    QRect rows;
    for (int y = 0; y < one.height(); ++y) {
        if (std::memcmp(one.constScanLine(y), other.constScanLine(y),
                        size_t(one.width()) * size_t(one.depth()) / 8) != 0)
            rows |= QRect(0, y, one.width(), 1);
    }
    return rows;
}

QBrush Checkers(double ratio)
{
    const int side = std::max(1, int(std::lround(checker * ratio)));
    QImage tile(2 * side, 2 * side, QImage::Format_RGB32);
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x)
            tile.setPixel(x, y, (x < side) == (y < side) ? 0xFF999999 : 0xFF666666);
    }
    return QBrush(tile);
}

} // namespace

PictureView::PictureView(QWidget* parent, bool fillsRoom)
    : QWidget(parent)
    , surroundings(0x50, 0x50, 0x50)
    , fillsRoom(fillsRoom)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureView::SetPicture(const QImage& given)
{
    const bool isAlike = given.size() == picture.size() && given.format() == picture.format();
    const QRect changed = isAlike && !given.isNull() ? Difference(given, picture) : QRect();
    picture = given;
    picture.setDevicePixelRatio(1);
    if (isAlike && changed.isEmpty())
        return;
    pixels = picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                               : QImage::Format_RGB32);
    if (isAlike)
        update(ToWidget().mapRect(QRectF(changed)).toAlignedRect().adjusted(-1, -1, 1, 1));
    else
        LookChanged();
}

void PictureView::SetZoom(int wanted)
{
    zoom = qBound(0, wanted, largestZoom);
    LookChanged();
}

void PictureView::SetPitch(double wanted)
{
    pitch = wanted > 0 ? qBound(1.0, wanted, largestPitch) : 0;
    LookChanged(); // LEDs need a whole scale
}

void PictureView::SetCheckered(bool wanted)
{
    checkered = wanted;
    update();
}

void PictureView::SetSurroundings(const QColor& color)
{
    surroundings = color;
    update();
}

void PictureView::SetDimmed(bool wanted)
{
    if (dimmed != wanted)
        update();
    dimmed = wanted;
}

double PictureView::Scale() const
{
    const double ratio = devicePixelRatioF();
    if (zoom > 0)
        return std::max(1.0, std::round(zoom * ratio));
    if (picture.isNull())
        return 1;
    const double fit =
        std::min(width() * ratio / picture.width(), height() * ratio / picture.height());
    const double whole = std::min(std::floor(fit), std::floor(largestZoom * ratio));
    const bool wastesRoom =
        fillsRoom && whole < leastFilled * fit && pitch <= 0; // LEDs must look alike
    return fit < 1 || (wastesRoom && fit < largestSoftScale) ? fit : whole;
}

bool PictureView::ShowsLamps() const
{
    return pitch > 0 && Scale() >= film::smallestLamp;
}

/** The picture's rectangle in physical pixels from the widget's corner. */
QRect PictureView::Place() const
{
    const double ratio = devicePixelRatioF();
    const QSize size = (QSizeF(picture.size()) * Scale()).toSize();
    return {QPoint(std::max(0, int(width() * ratio - size.width()) / 2),
                   std::max(0, int(height() * ratio - size.height()) / 2)),
            size};
}

QTransform PictureView::ToWidget() const
{
    const double ratio = devicePixelRatioF();
    const QPointF corner = QPointF(Place().topLeft()) / ratio;
    return QTransform(Scale() / ratio, 0, 0, Scale() / ratio, corner.x(), corner.y());
}

QPoint PictureView::PixelAt(const QPointF& point) const
{
    const QPointF place = ToWidget().inverted().map(point);
    return {int(std::floor(place.x())), int(std::floor(place.y()))};
}

QSize PictureView::sizeHint() const
{
    if (picture.isNull())
        return {512, 64};
    return ToWidget().mapRect(QRectF(picture.rect())).size().toSize();
}

QSize PictureView::minimumSizeHint() const
{
    if (fillsRoom && pitch > 0 && zoom == 0 && !picture.isNull()) {
        const QSizeF least = QSizeF(picture.size() * film::smallestLamp) / devicePixelRatioF();
        return {int(std::ceil(least.width())), int(std::ceil(least.height()))};
    }
    return zoom > 0 ? sizeHint() : QSize(64, 16);
}

/** Paints in physical pixels; the painter's origin is the widget's corner. */
void PictureView::Paint(QPainter* painter) const
{
    const double ratio = devicePixelRatioF();
    const QRect place = Place();
    painter->fillRect(QRectF(QPointF(0, 0), QSizeF(size()) * ratio), surroundings);
    if (picture.isNull() || place.isEmpty())
        return;
    painter->fillRect(place, checkered && !ShowsLamps() ? Checkers(ratio) : QBrush(Qt::black));
    if (Scale() < 1) {
        painter->drawImage(place.topLeft(), pixels.scaled(place.size(), Qt::IgnoreAspectRatio,
                                                          Qt::SmoothTransformation));
    } else {
        const double scale = Scale();
        const QRect seen = place & painter->clipBoundingRect().toAlignedRect();
        const QRect inside = seen.translated(-place.topLeft());
        const QRect part =
            QRect(QPoint(int(inside.left() / scale), int(inside.top() / scale)),
                  QPoint(int(inside.right() / scale), int(inside.bottom() / scale))) &
            picture.rect();
        const QRectF target(QPointF(place.topLeft()) + QPointF(part.topLeft()) * scale,
                            QSizeF(part.size()) * scale);
        const bool isWhole = scale == std::floor(scale);
        if (seen.isEmpty() || part.isEmpty())
            return;
        QImage squares = pixels.copy(part);
        if (ShowsLamps())
            squares = film::AsLamps(squares, int(scale), pitch);
        else if (!isWhole) // only their edges become soft
            squares = squares.scaled(squares.size() * int(std::ceil(scale)));
        painter->setRenderHint(QPainter::SmoothPixmapTransform, !isWhole);
        painter->drawImage(target, squares);
    }
    if (dimmed)
        painter->fillRect(
            place, QColor(surroundings.red(), surroundings.green(), surroundings.blue(), 140));
}

void PictureView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    // At a device pixel ratio of 1.5, a widget may start between two physical pixels.
    const QTransform device = painter.deviceTransform();
    const QTransform corner =
        QTransform::fromTranslate(std::round(device.dx()), std::round(device.dy()));
    painter.setClipRegion(event->region());
    painter.setWorldTransform(corner * device.inverted());
    Paint(&painter);
    painter.resetTransform();
    painter.setClipping(false);
    PaintOverlay(&painter);
}

void PictureView::PaintOverlay(QPainter*) {}

void PictureView::LookChanged()
{
    updateGeometry();
    update();
}

} // namespace AnimText::live
