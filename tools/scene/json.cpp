#include "scene/json.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace AnimText::scene {

namespace {

QByteArray Quoted(const QString& text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

} // namespace

Json::Json(const QString& text)
    : text(Quoted(text))
{
}

Json::Json(const char* brackets, Layout layout)
    : text("")
    , brackets(brackets)
    , layout(layout)
{
}

Json Json::Object(Members members, Layout layout)
{
    Json object("{}", layout);
    for (const auto& [key, value] : members)
        object.Add(QString::fromUtf8(key), value);
    return object;
}

Json Json::List(std::initializer_list<Json> items, Layout layout)
{
    Json list("[]", layout);
    for (const Json& item : items)
        list.Add(item);
    return list;
}

Json& Json::Add(const QString& key, const Json& value)
{
    return Append(Quoted(key) + (layout == Dense ? ":" : ": ") + value.Text());
}

Json& Json::Add(const Json& item)
{
    return Append(item.Text());
}

Json& Json::Append(QByteArray part)
{
    if (!text.isEmpty())
        text += layout == Spaced ? ", " : ",";
    // Texts contain no line ends: they are escaped there.
    text += layout == Lines ? "\n  " + part.replace('\n', "\n  ") : part;
    return *this;
}

QByteArray Json::Text() const
{
    if (brackets.isEmpty())
        return text;
    const bool ends = layout == Lines && !text.isEmpty();
    return brackets.left(1) + text + (ends ? "\n" : "") + brackets.right(1);
}

} // namespace AnimText::scene
