#include "film/lamps.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace AnimText::film {

namespace {

/** Brightness of an LED in each of the @p size × @p size pixels around it, 0 to 256. */
std::vector<quint32> Lamp(int size, double pitch)
{
    constexpr int samples = 4; // per pixel and direction
    const double radius = size / pitch / 2;
    std::vector<quint32> light(size_t(size) * size_t(size));
    for (int i = 0; i < size * size * samples * samples; ++i) {
        const int x = i % (size * samples);
        const int y = i / (size * samples);
        const double distance =
            std::hypot((x + 0.5) / samples - size / 2.0, (y + 0.5) / samples - size / 2.0) / radius;
        if (distance > 1)
            continue;
        const double falling = 1 - 0.5 * distance * distance * distance;
        light[size_t(y / samples) * size_t(size) + size_t(x / samples)] +=
            quint32(std::lround(falling * 256 / (samples * samples)));
    }
    return light;
}

/** @p color, which is opaque, at the brightness @p light of 256. */
QRgb Dimmed(QRgb color, quint32 light)
{
    const quint32 redBlue = ((color & 0xFF00FF) * light >> 8) & 0xFF00FF;
    const quint32 green = ((color & 0x00FF00) * light >> 8) & 0x00FF00;
    return 0xFF000000 | redBlue | green;
}

} // namespace

QImage AsLamps(const QImage& given, int size, double pitch)
{
    const QImage picture = given.convertToFormat(QImage::Format_RGB32);
    const std::vector<quint32> light = Lamp(size, pitch);
    QImage large(picture.size() * size, QImage::Format_RGB32);
    large.fill(Qt::black);
    for (int y = 0; y < large.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y / size));
        auto* to = reinterpret_cast<QRgb*>(large.scanLine(y));
        const quint32* lamp = &light[size_t(y % size) * size_t(size)];
        for (int x = 0; x < picture.width(); ++x, to += size) {
            if ((from[x] & 0xFFFFFF) != 0)
                std::transform(lamp, lamp + size, to,
                               [&](quint32 shine) { return Dimmed(from[x], shine); });
        }
    }
    return large;
}

} // namespace AnimText::film
