#include "scene/jsonvalues.h"

#include "scene/suggest.h"

#include <QRegularExpression>

#include <cmath>

namespace AnimText {

namespace {

QString Found(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Null: return QStringLiteral("null");
    case QJsonValue::Bool: return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double: return QString::number(value.toDouble(), 'g', 12);
    case QJsonValue::String: return QStringLiteral("a text");
    case QJsonValue::Array: return QStringLiteral("a list of %1").arg(value.toArray().size());
    case QJsonValue::Object: return QStringLiteral("an object");
    case QJsonValue::Undefined: break;
    }
    return QStringLiteral("nothing");
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
    static const QRegularExpression row(QStringLiteral("(\\.lists\\.[^.\\[]*)\\[\\d+\\]"));
    return place.replace(row, QStringLiteral("\\1"));
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

void JsonValues::Add(const QString& place, const QString& expected, const QString& found)
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

void JsonValues::Add(const QString& place, const QString& expected, const QJsonValue& found)
{
    Add(place, expected, Found(found));
}

bool JsonValues::Object(const QJsonValue& value, const QString& place, const QStringList& known,
                        QJsonObject* object)
{
    if (!value.isObject()) {
        Add(place, QStringLiteral("an object"), value);
        return false;
    }
    *object = value.toObject();
    for (const QString& key : object->keys()) {
        if (!known.contains(key))
            Add(Member(place, key),
                QStringLiteral("one of %1").arg(known.join(QStringLiteral(", "))),
                QStringLiteral("an unknown key") + DidYouMean(key, known));
    }
    return true;
}

QJsonArray JsonValues::List(const QJsonValue& value, const QString& place)
{
    if (!value.isArray())
        Add(place, QStringLiteral("a list"), value);
    return value.toArray();
}

QString JsonValues::Text(const QJsonValue& value, const QString& place)
{
    if (!value.isString())
        Add(place, QStringLiteral("a text"), value);
    return value.toString();
}

bool JsonValues::Truth(const QJsonValue& value, const QString& place)
{
    if (!value.isBool())
        Add(place, QStringLiteral("true or false"), value);
    return value.toBool();
}

int JsonValues::Int(const QJsonValue& value, const QString& place, int least, int most)
{
    const double number = value.toDouble();
    const bool whole = value.isDouble() && std::floor(number) == number;
    if (whole && number >= least && number <= most)
        return static_cast<int>(number);
    Add(place, QStringLiteral("a whole number from %1 to %2").arg(least).arg(most), value);
    return least;
}

QPoint JsonValues::Pair(const QJsonValue& value, const QString& place, int least, int most)
{
    const QJsonArray pair = value.toArray();
    if (!value.isArray() || pair.size() != 2) {
        Add(place, QStringLiteral("a list of two whole numbers"), value);
        return QPoint();
    }
    return {Int(pair.at(0), Item(place, 0), least, most),
            Int(pair.at(1), Item(place, 1), least, most)};
}

} // namespace AnimText
