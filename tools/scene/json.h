/**
 * @file
 * JSON whose members keep the order in which they are added; QJsonObject sorts them by name.
 */
#pragma once

#include <QByteArray>
#include <QString>

#include <initializer_list>
#include <type_traits>
#include <utility>

namespace AnimText::scene {

/** A JSON value on its way to a file or to standard output. */
class Json
{
public:
    /** How the members of an object or the items of a list are set. */
    enum Layout {
        Dense,  ///< {"a":1,"b":2}
        Spaced, ///< {"a": 1, "b": 2}
        Lines,  ///< each on a line of its own
    };
    using Members = std::initializer_list<std::pair<const char*, Json>>;

    Json() = default; ///< null
    Json(const QString& text);
    Json(const QByteArray& utf8)
        : Json(QString::fromUtf8(utf8))
    {
    }
    Json(const char* utf8)
        : Json(QString::fromUtf8(utf8))
    {
    }
    Json(bool truth)
        : text(truth ? "true" : "false")
    {
    }
    template <typename Number, typename = std::enable_if_t<std::is_integral_v<Number>>>
    Json(Number number)
        : text(QByteArray::number(qint64(number)))
    {
    }
    static Json Object(Members members = {}, Layout layout = Dense);
    static Json List(std::initializer_list<Json> items = {}, Layout layout = Dense);

    /** Adds a member to an object. */
    Json& Add(const QString& key, const Json& value);
    /** Adds an item to a list. */
    Json& Add(const Json& item);

    QByteArray Text() const;

private:
    Json(const char* brackets, Layout layout);
    Json& Append(QByteArray part);

    QByteArray text = "null"; // of an object or a list: what is between its brackets
    QByteArray brackets;      // empty for other values
    Layout layout = Dense;
};

} // namespace AnimText::scene
