#include "lights/testpattern.h"

#include <algorithm>

namespace AnimText::lights {

namespace {

constexpr int patternTicks = 75; // five seconds

QRgb CornerColor(QSize size, int x, int y)
{
    const int side = std::max(1, std::min(size.width(), size.height()) / 4);
    const bool right = x >= size.width() - side;
    const bool bottom = y >= size.height() - side;
    if ((x >= side && !right) || (y >= side && !bottom))
        return qRgb(0, 0, 0);
    return bottom ? (right ? qRgb(255, 255, 255) : qRgb(0, 0, 255))
                  : (right ? qRgb(0, 255, 0) : qRgb(255, 0, 0));
}

/** The last lit pixel is red, to show the direction. */
QRgb OrderColor(QSize size, int x, int y, int tick)
{
    const qint64 count = qint64(size.width()) * size.height();
    const qint64 lit = count * (tick % patternTicks + 1) / patternTicks;
    const qint64 place = x + qint64(y) * size.width();
    return place >= lit ? qRgb(0, 0, 0) : place == lit - 1 ? qRgb(255, 0, 0) : qRgb(64, 64, 64);
}

QRgb Color(int pattern, QSize size, int x, int y, int tick)
{
    switch (pattern) {
    case 0: return CornerColor(size, x, y);
    case 1: return OrderColor(size, x, y, tick);
    case 2: return 0xFF000000U | 0xFF0000U >> 8 * (3 * x / size.width());
    default: {
        const int level = 255 * x / std::max(1, size.width() - 1);
        return qRgb(level, level, level);
    }
    }
}

} // namespace

QStringList TestPatterns()
{
    return {"corners", "order", "colors", "levels"};
}

QImage TestPattern(const QString& name, QSize size, int tick)
{
    const int known = TestPatterns().indexOf(name);
    const int pattern = known >= 0 ? known : tick / patternTicks % TestPatterns().size();
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            row[x] = Color(pattern, size, x, y, tick);
    }
    return picture;
}

} // namespace AnimText::lights
