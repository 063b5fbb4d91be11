#include "neonborder.h"

#include <QColor>

#include <cmath>
#include <utility>

namespace Lw {

namespace {

struct NeonLight
{
    QRgb color;
    double brightness; ///< 1 is full
};

const QRgb PinkAndCyan[] = {0xFF2BD6, 0x19E3FF};
const QRgb Blue = 0x3D7BFF;
const QRgb PaleBlue = 0x9DEBFF;
const QRgb Stripes[] = {0xFF3D2F, 0xFFC53D, 0xFFF0D8};

double Fraction(double x)
{
    return x - std::floor(x);
}

/** 1 at 0 and 0 from @p reach on, smoothly; quicker than exp(). */
double Bump(double x, double reach)
{
    const double inside = qMax(0.0, 1 - x * x / (reach * reach));
    return inside * inside;
}

/** From 0 to 1 and back in a turn; quicker than cos(). */
double Wave(double turn)
{
    return Bump(Fraction(turn) - 0.5, 0.5);
}

/** @param ofB in 1/256 */
QRgb Mixed(QRgb a, QRgb b, int ofB)
{
    const auto channel = [&](int from, int to) { return from + (to - from) * ofB / 256; };
    return qRgb(channel(qRed(a), qRed(b)), channel(qGreen(a), qGreen(b)),
                channel(qBlue(a), qBlue(b)));
}

/** A place counted in equal cells, about @p units long, that fill the loop in whole groups. */
double Cell(double along, double length, double units, int group)
{
    return along / length * group * qMax(1, qRound(length / (units * group)));
}

/** What a pixel shows that is so bright: full is 256, beyond it a color turns white. */
QRgb Lit(QRgb color, int light)
{
    if (light < 256)
        return (color & 0xFFFFFF) | QRgb(light) << 24;
    return Mixed(color, 0xFFFFFF, qMin(light - 256, 256));
}

/** Lengths are in units that are as long as the band is thick. */
struct NeonLook
{
    bool isFlat;  ///< an even strip, not a glowing tube
    double slant; ///< by which the inner edge lags behind the outer one
    /** @param along the loop, clockwise from the left end of the top edge */
    NeonLight (*light)(double along, double length, double tick);
};

const NeonLook Looks[] = {
    // A rainbow.
    {false, 0,
     [](double along, double length, double tick) {
         const double turn = along / length;
         return NeonLight{QColor::fromHsvF(Fraction(turn - tick / 90), 0.88, 1).rgb(),
                          0.7 + 0.5 * Wave(3 * turn - tick / 20)};
     }},
    // Comets with long tails, along a faint rail.
    {false, 0,
     [](double along, double length, double tick) {
         const int count = 2 * qBound(1, int(length / 120), 3);
         const double place = (tick * 0.7 - along) * count / length; // behind the first one
         const double tail = Bump(Fraction(place) * length / count, 30);
         return NeonLight{PinkAndCyan[int(std::floor(place)) & 1], 0.1 + 1.4 * tail * tail};
     }},
    // Lamps that stand still; every third one is lit in turn.
    {false, 0,
     [](double along, double length, double tick) {
         const double place = Cell(along, length, 1.7, 3);
         const double turn = Fraction((std::floor(place) - tick / 5) / 3) * 3;
         const double lit = Bump(qMin(turn, 3 - turn), 1.2);
         return NeonLight{Mixed(0xFF9A20, 0xFFDDA0, int(256 * lit)),
                          Bump(Fraction(place) - 0.5, 0.42) * (0.25 + 1.2 * lit)};
     }},
    // Blocks.
    {true, 0,
     [](double along, double length, double tick) {
         const double place = Cell(along - tick * 0.3, length, 3.5, 2);
         const double edge = qAbs(Fraction(place) - 0.5);
         return NeonLight{PinkAndCyan[int(std::floor(place)) & 1],
                          qBound(0.0, (0.44 - edge) * 8, 0.95)};
     }},
    // A tube that breathes.
    {false, 0,
     [](double, double, double tick) {
         return NeonLight{Mixed(Blue, PaleBlue, int(256 * Wave(tick / 144))),
                          0.25 + Wave((tick + 8) / 48)};
     }},
    // Dashes with a sharp front and a fading end.
    {false, 0,
     [](double along, double length, double tick) {
         const double rise = Fraction(Cell(along - tick * 0.4, length, 5, 1)) / 0.8;
         return NeonLight{QColor::fromHsvF(along / length, 0.88, 1).rgb(),
                          rise < 1 ? 1.3 * rise * rise : 0};
     }},
    // A barber's pole.
    {true, 1,
     [](double along, double length, double tick) {
         const double place = Cell(along - tick * 0.18, length, 2, 3) / 3;
         return NeonLight{Stripes[int(Fraction(place) * 3) % 3], 0.95};
     }},
    // Two waves that run against each other and light up where they meet.
    {false, 0, [](double along, double length, double tick) {
         const double place = Cell(along, length, 16, 1);
         const double right = Wave(place - tick / 26);
         return NeonLight{Mixed(Blue, PaleBlue, int(256 * right)),
                          0.12 + 1.2 * right * right * Wave(place + tick / 34)};
     }}};

} // namespace

NeonBorder::NeonBorder(QSize area, int style)
    : look(style >= 1 && style <= 28 ? (style - 1) % 8 : 0)
{
    const int shorter = qMin(area.width(), area.height());
    thickness = qMin(qBound(4, shorter / 10, 20), shorter);

    // The middle of the band is a rectangle with round corners; without their radius all around a
    // smaller rectangle is left. Pixels are seen from the nearest place on that one.
    const double radius = qMin(2.0 * thickness, (shorter - thickness) / 2.0);
    const double flatX = area.width() - thickness - 2 * radius;
    const double flatY = area.height() - thickness - 2 * radius;
    const double corner = 1.5707963267948966 * radius; // a quarter of a turn
    const double around = 2 * (flatX + flatY) + 4 * corner;
    length = qMax(1, qRound(around)); // some even where the area is a single pixel
    for (int y = 0; y < area.height(); ++y) {
        for (int x = 0; x < area.width(); ++x) {
            // From the middle of the area, to the right and up.
            double right = x + 0.5 - area.width() / 2.0;
            double up = area.height() / 2.0 - y - 0.5;
            double farRight = flatX / 2;
            double farUp = flatY / 2;
            const double dx = qMax(0.0, std::fabs(right) - farRight);
            const double dy = qMax(0.0, std::fabs(up) - farUp);
            const double across = (radius - std::sqrt(dx * dx + dy * dy)) / thickness * 2;
            if (std::fabs(across) > 1)
                continue;
            // Turned until the pixel is at the top edge or the corner before it.
            double along = around - corner;
            while (right > farRight || up < farUp) {
                along += corner + 2 * farRight;
                std::swap(farRight, farUp);
                std::swap(right, up);
                right = -right;
            }
            along += radius * std::atan2(up - farUp, qMax(0.0, -right - farRight));
            along += qMax(0.0, right + farRight);
            along += Looks[look].slant * thickness / 2 * across;
            // A tube has a core that is too bright and a soft rim.
            const double rim = 1 - across * across;
            const double core = qMax(0.0, 1 - 9 * across * across);
            const double tube = rim * rim * rim + 0.5 * core * core;
            const double glow = Looks[look].isFlat ? rim * (1 + across * across) : tube;
            spots.push_back({QPoint(x, y), int(along) % length, int(glow * 256)});
        }
    }
}

void NeonBorder::Paint(QImage& image, qint64 tick) const
{
    std::vector<NeonLight> loop;
    loop.reserve(size_t(qMax(0, length)));
    for (int i = 0; i < length; ++i)
        loop.push_back(Looks[look].light(i / thickness, length / thickness, double(tick)));
    const bool hasAlpha = image.format() == QImage::Format_ARGB32;
    uchar* const bits = image.bits();
    for (const Spot& spot : spots) {
        const NeonLight& light = loop[size_t(spot.along)];
        const QRgb lit = Lit(light.color, int(light.brightness * spot.glow));
        uchar* const row = bits + spot.at.y() * image.bytesPerLine();
        if (hasAlpha) {
            reinterpret_cast<QRgb*>(row)[spot.at.x()] = lit;
            continue;
        }
        uchar* const pixel = row + 3 * spot.at.x();
        pixel[0] = uchar(qRed(lit) * qAlpha(lit) / 255);
        pixel[1] = uchar(qGreen(lit) * qAlpha(lit) / 255);
        pixel[2] = uchar(qBlue(lit) * qAlpha(lit) / 255);
    }
}

} // namespace Lw
