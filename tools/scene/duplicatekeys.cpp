#include "scene/duplicatekeys.h"

#include "scene/place.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QVector>

namespace AnimText::scene {

namespace {

constexpr int deepest = 1024; // levels; Qt's reader follows no further
constexpr int most = 20;      // keys that are reported, each with its whole path

/** An object or array that is open at the current position. */
struct Level
{
    bool isObject = false;
    int index = 0;
    QString key;
    QSet<QString> keys;
};

QString PathOf(const QVector<Level>& levels)
{
    QString path = "$";
    for (const Level& level : levels)
        path = level.isObject ? Member(path, level.key) : Item(path, level.index);
    return path;
}

/** The position of the quote that ends the string which begins at @p start. */
int EndOfString(const QByteArray& json, int start)
{
    int i = start + 1;
    while (i < json.size() && json.at(i) != '"')
        i += json.at(i) == '\\' ? 2 : 1;
    return i;
}

QString Unescaped(const QByteArray& quoted)
{
    if (!quoted.contains('\\'))
        return QString::fromUtf8(quoted.mid(1, quoted.size() - 2));
    return QJsonDocument::fromJson('[' + quoted + ']').array().at(0).toString();
}

} // namespace

QStringList DuplicateKeys(const QByteArray& json)
{
    QStringList twice;
    QVector<Level> levels;
    bool keyComes = false;
    for (int i = 0; i < json.size() && levels.size() <= deepest && twice.size() < most; ++i) {
        const char c = json.at(i);
        if (c == '{' || c == '[') {
            keyComes = c == '{';
            levels.append({keyComes, 0, QString(), {}});
        } else if (c == '}' || c == ']') {
            if (!levels.isEmpty())
                levels.removeLast();
            keyComes = false;
        } else if (c == ',' && !levels.isEmpty()) {
            keyComes = levels.last().isObject;
            ++levels.last().index;
        } else if (c == '"') {
            const int start = i;
            i = EndOfString(json, start);
            if (!keyComes)
                continue;
            Level& object = levels.last();
            object.key = Unescaped(json.mid(start, i - start + 1));
            if (object.keys.contains(object.key))
                twice.append(PathOf(levels));
            object.keys.insert(object.key);
            keyComes = false;
        }
    }
    return twice;
}

} // namespace AnimText::scene
