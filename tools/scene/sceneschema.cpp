#include "scene/sceneschema.h"

#include "scene/attributes.h"
#include "scene/catalog.h"
#include "scene/scene.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace AnimText::scene {

namespace {

QJsonObject Whole(int least, int most)
{
    return {{"type", "integer"}, {"minimum", least}, {"maximum", most}};
}

QJsonObject ListOf(const QJsonObject& items)
{
    return {{"type", "array"}, {"items", items}};
}

QJsonObject ObjectOf(const QJsonObject& members, const QString& description)
{
    return {{"type", "object"},
            {"properties", members},
            {"additionalProperties", false},
            {"description", description}};
}

/** A whole number with a name for each of its values. */
QJsonObject Choice(const Attribute& attribute)
{
    const bool isEffect = attribute.choices.size() == Effects().size();
    QJsonArray values;
    for (const QString& name : ChoicesOf(attribute)) {
        QJsonObject value{{"const", attribute.least + values.size()}, {"title", name}};
        if (isEffect)
            value["description"] = Effects().at(values.size()).summary;
        values.append(value);
    }
    return {{"type", "integer"}, {"oneOf", values}};
}

/** In rows of lists, numbers are texts. */
QJsonObject InRow(const Attribute& attribute)
{
    QJsonObject value{{"type", "string"}};
    if (attribute.kind == ValueKind::Flag)
        value["enum"] = QJsonArray{"0", "1"};
    else if (attribute.kind != ValueKind::Text)
        value["pattern"] = "^[0-9]{1,10}$";
    return value;
}

QJsonObject ValueOf(const Attribute& attribute)
{
    switch (attribute.kind) {
    case ValueKind::Choice: return Choice(attribute);
    case ValueKind::Number:
    case ValueKind::Flag:
    case ValueKind::Color: return Whole(attribute.least, attribute.most);
    case ValueKind::Pair: {
        QJsonObject pair = ListOf(Whole(attribute.least, attribute.most));
        pair["minItems"] = pair["maxItems"] = 2;
        return pair;
    }
    case ValueKind::File: return {{"type", "string"}, {"minLength", 1}};
    case ValueKind::Text: break;
    }
    if (attribute.key == QLatin1String("type"))
        return {{"const", SceneNode().type}};
    return {{"type", "string"}};
}

/** The keys of @p home with their types and ranges. */
QJsonObject MembersOf(Home home)
{
    const bool isRow = home >= Home::TextAttribute && home <= Home::TextWidth;
    QJsonObject members;
    for (const Attribute& attribute : Attributes()) {
        if (attribute.home != home)
            continue;
        QJsonObject value = isRow ? InRow(attribute) : ValueOf(attribute);
        value["title"] = attribute.name;
        const QString unit = *attribute.unit ? QString("; in ") + attribute.unit : QString();
        value["description"] =
            QStringLiteral("%1%2. Used by: %3.").arg(attribute.meaning, unit, attribute.use.usedBy);
        if (value.value("type") == QLatin1String("integer") && IsInRange(attribute, 0))
            value["default"] = 0;
        members[attribute.key] = value;
    }
    return members;
}

QJsonObject NodeSchema()
{
    QJsonObject lists;
    for (int i = 0; i < ListKeys().size(); ++i) {
        QJsonObject row = ObjectOf(MembersOf(Home(int(Home::TextAttribute) + i)), QString());
        row.remove("description");
        QJsonObject list = ListOf(row);
        list["description"] = "a row for each character";
        lists[ListKeys().at(i)] = list;
    }
    QJsonObject members = MembersOf(Home::Node);
    members["attributes"] = ObjectOf(MembersOf(Home::Attributes), "what the sign reads by its key");
    members["lists"] = ObjectOf(lists, "what each character is like");
    members["files"] = ObjectOf(MembersOf(Home::Files),
                                "names of files, relative to the scene's folder or absolute");
    QJsonObject node = ObjectOf(members, "a text and where it plays");
    node["required"] = QJsonArray{"size"};
    return node;
}

/** The schema without the nodes. */
const char frame[] = R"({
    "$schema": "http://json-schema.org/draft-07/schema#",
    "title": "Animated Text scene",
    "type": "object",
    "additionalProperties": false,
    "required": ["scene", "display", "pages"],
    "properties": {
        "scene": {"description": "the version of the format", "const": 1},
        "display": {
            "description": "the display, all of it",
            "type": "object",
            "additionalProperties": false,
            "required": ["width", "height"],
            "properties": {"width": {"$ref": "#side"}, "height": {"$ref": "#side"}}
        },
        "alphaBlend": {
            "description": "layers are blended by their alpha; else a color is transparent",
            "type": "boolean",
            "default": true
        },
        "pages": {
            "description": "the program; its pages follow one another",
            "type": "array",
            "items": {"$ref": "#/definitions/page"}
        }
    },
    "definitions": {
        "page": {
            "description": "areas that play side by side",
            "type": "object",
            "additionalProperties": false,
            "required": ["areas"],
            "properties": {"areas": {"type": "array", "items": {"$ref": "#/definitions/area"}}}
        },
        "area": {
            "description": "texts that play one after another",
            "type": "object",
            "additionalProperties": false,
            "required": ["nodes"],
            "properties": {"nodes": {"type": "array", "items": {"$ref": "#/definitions/node"}}}
        }
    }
})";

QString TableOf(Home home)
{
    QString table = "| key | meaning | unit | range | default | used by |\n"
                    "|---|---|---|---|---|---|\n";
    for (const Attribute& attribute : Attributes()) {
        if (attribute.home != home)
            continue;
        QString range = RangeInWords(attribute);
        QString standard = "0";
        if (attribute.kind == ValueKind::Pair)
            standard = attribute.least > 0 ? "must be given" : "0, 0";
        if (attribute.kind == ValueKind::Text || attribute.kind == ValueKind::File) {
            range = attribute.kind == ValueKind::File ? "a file" : "a text";
            standard = home == Home::Node ? SceneNode().type : "none";
        }
        table += QStringLiteral("| `%1` | %2 | %3 | %4 | %5 | %6 |\n")
                     .arg(attribute.key, attribute.meaning, attribute.unit, range, standard,
                          attribute.use.usedBy);
    }
    return table;
}

} // namespace

QByteArray SceneSchema()
{
    const Attribute& size = *FindAttribute(Home::Node, "size");
    QJsonObject side = Whole(1, size.most);
    side["description"] = "pixels";
    const QByteArray sides = QJsonDocument(side).toJson();
    QJsonObject schema =
        QJsonDocument::fromJson(QByteArray(frame).replace("{\"$ref\": \"#side\"}", sides)).object();
    QJsonObject definitions = schema["definitions"].toObject();
    definitions["node"] = NodeSchema();
    schema["definitions"] = definitions;
    return QJsonDocument(schema).toJson();
}

QByteArray SceneTables()
{
    const std::pair<const char*, Home> tables[] = {
        {"A node", Home::Node},
        {"Its \"attributes\"", Home::Attributes},
        {"Its \"lists\": rows of \"TextWidth\"", Home::TextWidth},
        {"Rows of \"TextHeight\"", Home::TextHeight},
        {"Rows of \"TextAttribute\"", Home::TextAttribute},
        {"Its \"files\"", Home::Files}};
    QString text;
    for (const auto& [heading, home] : tables)
        text += QStringLiteral("### %1\n\n%2\n").arg(heading, TableOf(home));
    return text.toUtf8();
}

} // namespace AnimText::scene
