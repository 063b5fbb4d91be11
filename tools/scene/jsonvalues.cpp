#include "scene/jsonvalues.h"

#include "scene/place.h"
#include "scene/suggest.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>

namespace AnimText::scene {

namespace {

QString Found(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Null: return "null";
    case QJsonValue::Bool: return value.toBool() ? "true" : "false";
    case QJsonValue::Double: return QString::number(value.toDouble(), 'g', 12);
    case QJsonValue::String: return "a text";
    case QJsonValue::Array: return QStringLiteral("a list of %1").arg(value.toArray().size());
    case QJsonValue::Object: return "an object";
    case QJsonValue::Undefined: break;
    }
    return "nothing";
}

/** Keys may contain anything, also line breaks. */
QString OnOneLine(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return text;
}

/** @p place without the numbers of the rows of a list. */
QString AnyRow(QString place)
{
    static const QRegularExpression row("(\\.lists\\.[^.\\[]*)\\[\\d+\\]");
    return place.replace(row, "\\1");
}

} // namespace

QByteArray WithMarksEscaped(const QByteArray& json)
{
    const QByteArray mark("\xEF\xBB\xBF");
    const int start = json.startsWith(mark) ? mark.size() : 0;
    return json.indexOf(mark, start) < 0
               ? json
               : json.left(start) + json.mid(start).replace(mark, "\\ufeff");
}

void JsonFaults::Add(const QString& place, const QString& expected, const QString& found)
{
    const QString kind = AnyRow(place) + QLatin1Char('\n') + expected;
    const auto known = alike.constFind(kind);
    if (known != alike.constEnd()) {
        ++faults[*known].others;
        return;
    }
    alike.insert(kind, faults.size());
    faults.append({OnOneLine(place), OnOneLine(expected), OnOneLine(found)});
}

void JsonValue::Refuse(const QString& expected, const QString& found) const
{
    faults->Add(place, expected, found.isEmpty() ? Found(value) : found);
}

JsonValue JsonValue::operator[](const QString& member) const
{
    return {value.toObject().value(member), faults, Member(place, member), member};
}

bool JsonValue::IsObject(const QStringList& known) const
{
    if (!value.isObject())
        Refuse("an object");
    for (const QString& member : value.toObject().keys()) {
        if (!known.contains(member))
            (*this)[member].Refuse(QStringLiteral("one of %1").arg(known.join(", ")),
                                   "an unknown key" + DidYouMean(member, known));
    }
    return value.isObject();
}

QList<JsonValue> JsonValue::Members(const QStringList& known) const
{
    QList<JsonValue> members;
    if (IsThere())
        IsObject(known);
    const QJsonObject object = value.toObject();
    for (const QString& member : known) {
        if (object.contains(member))
            members.append((*this)[member]);
    }
    return members;
}

QList<JsonValue> JsonValue::Items() const
{
    if (!value.isArray())
        Refuse("a list");
    QList<JsonValue> items;
    const QJsonArray list = value.toArray();
    for (const QJsonValue& item : list)
        items.append({item, faults, Item(place, items.size())});
    return items;
}

QString JsonValue::Text() const
{
    if (!IsText())
        Refuse("a text");
    return value.toString();
}

bool JsonValue::Truth() const
{
    if (!value.isBool())
        Refuse("true or false");
    return value.toBool();
}

int JsonValue::Int(int least, int most) const
{
    const double number = value.toDouble();
    const bool whole = value.isDouble() && std::floor(number) == number;
    if (whole && number >= least && number <= most)
        return static_cast<int>(number);
    Refuse(QStringLiteral("a whole number from %1 to %2").arg(least).arg(most));
    return least;
}

QPoint JsonValue::Pair(int least, int most) const
{
    if (value.toArray().size() != 2) {
        Refuse("a list of two whole numbers");
        return QPoint();
    }
    const QList<JsonValue> pair = Items();
    return {pair.first().Int(least, most), pair.last().Int(least, most)};
}

} // namespace AnimText::scene
