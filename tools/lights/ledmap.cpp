#include "lights/ledmap.h"

#include <QTransform>

#include <cmath>

namespace AnimText::lights {

QVector<int> LedOrder(QSize size, const Wiring& wiring)
{
    // Numbers every pixel, and turns the numbers as the matrix and its data line are turned.
    QImage numbers(size, QImage::Format_ARGB32);
    for (int i = 0; i < size.width() * size.height(); ++i)
        numbers.setPixel(i % size.width(), i / size.width(), QRgb(i));
    numbers = numbers.transformed(QTransform().rotate(90 * wiring.turns))
                  .mirrored(wiring.right, wiring.bottom);
    if (wiring.columns)
        numbers = numbers.transformed(QTransform().rotate(90)).mirrored(true, false);
    QVector<int> order;
    for (int y = 0; y < numbers.height(); ++y) {
        for (int x = 0; x < numbers.width(); ++x) {
            const bool back = wiring.serpentine && y % 2 == 1;
            order.append(int(numbers.pixel(back ? numbers.width() - 1 - x : x, y)));
        }
    }
    return order;
}

LedMap::LedMap(const Controller& controller)
    : rect(controller.rect)
    , order(LedOrder(controller.rect.size(), controller.wiring))
    , shifts()
    , levels()
{
    for (size_t value = 0; value < levels.size(); ++value)
        levels[value] = uchar(std::lround(255.0 * controller.brightness / 100 *
                                          std::pow(double(value) / 255, controller.gamma)));
    for (int i = 0; i < 3; ++i)
        shifts[size_t(i)] = 8 * QStringLiteral("BGR").indexOf(controller.order.at(i));
}

QByteArray LedMap::Channels(const QImage& display) const
{
    // Premultiplied colors are the colors over black.
    const QImage picture = display.copy(rect).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const auto* pixels = reinterpret_cast<const QRgb*>(picture.constBits());
    QByteArray channels(3 * order.size(), Qt::Uninitialized);
    char* to = channels.data();
    for (int pixel : order) {
        for (int shift : shifts)
            *to++ = char(levels[pixels[pixel] >> shift & 0xFF]);
    }
    return channels;
}

} // namespace AnimText::lights
