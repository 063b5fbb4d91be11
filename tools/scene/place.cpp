#include "scene/place.h"

#include <QRegularExpression>

namespace AnimText::scene {

QString Place::Path() const
{
    return QStringLiteral("$.pages[%1].areas[%2].nodes[%3]").arg(page).arg(area).arg(node);
}

bool operator==(const Place& a, const Place& b)
{
    return a.page == b.page && a.area == b.area && a.node == b.node;
}

bool ReadPlace(const QString& path, Place* place)
{
    static const QRegularExpression pattern(
        "^\\$\\.pages\\[(\\d+)\\]\\.areas\\[(\\d+)\\]\\.nodes\\[(\\d+)\\]");
    const QRegularExpressionMatch match = pattern.match(path);
    *place = {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
    return match.hasMatch();
}

QString Member(const QString& path, const QString& key)
{
    return path + QLatin1Char('.') + key;
}

QString Item(const QString& path, int index)
{
    return QStringLiteral("%1[%2]").arg(path).arg(index);
}

} // namespace AnimText::scene
