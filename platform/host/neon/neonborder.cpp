#include "neonborder.h"

#include <algorithm>
#include <cmath>

namespace Lw {

namespace {

const double Pi = 3.14159265358979323846;

// A band this thick or thinner is seen as a line; its glow must not fall outside it.
const int ThinnestGlow = 4;

int BandThickness(QSize area)
{
    const int shorter = qMin(area.width(), area.height());
    return qMin(qBound(2, shorter / 10, 20), shorter);
}

int ToByte(double light)
{
    return int(std::floor(qBound(0.0, light, 1.0) * 255 + 0.5));
}

/** Light beyond what a channel can show spills into the others, as in a tube too bright to look at.
 */
NeonLight Exposed(const NeonLight& light)
{
    const double spill = 0.5 * (std::max(0.0, light.red - 1) + std::max(0.0, light.green - 1) +
                                std::max(0.0, light.blue - 1));
    const NeonLight exposed = {std::min(1.0, light.red + spill), std::min(1.0, light.green + spill),
                               std::min(1.0, light.blue + spill)};
    return exposed;
}

/** The pixel that over black is exactly this light. */
QRgb ToPixel(const NeonLight& light)
{
    const double alpha = std::max(light.red, std::max(light.green, light.blue));
    if (ToByte(alpha) == 0)
        return 0;
    return qRgba(ToByte(light.red / alpha), ToByte(light.green / alpha), ToByte(light.blue / alpha),
                 ToByte(alpha));
}

} // namespace

NeonBorder::NeonBorder(QSize area, int style)
    : area(area)
    , style(style)
    , thickness(BandThickness(area))
{
    const double width = area.width() - thickness;
    const double height = area.height() - thickness;
    radius = std::min(2.0 * thickness, std::min(width, height) / 2);
    straightWidth = width - 2 * radius;
    straightHeight = height - 2 * radius;

    const double arc = Pi / 2 * radius;
    // A loop has some length even where the area is a single pixel.
    length = std::max(1.0, 2 * (straightWidth + straightHeight) + 4 * arc);
}

void NeonBorder::Paint(QImage& image, qint64 tick) const
{
    const int width = area.width();
    const bool hasAlpha = image.format() == QImage::Format_ARGB32;
    for (int y = 0; y < area.height(); ++y) {
        uchar* const row = image.scanLine(y);
        const int gapStart = GapStart(y);
        for (int x = 0; x < width; ++x) {
            if (x == gapStart)
                x = qMax(x, width - gapStart);
            const NeonSpot spot = SpotAt(x, y);
            if (std::fabs(spot.across) > 1)
                continue;
            const NeonLight light = Exposed(NeonLightAt(style, length, thickness, spot, tick));
            if (hasAlpha) {
                reinterpret_cast<QRgb*>(row)[x] = ToPixel(light);
            } else {
                row[3 * x] = uchar(ToByte(light.red));
                row[3 * x + 1] = uchar(ToByte(light.green));
                row[3 * x + 2] = uchar(ToByte(light.blue));
            }
        }
    }
}

/** How far from its ends a row can have light; the same from either end. */
int NeonBorder::GapStart(int y) const
{
    const int edge = qMin(y, area.height() - 1 - y);
    if (edge < thickness)
        return area.width();
    // The curve of a corner reaches further in than the band along the edges.
    const int reach = thickness + int(std::ceil(radius));
    return edge < reach ? reach : thickness;
}

/** Seen from the nearest place on the middle of the band, a rectangle with round corners. */
NeonSpot NeonBorder::SpotAt(int x, int y) const
{
    // The rectangle that is left when the corners' radius is taken off all around.
    const double inset = thickness / 2.0 + radius;
    const double px = x + 0.5 - inset;
    const double py = y + 0.5 - inset;
    const double nearX = qBound(0.0, px, straightWidth);
    const double nearY = qBound(0.0, py, straightHeight);
    const double dx = px - nearX;
    const double dy = py - nearY;

    // Each edge is counted with the corner before it: there the angle is 0 .. a quarter turn, on
    // the edge itself it is a quarter turn.
    const double arc = Pi / 2 * radius;
    NeonSpot spot;
    if (dx > 0 && dy <= 0)
        spot.along = straightWidth + radius * std::atan2(dx, -dy) + nearY;
    else if (dy > 0 && dx >= 0)
        spot.along = straightWidth + arc + straightHeight + radius * std::atan2(dy, dx) +
                     straightWidth - nearX;
    else if (dx < 0 && dy >= 0)
        spot.along = 2 * straightWidth + 2 * arc + straightHeight + radius * std::atan2(-dx, dy) +
                     straightHeight - nearY;
    else
        spot.along = dx < 0 ? length - arc + radius * std::atan2(-dy, -dx) : nearX;
    spot.across = (radius - std::sqrt(dx * dx + dy * dy)) / std::max(thickness, ThinnestGlow) * 2;
    return spot;
}

} // namespace Lw
