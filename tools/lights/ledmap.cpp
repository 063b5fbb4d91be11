#include "lights/ledmap.h"

#include <cmath>

namespace AnimText {

QVector<int> LedOrder(QSize size, const Wiring& wiring)
{
    const int width = size.width();
    const int height = size.height();
    const QSize matrix = wiring.turns % 2 == 0 ? size : size.transposed();
    const int length = wiring.columns ? matrix.height() : matrix.width();
    QVector<int> order;
    order.reserve(width * height);
    for (int led = 0; led < width * height; ++led) {
        const int line = led / length;
        const int along =
            wiring.serpentine && line % 2 == 1 ? length - 1 - led % length : led % length;
        int x = wiring.columns ? line : along;
        int y = wiring.columns ? along : line;
        if (wiring.right)
            x = matrix.width() - 1 - x;
        if (wiring.bottom)
            y = matrix.height() - 1 - y;
        // Rotates from the matrix back to the picture.
        switch (wiring.turns) {
        case 1: order.append(y + (height - 1 - x) * width); break;
        case 2: order.append(width - 1 - x + (height - 1 - y) * width); break;
        case 3: order.append(width - 1 - y + x * width); break;
        default: order.append(x + y * width);
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

} // namespace AnimText
