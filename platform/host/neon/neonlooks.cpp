#include "neonborder.h"

namespace Lw {

namespace {

const QRgb PinkAndCyan[] = {0xFF2BD6, 0x19E3FF};
const QRgb Blue = 0x3D7BFF;
const QRgb PaleBlue = 0x9DEBFF;
const QRgb Stripes[] = {0xFF3D2F, 0xFFC53D, 0xFFF0D8};

int Floor(double x)
{
    const int whole = int(x);
    return x < whole ? whole - 1 : whole;
}

double Fraction(double x)
{
    return x - Floor(x);
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
    const double rise = qAbs(2 * Fraction(turn) - 1);
    return 1 - rise * rise * (3 - 2 * rise);
}

QRgb Mixed(QRgb a, QRgb b, double ofB)
{
    const int mix = int(ofB * 256);
    const auto channel = [&](int from, int to) { return from + (to - from) * mix / 256; };
    return qRgb(channel(qRed(a), qRed(b)), channel(qGreen(a), qGreen(b)),
                channel(qBlue(a), qBlue(b)));
}

QRgb Hue(double turn)
{
    const auto channel = [&](double shift) {
        return 30 + int(225 * qBound(0.0, qAbs(Fraction(turn + shift) * 6 - 3) - 1, 1.0));
    };
    return qRgb(channel(0), channel(2 / 3.0), channel(1 / 3.0));
}

/** A place counted in equal cells, about @p units long, that fill the loop in whole groups. */
double Cell(double along, double length, double units, int group)
{
    return along / length * group * qMax(1, qRound(length / (units * group)));
}

const NeonLook Looks[] = {
    // A rainbow.
    {[](double along, double length, double tick) {
         const double turn = along / length;
         return NeonLight{Hue(turn - tick / 90), 0.7 + 0.5 * Wave(3 * turn - tick / 20)};
     },
     false, 0},
    // Comets with long tails, along a faint rail.
    {[](double along, double length, double tick) {
         const int count = 2 * qBound(1, int(length / 120), 3);
         const double place = (tick * 0.7 - along) * count / length; // behind the first one
         const double tail = Bump(Fraction(place) * length / count, 30);
         return NeonLight{PinkAndCyan[Floor(place) & 1], 0.1 + 1.4 * tail * tail};
     },
     false, 0},
    // Lamps that stand still; every third one is lit in turn.
    {[](double along, double length, double tick) {
         const double place = Cell(along, length, 1.7, 3);
         const double turn = Fraction((Floor(place) - tick / 5) / 3) * 3;
         const double lit = Bump(qMin(turn, 3 - turn), 1.2);
         return NeonLight{Mixed(0xFF9A20, 0xFFDDA0, lit),
                          Bump(Fraction(place) - 0.5, 0.42) * (0.25 + 1.2 * lit)};
     },
     false, 0},
    // Blocks.
    {[](double along, double length, double tick) {
         const double place = Cell(along - tick * 0.3, length, 3.5, 2);
         const double edge = qAbs(Fraction(place) - 0.5);
         return NeonLight{PinkAndCyan[Floor(place) & 1], qBound(0.0, (0.44 - edge) * 8, 0.95)};
     },
     true, 0},
    // A tube that breathes.
    {[](double, double, double tick) {
         return NeonLight{Mixed(Blue, PaleBlue, Wave(tick / 144)), 0.25 + Wave((tick + 8) / 48)};
     },
     false, 0},
    // Dashes with a sharp front and a fading end.
    {[](double along, double length, double tick) {
         const double rise = Fraction(Cell(along - tick * 0.4, length, 5, 1)) / 0.8;
         return NeonLight{Hue(along / length), rise < 1 ? 1.3 * rise * rise : 0};
     },
     false, 0},
    // A barber's pole.
    {[](double along, double length, double tick) {
         const double place = Cell(along - tick * 0.18, length, 2, 3) / 3;
         return NeonLight{Stripes[int(Fraction(place) * 3) % 3], 0.95};
     },
     true, 1},
    // Two waves that run against each other and light up where they meet.
    {[](double along, double length, double tick) {
         const double place = Cell(along, length, 16, 1);
         const double right = Wave(place - tick / 26);
         return NeonLight{Mixed(Blue, PaleBlue, right),
                          0.12 + 1.2 * right * right * Wave(place + tick / 34)};
     },
     false, 0}};

} // namespace

const NeonLook& NeonLookOf(int style)
{
    return Looks[style >= 1 && style <= 28 ? (style - 1) % 8 : 0];
}

} // namespace Lw
