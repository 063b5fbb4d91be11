#include "scene/scenefault.h"

namespace AnimText::scene {

QString SceneFault::Line(const QString& path) const
{
    // A line and a column follow the name directly, as in compilers' messages.
    QString line = path;
    if (!place.isEmpty())
        line += (place.startsWith(QLatin1Char('$')) ? ": " : ":") + place;
    return QStringLiteral("%1: expected %2, found %3%4")
        .arg(line, expected, found, AndMore(others));
}

QString AndMore(int others)
{
    return others == 0 ? QString() : QStringLiteral(" and %1 more like it").arg(others);
}

QString Counted(int count, const QString& noun)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(noun, count == 1 ? "" : "s");
}

} // namespace AnimText::scene
