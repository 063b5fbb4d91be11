#include "scene/times.h"

#include <QMap>
#include <QRegularExpression>

#include <cmath>

namespace AnimText::scene {

bool ReadTime(const QString& text, double* milliseconds)
{
    static const QMap<QString, double> units{{"", 1000},     {"ms", 1},      {"s", 1000},
                                             {"min", 60000}, {"h", 3600000}, {"t", 66}};
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern("(-?[0-9.]+) ?([a-z]*)"));
    const auto match = pattern.match(text);
    bool isNumber = false;
    const double number = match.captured(1).toDouble(&isNumber);
    const QString unit = match.captured(2);
    if (!isNumber || !units.contains(unit))
        return false;
    *milliseconds = number * units[unit];
    return true;
}

bool ToHoldUnits(double milliseconds, int* units)
{
    constexpr int longest = 1000000;
    const double exact = milliseconds / 100;
    const double whole = std::round(exact);
    // In binary, 4.1 s is slightly less than 4100 ms.
    if (!(whole >= 0 && whole <= longest && std::abs(exact - whole) < 1e-6))
        return false;
    *units = int(whole);
    return true;
}

} // namespace AnimText::scene
