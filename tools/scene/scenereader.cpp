#include "files/wholefile.h"
#include "scene/attributes.h"
#include "scene/duplicatekeys.h"
#include "scene/jsonvalues.h"
#include "scene/scene.h"
#include "text/limits.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace AnimText::scene {

namespace {

constexpr qint64 largestDisplay = Lw::HNodeAnimationText::maxCanvasBytes / 4; // pixels
constexpr qint64 largestFile = qint64(256) << 20;

QList<QHash<QString, QString>> ReadRows(const JsonValue& json)
{
    const QStringList known = RowFields(json.name);
    QList<QHash<QString, QString>> rows;
    for (const JsonValue& item : json.Items()) {
        QHash<QString, QString> row;
        for (const JsonValue& field : item.Members(known))
            row.insert(field.name, field.Text());
        rows.append(row);
    }
    return rows;
}

QString ReadFileName(const JsonValue& json, const Scene& scene, MissingFiles missing)
{
    const QString name = json.Text();
    const QFileInfo file(scene.FullName(name));
    if (missing == MissingFiles::AreAccepted || !json.IsText() || file.isFile())
        return name;
    if (name.isEmpty())
        json.Refuse("the name of a file", "none");
    else
        json.Refuse("a file", (file.exists() ? "no regular file " : "no file ") + file.filePath());
    return name;
}

SceneNode ReadNode(const JsonValue& json, const Scene& scene, MissingFiles missing)
{
    static const QStringList known =
        KeysOf(Home::Node) + QStringList{"attributes", "lists", "files"};
    SceneNode node;
    if (!json.IsObject(known))
        return node;
    if (json["type"].IsThere())
        node.type = json["type"].Text();
    const Attribute* range = FindAttribute("pos");
    if (json["pos"].IsThere())
        node.pos = json["pos"].Pair(range->least, range->most);
    const QPoint size = json["size"].Pair(0, FindAttribute("size")->most);
    node.size = QSize(size.x(), size.y());
    for (const Attribute& attribute : Attributes()) {
        if (attribute.field && json[attribute.key].IsThere())
            node.*attribute.field = json[attribute.key].Int();
    }
    for (const JsonValue& value : json["attributes"].Members(KeysOf(Home::Attributes))) {
        const bool isText = FindAttribute(value.name)->kind == ValueKind::Text;
        node.attributes[value.name] = isText ? QVariant(value.Text()) : QVariant(value.Int());
    }
    for (const JsonValue& list : json["lists"].Members(ListKeys()))
        node.lists.insert(list.name, ReadRows(list));
    for (const JsonValue& file : json["files"].Members(KeysOf(Home::Files)))
        node.files.insert(file.name, ReadFileName(file, scene, missing));
    return node;
}

QSize ReadDisplay(const JsonValue& json)
{
    if (!json.IsObject({"width", "height"}))
        return QSize();
    const int most = FindAttribute("size")->most;
    const QSize size{json["width"].Int(1, most), json["height"].Int(1, most)};
    if (qint64(size.width()) * size.height() > largestDisplay)
        json.Refuse(QStringLiteral("at most %1 pixels").arg(largestDisplay),
                    QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()));
    return size;
}

/** The items of the list @p name, the only member of @p json. */
QList<JsonValue> ItemsOf(const JsonValue& json, const QString& name)
{
    return json.IsObject({name}) ? json[name].Items() : QList<JsonValue>();
}

/** A scene that is to be used only if there are no faults. */
Scene ReadRoot(const QJsonValue& file, const QString& path, MissingFiles missing,
               JsonFaults* faults)
{
    Scene scene;
    scene.path = path;
    const JsonValue root{file, faults};
    // In another version, keys may mean anything.
    const bool isOther = file.toObject().value("scene").toDouble(1) != 1;
    if (!isOther && !root.IsObject({"scene", "display", "alphaBlend", "pages"}))
        return scene;
    root["scene"].Int(1, 1);
    if (isOther)
        return scene;
    scene.display = ReadDisplay(root["display"]);
    if (root["alphaBlend"].IsThere())
        scene.alphaBlend = root["alphaBlend"].Truth();
    for (const JsonValue& page : root["pages"].Items()) {
        QList<SceneArea> areas;
        for (const JsonValue& area : ItemsOf(page, "areas")) {
            QList<SceneNode> nodes;
            for (const JsonValue& node : ItemsOf(area, "nodes"))
                nodes.append(ReadNode(node, scene, missing));
            areas.append({nodes});
        }
        scene.pages.append({areas});
    }
    return scene;
}

/** The content of the file @p path, or what is wrong with it. */
QByteArray ReadBytes(const QString& path, JsonFaults* faults)
{
    const bool isInput = path == QLatin1String("-");
    const QFileInfo info(path);
    QFile file(path);
    if (!isInput && !info.isFile())
        faults->Add({}, "a scene file", info.exists() ? "no regular file" : "no such file");
    else if (isInput ? !file.open(stdin, QIODevice::ReadOnly) : !file.open(QIODevice::ReadOnly))
        faults->Add({}, "a file that can be read",
                    QStringLiteral("an error: %1").arg(file.errorString()));
    if (!file.isOpen())
        return QByteArray();
    const QByteArray bytes = files::ReadAtMost(&file, largestFile + 1);
    if (bytes.size() > largestFile)
        faults->Add({}, QStringLiteral("at most %1 bytes").arg(largestFile),
                    isInput ? "more" : QString::number(info.size()));
    return bytes;
}

/** The value that @p text is, or what is wrong with its syntax. */
QJsonValue Parse(const QByteArray& text, JsonFaults* faults)
{
    // First of all, because Qt's reader leaks the values of duplicate keys.
    for (const QString& place : DuplicateKeys(text))
        faults->Add(place, "each key once", "it twice");
    if (!faults->All().isEmpty())
        return {};
    QJsonParseError error;
    const QByteArray escaped = WithMarksEscaped(text);
    const QJsonDocument document = QJsonDocument::fromJson(escaped, &error);
    if (error.error != QJsonParseError::NoError) {
        // Line and column count from 1, columns in bytes.
        const QByteArray before = escaped.left(qMax(0, error.offset));
        const int column = before.size() - before.lastIndexOf('\n');
        faults->Add(QStringLiteral("%1:%2").arg(before.count('\n') + 1).arg(column), "valid JSON",
                    QStringLiteral("an error: %1").arg(error.errorString()));
    }
    return document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array());
}

/** Reads @p text, in which @p faults were found already. */
bool Read(const QByteArray& text, const QString& path, JsonFaults* faults, Scene* scene,
          QString* error, MissingFiles missing)
{
    const QJsonValue file = faults->All().isEmpty() ? Parse(text, faults) : QJsonValue();
    const Scene read = faults->All().isEmpty() ? ReadRoot(file, path, missing, faults) : Scene();
    if (faults->All().isEmpty())
        *scene = read;
    else
        *error = faults->All().first().Line(path);
    return faults->All().isEmpty();
}

} // namespace

bool ReadSceneText(const QByteArray& text, const QString& path, Scene* scene, QString* error,
                   MissingFiles missing)
{
    JsonFaults faults;
    return Read(text, path, &faults, scene, error, missing);
}

bool ReadScene(const QString& path, Scene* scene, QString* error, MissingFiles missing,
               QList<SceneFault>* all)
{
    JsonFaults faults;
    const bool isRead = Read(ReadBytes(path, &faults), path, &faults, scene, error, missing);
    if (all)
        *all = faults.All();
    return isRead;
}

} // namespace AnimText::scene
