/**
 * @file
 * Typed values of a JSON file, with everything that is wrong about them.
 */
#ifndef ANIMTEXT_JSONVALUES_H
#define ANIMTEXT_JSONVALUES_H

#include "scene/place.h"
#include "scene/scenefault.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QPoint>
#include <QStringList>

#include <limits>

namespace AnimText {

/**
 * @p json with every byte order mark inside it written as an escape: Qt's reader drops one that a
 * string begins with, and each character of a text counts.
 */
QByteArray WithMarksEscaped(const QByteArray& json);

/**
 * Reads values and continues after a wrong one: it is remembered, and a default is returned
 * instead.
 */
class JsonValues
{
public:
    const QList<SceneFault>& Faults() const { return faults; }

    /**
     * Remembers what is wrong. Rows of a list that are wrong in the same way are counted, not
     * listed.
     */
    void Add(const QString& place, const QString& expected, const QString& found);
    void Add(const QString& place, const QString& expected, const QJsonValue& found);

    /** @return false when @p value is not an object; keys that are not @p known are faults */
    bool Object(const QJsonValue& value, const QString& place, const QStringList& known,
                QJsonObject* object);
    QJsonArray List(const QJsonValue& value, const QString& place);
    QString Text(const QJsonValue& value, const QString& place);
    bool Truth(const QJsonValue& value, const QString& place);
    int Int(const QJsonValue& value, const QString& place,
            int least = std::numeric_limits<int>::min(),
            int most = std::numeric_limits<int>::max());
    QPoint Pair(const QJsonValue& value, const QString& place, int least, int most);

private:
    QList<SceneFault> faults;
    QHash<QString, int> alike; // indices of faults, by what those have in common that are counted
};

} // namespace AnimText

#endif
