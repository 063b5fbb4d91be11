/**
 * @file
 * Typed values of a JSON file, with everything that is wrong about them.
 */
#pragma once

#include "scene/scene.h"

#include <QJsonValue>

#include <limits>

namespace AnimText::scene {

/**
 * @p json with every byte order mark inside it written as an escape: Qt's reader drops one that a
 * string begins with, and each character of a text counts.
 */
QByteArray WithMarksEscaped(const QByteArray& json);

/** What is wrong in a JSON file. */
class JsonFaults
{
public:
    const QList<SceneFault>& All() const { return faults; }

    /** Rows of a list that are wrong in the same way are counted, not listed. */
    void Add(const QString& place, const QString& expected, const QString& found);

private:
    QList<SceneFault> faults;
    QHash<QString, int> alike; // indices of faults, by what those have in common that are counted
};

/**
 * A value and its place. Reading continues after a wrong value: it is added to the faults, and a
 * default is returned instead.
 */
struct JsonValue
{
    QJsonValue value;
    JsonFaults* faults;
    QString place = "$"; ///< its path from the root of the file
    QString name{};      ///< of a member

    /** The member of that name; one that need not be there. */
    JsonValue operator[](const QString& member) const;
    bool IsThere() const { return !value.isUndefined(); }
    bool IsText() const { return value.isString(); }

    /** Whether it is an object; members that are not @p known are faults. */
    bool IsObject(const QStringList& known) const;
    /** The same; those that are there. None where the object itself is not there. */
    QList<JsonValue> Members(const QStringList& known) const;
    QList<JsonValue> Items() const;
    QString Text() const;
    bool Truth() const;
    int Int(int least = std::numeric_limits<int>::min(),
            int most = std::numeric_limits<int>::max()) const;
    QPoint Pair(int least, int most) const;

    /** Adds a fault; @p found is the value itself where nothing is said of it. */
    void Refuse(const QString& expected, const QString& found = QString()) const;
};

} // namespace AnimText::scene
