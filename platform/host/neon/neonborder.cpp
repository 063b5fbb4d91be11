#include "neonborder.h"

#include <cmath>

namespace Lw {

namespace {

// A band this thick or thinner is seen as a line; its glow must not fall outside it.
const int ThinnestGlow = 4;

/** What a pixel shows that is so bright: full is 256, beyond it a color turns white. */
QRgb Lit(QRgb color, int light)
{
    if (light <= 256)
        return (color & 0xFFFFFF) | QRgb(qMin(light, 255)) << 24;
    const int white = qMin(light - 256, 256);
    const auto channel = [&](int value) { return value + (255 - value) * white / 256; };
    return qRgb(channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color)));
}

} // namespace

NeonBorder::NeonBorder(QSize area, int style)
    : look(NeonLookOf(style))
{
    const int shorter = qMin(area.width(), area.height());
    const int thickness = qMin(qBound(2, shorter / 10, 20), shorter);
    unit = qMax(thickness, ThinnestGlow);

    // The middle of the band is a rectangle with round corners; without their radius all around a
    // smaller rectangle is left. Pixels are seen from the nearest place on that one.
    const double width = area.width() - thickness;
    const double height = area.height() - thickness;
    const double radius = qMin(2.0 * thickness, qMin(width, height) / 2);
    const double flatX = width - 2 * radius;
    const double flatY = height - 2 * radius;
    const double arc = 1.5707963267948966 * radius;
    const double around = 2 * (flatX + flatY) + 4 * arc;
    length = qMax(1, qRound(around)); // some even where the area is a single pixel
    const int reach = thickness + int(std::ceil(radius));
    for (int y = 0; y < area.height(); ++y) {
        const bool isMiddle = qMin(y, area.height() - 1 - y) >= reach;
        for (int x = 0; x < area.width(); ++x) {
            if (isMiddle && x == reach)
                x = qMax(x, area.width() - reach);
            const double px = x + 0.5 - thickness / 2.0 - radius;
            const double py = y + 0.5 - thickness / 2.0 - radius;
            const double nearX = qBound(0.0, px, flatX);
            const double nearY = qBound(0.0, py, flatY);
            const double dx = px - nearX;
            const double dy = py - nearY;
            const double across = (radius - std::sqrt(dx * dx + dy * dy)) / unit * 2;
            if (std::fabs(across) > 1)
                continue;
            // Each edge is counted with the corner before it.
            double along = dx < 0 ? around - arc + radius * std::atan2(-dy, -dx) : nearX;
            if (dx > 0 && dy <= 0)
                along = flatX + radius * std::atan2(dx, -dy) + nearY;
            else if (dy > 0 && dx >= 0)
                along = 2 * flatX + flatY + arc + radius * std::atan2(dy, dx) - nearX;
            else if (dx < 0 && dy >= 0)
                along = around - arc - nearY + radius * std::atan2(-dx, dy) - arc;
            along += look.slant * unit / 2 * across + around;
            // A tube has a core that is too bright and a soft rim.
            const double rim = 1 - across * across;
            const double core = qMax(0.0, 1 - 9 * across * across);
            const double glow =
                look.isFlat ? rim * (1 + across * across) : rim * rim * rim + 0.5 * core * core;
            const Spot spot = {x, y, int(along) % length, int(glow * 256)};
            spots.push_back(spot);
        }
    }
}

void NeonBorder::Paint(QImage& image, qint64 tick) const
{
    std::vector<NeonLight> loop;
    for (int i = 0; i < length; ++i)
        loop.push_back(look.light(i / unit, length / unit, double(tick)));
    const bool hasAlpha = image.format() == QImage::Format_ARGB32;
    uchar* const bits = image.bits();
    for (const Spot& spot : spots) {
        const NeonLight& light = loop[size_t(spot.along)];
        const QRgb lit = Lit(light.color, int(light.brightness * spot.glow));
        uchar* const row = bits + spot.y * image.bytesPerLine();
        if (hasAlpha) {
            reinterpret_cast<QRgb*>(row)[spot.x] = lit;
            continue;
        }
        row[3 * spot.x] = uchar(qRed(lit) * qAlpha(lit) / 255);
        row[3 * spot.x + 1] = uchar(qGreen(lit) * qAlpha(lit) / 255);
        row[3 * spot.x + 2] = uchar(qBlue(lit) * qAlpha(lit) / 255);
    }
}

} // namespace Lw
