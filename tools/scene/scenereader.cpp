#include "files/wholefile.h"
#include "scene/attributes.h"
#include "scene/duplicatekeys.h"
#include "scene/jsonvalues.h"
#include "scene/scene.h"
#include "text/limits.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <cstdio>

namespace AnimText {

namespace {

constexpr qint64 largestDisplay = Lw::HNodeAnimationText::maxCanvasBytes / 4; // pixels
constexpr qint64 largestFile = qint64(256) << 20;

int LargestSide()
{
    return FindAttribute(Home::Node, QStringLiteral("size"))->most;
}

class Reader
{
public:
    Reader(const QString& path, MissingFiles missing)
        : missing(missing)
    {
        scene.path = path;
    }

    Scene Read(const QJsonValue& root);
    const QList<SceneFault>& Faults() const { return json.Faults(); }

private:
    void ReadDisplay(const QJsonValue& value, const QString& place);
    ScenePage ReadPage(const QJsonValue& value, const QString& place);
    SceneArea ReadArea(const QJsonValue& value, const QString& place);
    SceneNode ReadNode(const QJsonValue& value, const QString& place);
    QList<QHash<QString, QString>> ReadRows(const QString& key, const QJsonValue& value,
                                            const QString& place);
    QString ReadFileName(const QJsonValue& value, const QString& place);

    /** The list that @p object has for @p key. */
    template <typename Part>
    QList<Part> ReadList(const QJsonObject& object, const QString& key, const QString& place,
                         Part (Reader::*read)(const QJsonValue&, const QString&))
    {
        QList<Part> parts;
        const QString at = Member(place, key);
        const QJsonArray list = json.List(object.value(key), at);
        for (int i = 0; i < list.size(); ++i)
            parts.append((this->*read)(list.at(i), Item(at, i)));
        return parts;
    }

