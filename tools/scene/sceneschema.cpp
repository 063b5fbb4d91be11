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

QJsonObject Described(QJsonObject value, const char* description)
{
    value["description"] = description;
    return value;
}

QJsonObject ObjectOf(const QJsonObject& members, const QJsonArray& required = {})
{
    QJsonObject object{
        {"type", "object"}, {"properties", members}, {"additionalProperties", false}};
    if (!required.isEmpty())
        object["required"] = required;
    return object;
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
    for (int i = 0; i < ListKeys().size(); ++i)
        lists[ListKeys().at(i)] =
            Described(ListOf(ObjectOf(MembersOf(Home(int(Home::TextAttribute) + i)))),
                      "a row for each character");
    QJsonObject members = MembersOf(Home::Node);
    members["attributes"] =
        Described(ObjectOf(MembersOf(Home::Attributes)), "what the sign reads by its key");
    members["lists"] = Described(ObjectOf(lists), "what each character is like");
    members["files"] = Described(ObjectOf(MembersOf(Home::Files)),
                                 "names of files, relative to the scene's folder or absolute");
    return Described(ObjectOf(members, {"size"}), "a text and where it plays");
}

/** A list of what is defined as @p name. */
QJsonObject ListOf(const char* name)
{
    return ListOf({{"$ref", QStringLiteral("#/definitions/%1").arg(name)}});
}

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
    const QJsonObject side = Described(Whole(1, FindAttribute("size")->most), "pixels");
    QJsonObject schema = ObjectOf(
        {{"scene", QJsonObject{{"const", 1}, {"description", "the version of the format"}}},
         {"display", Described(ObjectOf({{"width", side}, {"height", side}}, {"width", "height"}),
                               "the display, all of it")},
         {"alphaBlend",
          QJsonObject{
              {"type", "boolean"},
              {"default", true},
              {"description", "layers are blended by their alpha; else a color is transparent"}}},
         {"pages", Described(ListOf("page"), "the program; its pages follow one another")}},
        {"scene", "display", "pages"});
    schema["$schema"] = "http://json-schema.org/draft-07/schema#";
    schema["title"] = "Animated Text scene";
    schema["definitions"] =
        QJsonObject{{"page", Described(ObjectOf({{"areas", ListOf("area")}}, {"areas"}),
                                       "areas that play side by side")},
                    {"area", Described(ObjectOf({{"nodes", ListOf("node")}}, {"nodes"}),
                                       "texts that play one after another")},
                    {"node", NodeSchema()}};
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
