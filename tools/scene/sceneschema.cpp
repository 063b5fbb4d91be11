#include "scene/sceneschema.h"

#include "scene/attributes.h"
#include "scene/catalogue.h"
#include "scene/scene.h"
#include "scene/schema.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>

namespace AnimText {

namespace {

QString Words(const char* words)
{
    return QString::fromUtf8(words);
}

QJsonObject Whole(int least, int most)
{
    return {{QStringLiteral("type"), QStringLiteral("integer")},
            {QStringLiteral("minimum"), least},
            {QStringLiteral("maximum"), most}};
}

QJsonObject ListOf(const QJsonValue& items, int count = -1)
{
    QJsonObject list{{QStringLiteral("type"), QStringLiteral("array")},
                     {QStringLiteral("items"), items}};
    if (count >= 0) {
        list[QStringLiteral("minItems")] = count;
        list[QStringLiteral("maxItems")] = count;
    }
    return list;
}

QJsonObject ObjectOf(const QJsonObject& members, const QStringList& required = {})
{
    QJsonObject object{{QStringLiteral("type"), QStringLiteral("object")},
                       {QStringLiteral("properties"), members},
                       {QStringLiteral("additionalProperties"), false}};
    if (!required.isEmpty())
        object[QStringLiteral("required")] = QJsonArray::fromStringList(required);
    return object;
}

QJsonObject Described(QJsonObject value, const QString& description)
{
    value[QStringLiteral("description")] = description;
    return value;
}

/** A whole number with a name for each of its values. */
QJsonObject Choice(const Attribute& attribute)
{
    const QStringList names = ChoicesOf(attribute);
    const bool isEffect = names.size() == Effects().size();
    QJsonArray values;
    for (int i = 0; i < names.size(); ++i) {
        QJsonObject value{{QStringLiteral("const"), attribute.least + i},
                          {QStringLiteral("title"), names.at(i)}};
        if (isEffect)
            value[QStringLiteral("description")] = Words(Effects().at(i).summary);
        values.append(value);
    }
    return {{QStringLiteral("type"), QStringLiteral("integer")}, {QStringLiteral("oneOf"), values}};
}

/** In rows of lists, numbers are texts. */
QJsonObject InRow(const Attribute& attribute)
{
    QJsonObject value{{QStringLiteral("type"), QStringLiteral("string")}};
    if (attribute.kind == ValueKind::Flag)
        value[QStringLiteral("enum")] = QJsonArray{QStringLiteral("0"), QStringLiteral("1")};
    else if (attribute.kind != ValueKind::Text)
        value[QStringLiteral("pattern")] = QStringLiteral("^[0-9]{1,10}$");
    return value;
}

QJsonObject ValueOf(const Attribute& attribute)
{
    switch (attribute.kind) {
    case ValueKind::Choice: return Choice(attribute);
    case ValueKind::Number:
    case ValueKind::Flag:
    case ValueKind::Color: return Whole(attribute.least, attribute.most);
    case ValueKind::Pair: return ListOf(Whole(attribute.least, attribute.most), 2);
    case ValueKind::File:
        return {{QStringLiteral("type"), QStringLiteral("string")},
                {QStringLiteral("minLength"), 1}};
    case ValueKind::Text: break;
    }
    if (attribute.key == QLatin1String("type"))
        return {{QStringLiteral("const"), SceneNode().type}};
    return {{QStringLiteral("type"), QStringLiteral("string")}};
}

bool IsRow(Home home)
{
    return home == Home::TextAttribute || home == Home::TextWidth || home == Home::TextHeight;
}

/** The keys of @p home with what they may be. */
QJsonObject MembersOf(Home home)
{
    QJsonObject members;
    for (const Attribute& attribute : Attributes()) {
        if (attribute.home != home)
            continue;
        QString description = Words(attribute.meaning);
        if (*attribute.unit)
            description += QStringLiteral("; in ") + Words(attribute.unit);
        description += QStringLiteral(". Heeded by: %1.").arg(Words(attribute.heededBy));
        QJsonObject value = IsRow(home) ? InRow(attribute) : ValueOf(attribute);
        value[QStringLiteral("title")] = Words(attribute.name);
        const bool isNumber = value.value(QStringLiteral("type")) == QLatin1String("integer");
        if (isNumber && IsInRange(attribute, attribute.standard))
            value[QStringLiteral("default")] = attribute.standard;
        members[QLatin1String(attribute.key)] = Described(value, description);
    }
    return members;
}

QJsonObject NodeSchema()
{
    QJsonObject lists;
    const Home rows[] = {Home::TextAttribute, Home::TextHeight, Home::TextWidth};
    for (int i = 0; i < ListKeys().size(); ++i)
        lists[ListKeys().at(i)] = Described(ListOf(ObjectOf(MembersOf(rows[i]))),
                                            QStringLiteral("a row for each character"));
    QJsonObject members = MembersOf(Home::Node);
    members[QStringLiteral("attributes")] = Described(
        ObjectOf(MembersOf(Home::Attributes)), QStringLiteral("what the sign reads by its key"));
    members[QStringLiteral("lists")] =
        Described(ObjectOf(lists), QStringLiteral("what each character is like"));
    members[QStringLiteral("files")] =
        Described(ObjectOf(MembersOf(Home::Files)),
                  QStringLiteral("names of files, relative to the scene's folder or absolute"));
    return Described(ObjectOf(members, {QStringLiteral("size")}),
                     QStringLiteral("a text and where it plays"));
}

QString Range(const Attribute& attribute)
{
    const QStringList names = ChoicesOf(attribute);
    if (attribute.kind == ValueKind::Choice && names.size() <= 4) {
        QStringList values;
        for (int i = 0; i < names.size(); ++i)
            values.append(QStringLiteral("%1 %2").arg(attribute.least + i).arg(names.at(i)));
        return values.join(QStringLiteral(", "));
    }
    if (attribute.kind == ValueKind::File)
        return QStringLiteral("a file");
    return attribute.kind == ValueKind::Text ? QStringLiteral("a text") : RangeInWords(attribute);
}

QString Standard(const Attribute& attribute)
{
    if (attribute.key == QLatin1String("size"))
        return QStringLiteral("must be given");
    if (attribute.key == QLatin1String("type"))
        return SceneNode().type;
    if (attribute.kind == ValueKind::Text || attribute.kind == ValueKind::File)
        return QStringLiteral("none");
    const QString number = QString::number(attribute.standard);
    return attribute.kind == ValueKind::Pair ? number + QStringLiteral(", ") + number : number;
}

QString TableOf(Home home)
{
    QString table = QStringLiteral("| key | meaning | unit | range | without it | heeded by |\n"
                                   "|---|---|---|---|---|---|\n");
    for (const Attribute& attribute : Attributes()) {
        if (attribute.home == home)
            table += QStringLiteral("| `%1` | %2 | %3 | %4 | %5 | %6 |\n")
                         .arg(QLatin1String(attribute.key), Words(attribute.meaning),
                              Words(attribute.unit), Range(attribute), Standard(attribute),
                              Words(attribute.heededBy));
    }
    return table;
}

} // namespace

QByteArray SceneSchema()
{
    const auto pointer = [](const char* name) {
        return QJsonObject{
            {QStringLiteral("$ref"), QStringLiteral("#/definitions/") + QLatin1String(name)}};
    };
    const Attribute& size = *FindAttribute(Home::Node, QStringLiteral("size"));
    const QJsonObject side = Whole(1, size.most);
    const QJsonObject display =
        ObjectOf({{QStringLiteral("width"), Described(side, QStringLiteral("pixels"))},
                  {QStringLiteral("height"), Described(side, QStringLiteral("pixels"))}},
                 {QStringLiteral("width"), QStringLiteral("height")});
    const QJsonObject area =
        ObjectOf({{QStringLiteral("nodes"), ListOf(pointer("node"))}}, {QStringLiteral("nodes")});
    const QJsonObject page =
        ObjectOf({{QStringLiteral("areas"), ListOf(pointer("area"))}}, {QStringLiteral("areas")});
    const QJsonObject blend{{QStringLiteral("type"), QStringLiteral("boolean")},
                            {QStringLiteral("default"), true}};
    QJsonObject schema = ObjectOf(
        {{QStringLiteral("scene"),
          Described({{QStringLiteral("const"), 1}}, QStringLiteral("the version of the format"))},
         {QStringLiteral("display"), Described(display, QStringLiteral("the display, all of it"))},
         {QStringLiteral("alphaBlend"),
          Described(blend, QStringLiteral("layers are blended by their alpha; else a "
                                          "color is transparent"))},
         {QStringLiteral("pages"),
          Described(ListOf(pointer("page")),
                    QStringLiteral("the program; its pages follow one another"))}},
        {QStringLiteral("scene"), QStringLiteral("display"), QStringLiteral("pages")});
    schema[QStringLiteral("$schema")] = QStringLiteral("http://json-schema.org/draft-07/schema#");
    schema[QStringLiteral("title")] = QStringLiteral("Animated Text scene");
    schema[QStringLiteral("definitions")] = QJsonObject{
        {QStringLiteral("page"), Described(page, QStringLiteral("areas that play side by side"))},
        {QStringLiteral("area"),
         Described(area, QStringLiteral("texts that play one after another"))},
        {QStringLiteral("node"), NodeSchema()}};
    return QJsonDocument(schema).toJson();
}

QByteArray SceneTables()
{
    QString text;
    const auto add = [&](const char* heading, Home home) {
        text += QStringLiteral("### %1\n\n%2\n").arg(QLatin1String(heading), TableOf(home));
    };
    add("A node", Home::Node);
    add("Its \"attributes\"", Home::Attributes);
    add("Its \"lists\": rows of \"TextWidth\"", Home::TextWidth);
    add("Rows of \"TextHeight\"", Home::TextHeight);
    add("Rows of \"TextAttribute\"", Home::TextAttribute);
    add("Its \"files\"", Home::Files);
    return text.toUtf8();
}

} // namespace AnimText