    Scene scene;
    MissingFiles missing;
    JsonValues json;
};

QList<QHash<QString, QString>> Reader::ReadRows(const QString& key, const QJsonValue& value,
                                                const QString& place)
{
    const QStringList known = RowFields(key);
    QList<QHash<QString, QString>> rows;
    const QJsonArray list = json.List(value, place);
    for (int i = 0; i < list.size(); ++i) {
        const QString rowPlace = Item(place, i);
        QJsonObject object;
        json.Object(list.at(i), rowPlace, known, &object);
        QHash<QString, QString> row;
        for (const QString& field : known) {
            if (object.contains(field))
                row.insert(field, json.Text(object.value(field), Member(rowPlace, field)));
        }
        rows.append(row);
    }
    return rows;
}

QString Reader::ReadFileName(const QJsonValue& value, const QString& place)
{
    const QString name = json.Text(value, place);
    const QString full = scene.FullName(name);
    if (value.isString() && missing == MissingFiles::AreErrors && !QFileInfo(full).isFile()) {
        if (name.isEmpty())
            json.Add(place, QStringLiteral("the name of a file"), QStringLiteral("none"));
        else
            json.Add(place, QStringLiteral("a file"),
                     (QFileInfo::exists(full) ? QStringLiteral("no regular file ")
                                              : QStringLiteral("no file ")) +
                         full);
    }
    return name;
}

SceneNode Reader::ReadNode(const QJsonValue& value, const QString& place)
{
    static const QStringList known =
        KeysOf(Home::Node) +
        QStringList{QStringLiteral("attributes"), QStringLiteral("lists"), QStringLiteral("files")};
    SceneNode node;
    QJsonObject object;
    if (!json.Object(value, place, known, &object))
        return node;
    /** Reads the member @p key, if it is there. */
    const auto optional = [&](const QString& key, const auto& read) {
        if (object.contains(key))
            read(object.value(key), Member(place, key));
    };
    /** Reads the members of the object @p key that are among @p keys. */
    const auto members = [&](const QString& key, const QStringList& keys, const auto& read) {
        optional(key, [&](const QJsonValue& map, const QString& at) {
            QJsonObject items;
            json.Object(map, at, keys, &items);
            for (auto it = items.begin(); it != items.end(); ++it) {
                if (keys.contains(it.key()))
                    read(it.key(), it.value(), Member(at, it.key()));
            }
        });
    };

    optional(QStringLiteral("type"),
             [&](const QJsonValue& type, const QString& at) { node.type = json.Text(type, at); });
    optional(QStringLiteral("pos"), [&](const QJsonValue& pos, const QString& at) {
        const Attribute* range = FindAttribute(Home::Node, QStringLiteral("pos"));
        node.pos = json.Pair(pos, at, range->least, range->most);
    });
    const QPoint size = json.Pair(object.value(QStringLiteral("size")),
                                  Member(place, QStringLiteral("size")), 0, LargestSide());
    node.size = QSize(size.x(), size.y());
    for (const Attribute& attribute : Attributes()) {
        if (attribute.field)
            optional(QLatin1String(attribute.key),
                     [&](const QJsonValue& number, const QString& at) {
                         node.*attribute.field = json.Int(number, at);
                     });
    }
    members(QStringLiteral("attributes"), KeysOf(Home::Attributes),
            [&](const QString& key, const QJsonValue& read, const QString& at) {
                const bool isText = FindAttribute(Home::Attributes, key)->kind == ValueKind::Text;
                node.attributes[key] =
                    isText ? QVariant(json.Text(read, at)) : QVariant(json.Int(read, at));
            });
    members(QStringLiteral("lists"), ListKeys(),
            [&](const QString& key, const QJsonValue& rows, const QString& at) {
                node.lists.insert(key, ReadRows(key, rows, at));
            });
    members(QStringLiteral("files"), KeysOf(Home::Files),
            [&](const QString& key, const QJsonValue& name, const QString& at) {
                node.files.insert(key, ReadFileName(name, at));
            });
    return node;
}

SceneArea Reader::ReadArea(const QJsonValue& value, const QString& place)
{
    const QString nodes = QStringLiteral("nodes");
    QJsonObject object;
    if (!json.Object(value, place, {nodes}, &object))
        return {};
    return {ReadList(object, nodes, place, &Reader::ReadNode)};
}

ScenePage Reader::ReadPage(const QJsonValue& value, const QString& place)
{
    const QString areas = QStringLiteral("areas");
    QJsonObject object;
    if (!json.Object(value, place, {areas}, &object))
        return {};
    return {ReadList(object, areas, place, &Reader::ReadArea)};
}

void Reader::ReadDisplay(const QJsonValue& value, const QString& place)
{
    const QString width = QStringLiteral("width");
    const QString height = QStringLiteral("height");
    QJsonObject display;
    if (!json.Object(value, place, {width, height}, &display))
        return;
    // Separate statements, so that faults are in the order of reading.
    scene.display.setWidth(json.Int(display.value(width), Member(place, width), 1, LargestSide()));
    scene.display.setHeight(
        json.Int(display.value(height), Member(place, height), 1, LargestSide()));
    if (qint64(scene.display.width()) * scene.display.height() > largestDisplay)
        json.Add(place, QStringLiteral("at most %1 pixels").arg(largestDisplay),
                 QStringLiteral("%1 × %2").arg(scene.display.width()).arg(scene.display.height()));
}

Scene Reader::Read(const QJsonValue& root)
{
    const QString top = QStringLiteral("$");
    const QString version = QStringLiteral("scene");
    const QString display = QStringLiteral("display");
    const QString alphaBlend = QStringLiteral("alphaBlend");
    const QString pages = QStringLiteral("pages");

    const QJsonValue number = root.toObject().value(version);
    if (number.isDouble() && number.toDouble() != 1) {
        // In another version, keys may mean anything.
        json.Int(number, Member(top, version), 1, 1);
        return scene;
    }
    QJsonObject object;
    if (!json.Object(root, top, {version, display, alphaBlend, pages}, &object))
        return scene;
    json.Int(number, Member(top, version), 1, 1);
    ReadDisplay(object.value(display), Member(top, display));
    if (object.contains(alphaBlend))
        scene.alphaBlend = json.Truth(object.value(alphaBlend), Member(top, alphaBlend));
    scene.pages = ReadList(object, pages, top, &Reader::ReadPage);
    return scene;
}

QByteArray ReadStandardInput(QList<SceneFault>* faults)
{
    QFile input;
    input.open(stdin, QIODevice::ReadOnly);
    const QByteArray bytes = ReadAtMost(&input, largestFile + 1);
    if (bytes.size() > largestFile)
        faults->append({QString(), QStringLiteral("at most %1 bytes").arg(largestFile),
                        QStringLiteral("more")});
    return bytes;
}

/** The content of the file @p path, or what is wrong with it. */
QByteArray ReadBytes(const QString& path, QList<SceneFault>* faults)
{
    if (path == QLatin1String("-"))
        return ReadStandardInput(faults);
    const QString sceneFile = QStringLiteral("a scene file");
    const QFileInfo info(path);
    QFile file(path);
    if (!info.exists())
        faults->append({QString(), sceneFile, QStringLiteral("no such file")});
    else if (!info.isFile())
        faults->append({QString(), sceneFile, QStringLiteral("no regular file")});
    else if (info.size() > largestFile)
        faults->append({QString(), QStringLiteral("at most %1 bytes").arg(largestFile),
                        QString::number(info.size())});
    else if (!file.open(QIODevice::ReadOnly))
        faults->append({QString(), QStringLiteral("a file that can be read"),
                        QStringLiteral("an error: %1").arg(file.errorString())});
    return faults->isEmpty() ? file.readAll() : QByteArray();
}

/** "LINE:COLUMN" of a place in @p text, both counted from 1, columns in bytes. */
QString LineAndColumn(const QByteArray& text, int offset)
{
    const QByteArray before = text.left(offset);
    const int line = before.count('\n') + 1;
    const int column = offset - (before.lastIndexOf('\n') + 1) + 1;
    return QStringLiteral("%1:%2").arg(line).arg(column);
}

QList<SceneFault> FaultsOfSyntax(const QByteArray& text, QJsonDocument* document)
{
    // First of all, because Qt's reader leaks the values of duplicate keys.
    JsonValues twice;
    for (const QString& place : DuplicateKeys(text))
        twice.Add(place, QStringLiteral("each key once"), QStringLiteral("it twice"));
    if (!twice.Faults().isEmpty())
        return twice.Faults();
    QJsonParseError error;
    const QByteArray escaped = WithMarksEscaped(text);
    *document = QJsonDocument::fromJson(escaped, &error);
    if (error.error == QJsonParseError::NoError)
        return {};
    const int offset = qBound(0, error.offset, escaped.size());
    return {{LineAndColumn(escaped, offset), QStringLiteral("valid JSON"),
             QStringLiteral("an error: %1").arg(error.errorString())}};
}

/** @return whether there is no fault */
bool TellFirst(const QList<SceneFault>& faults, const QString& path, QString* error)
{
    if (!faults.isEmpty())
        *error = faults.first().Line(path);
    return faults.isEmpty();
}

} // namespace

QList<SceneFault> ReadSceneText(const QByteArray& text, const QString& path, Scene* scene,
                                MissingFiles missing)
{
    QJsonDocument document;
    const QList<SceneFault> faults = FaultsOfSyntax(text, &document);
    if (!faults.isEmpty())
        return faults;
    Reader reader(path, missing);
    const Scene read = reader.Read(document.isObject() ? QJsonValue(document.object())
                                                       : QJsonValue(document.array()));
    if (reader.Faults().isEmpty())
        *scene = read;
    return reader.Faults();
}

QList<SceneFault> ReadScene(const QString& path, Scene* scene, MissingFiles missing)
{
    QList<SceneFault> faults;
    const QByteArray text = ReadBytes(path, &faults);
    return faults.isEmpty() ? ReadSceneText(text, path, scene, missing) : faults;
}

bool ReadScene(const QString& path, Scene* scene, QString* error, MissingFiles missing)
{
    return TellFirst(ReadScene(path, scene, missing), path, error);
}

bool ReadSceneText(const QByteArray& text, const QString& path, Scene* scene, QString* error,
                   MissingFiles missing)
{
    return TellFirst(ReadSceneText(text, path, scene, missing), path, error);
}

} // namespace AnimText
