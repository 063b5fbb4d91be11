#include "scene/duplicatekeys.h"
#include "scene/scene.h"
#include "scene/schema.h"
#include "scene/suggest.h"
#include "text/limits.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <cstdio>
#include <limits>

namespace AnimText {

namespace {

constexpr int largestSide = 16384;         // what video and picture formats can hold
constexpr qint64 largestDisplay = Lw::HNodeAnimationText::maxCanvasBytes / 4; // pixels
constexpr int farthestPlace = 1000000;
constexpr qint64 largestFile = 256 << 20;

/** What is wrong with a scene file, without the file's name. */
struct Fault
{
    QString text;
};

[[noreturn]] void Fail(const QString& place, const QString& what)
{
    throw Fault{QStringLiteral(": %1: %2").arg(place, what)};
}

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

[[noreturn]] void Expected(const QString& place, const QString& what, const QJsonValue& found)
{
    Fail(place, QStringLiteral("expected %1, found %2").arg(what, Found(found)));
}

QString Member(const QString& place, const QString& key)
{
    return place + QLatin1Char('.') + key;
}

QString Item(const QString& place, int index)
{
    return QStringLiteral("%1[%2]").arg(place).arg(index);
}

QJsonObject ToObject(const QJsonValue& value, const QString& place)
{
    if (!value.isObject())
        Expected(place, QStringLiteral("an object"), value);
    return value.toObject();
}

QJsonObject ToObject(const QJsonValue& value, const QString& place, const QStringList& known)
{
    const QJsonObject object = ToObject(value, place);
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!known.contains(it.key()))
            Fail(Member(place, it.key()),
                 QStringLiteral("unknown key, expected one of %1%2")
                     .arg(known.join(QStringLiteral(", ")), DidYouMean(it.key(), known)));
    }
    return object;
}

QJsonArray ToList(const QJsonValue& value, const QString& place)
{
    if (!value.isArray())
        Expected(place, QStringLiteral("a list"), value);
    return value.toArray();
}

QString ToText(const QJsonValue& value, const QString& place)
{
    if (!value.isString())
        Expected(place, QStringLiteral("a text"), value);
    return value.toString();
}

int ToInt(const QJsonValue& value, const QString& place,
          int least = std::numeric_limits<int>::min(), int most = std::numeric_limits<int>::max())
{
    const double number = value.toDouble();
    const bool whole = value.isDouble() && std::floor(number) == number;
    if (!whole || number < least || number > most)
        Expected(place, QStringLiteral("a whole number from %1 to %2").arg(least).arg(most), value);
    return static_cast<int>(number);
}

int ToInt(const QJsonObject& object, const QString& key, const QString& place)
{
    return object.contains(key) ? ToInt(object.value(key), Member(place, key)) : 0;
}

QPoint ToPair(const QJsonValue& value, const QString& place, int least, int most)
{
    const QJsonArray pair = value.toArray();
    if (!value.isArray() || pair.size() != 2)
        Expected(place, QStringLiteral("a list of two whole numbers"), value);
    return {ToInt(pair.at(0), Item(place, 0), least, most),
            ToInt(pair.at(1), Item(place, 1), least, most)};
}

QVariant ToAttribute(const QString& key, const QJsonValue& value, const QString& place)
{
    if (TextAttributeKeys().contains(key))
        return ToText(value, place);
    return ToInt(value, place);
}

QList<QHash<QString, QString>> ToRows(const QString& key, const QJsonValue& value,
                                      const QString& place)
{
    const QStringList known = RowFields(key);
    QList<QHash<QString, QString>> rows;
    const QJsonArray list = ToList(value, place);
    for (int i = 0; i < list.size(); ++i) {
        const QString rowPlace = Item(place, i);
        const QJsonObject object = ToObject(list.at(i), rowPlace, known);
        QHash<QString, QString> row;
        for (auto it = object.begin(); it != object.end(); ++it)
            row.insert(it.key(), ToText(it.value(), Member(rowPlace, it.key())));
        rows.append(row);
    }
    return rows;
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

private:
    SceneNode ReadNode(const QJsonValue& value, const QString& place) const;
    QString ReadFileName(const QJsonValue& value, const QString& place) const;

    Scene scene;
    MissingFiles missing;
};

QString Reader::ReadFileName(const QJsonValue& value, const QString& place) const
{
    const QString name = ToText(value, place);
    const QString full = scene.FullName(name);
    if (missing == MissingFiles::AreErrors && !QFileInfo::exists(full))
        Fail(place, name.isEmpty() ? QStringLiteral("expected the name of a file, found none")
                                   : QStringLiteral("expected a file, there is no %1").arg(full));
    return name;
}

SceneNode Reader::ReadNode(const QJsonValue& value, const QString& place) const
{
    static const QStringList known{QStringLiteral("type"),       QStringLiteral("pos"),
                                   QStringLiteral("size"),       QStringLiteral("hold"),
                                   QStringLiteral("neonEffect"), QStringLiteral("attributes"),
                                   QStringLiteral("lists"),      QStringLiteral("files")};
    const QJsonObject object = ToObject(value, place, known);
    const auto place_of = [&](const char* key) { return Member(place, QLatin1String(key)); };

    SceneNode node;
    if (object.contains(QLatin1String("type")))
        node.type = ToText(object.value(QLatin1String("type")), place_of("type"));
    if (object.contains(QLatin1String("pos")))
        node.pos = ToPair(object.value(QLatin1String("pos")), place_of("pos"), -farthestPlace,
                          farthestPlace);
    const QPoint size =
        ToPair(object.value(QLatin1String("size")), place_of("size"), 0, largestSide);
    node.size = QSize(size.x(), size.y());
    node.hold = ToInt(object, QStringLiteral("hold"), place);
    node.neonEffect = ToInt(object, QStringLiteral("neonEffect"), place);

    if (object.contains(QLatin1String("attributes"))) {
        const QString at = place_of("attributes");
        const QJsonObject attributes = ToObject(object.value(QLatin1String("attributes")), at,
                                                TextAttributeKeys() + NumberAttributeKeys());
        for (auto it = attributes.begin(); it != attributes.end(); ++it)
            node.attributes.insert(it.key(),
                                   ToAttribute(it.key(), it.value(), Member(at, it.key())));
    }
    if (object.contains(QLatin1String("lists"))) {
        const QString at = place_of("lists");
        const QJsonObject lists = ToObject(object.value(QLatin1String("lists")), at, ListKeys());
        for (auto it = lists.begin(); it != lists.end(); ++it)
            node.lists.insert(it.key(), ToRows(it.key(), it.value(), Member(at, it.key())));
    }
    if (object.contains(QLatin1String("files"))) {
        const QString at = place_of("files");
        const QJsonObject files = ToObject(object.value(QLatin1String("files")), at, FileKeys());
        for (auto it = files.begin(); it != files.end(); ++it)
            node.files.insert(it.key(), ReadFileName(it.value(), Member(at, it.key())));
    }
    return node;
}

Scene Reader::Read(const QJsonValue& root)
{
    const QString top = QStringLiteral("$");
    const QJsonObject object = ToObject(root, top,
                                        {QStringLiteral("scene"), QStringLiteral("display"),
                                         QStringLiteral("alphaBlend"), QStringLiteral("pages")});
    ToInt(object.value(QLatin1String("scene")), QStringLiteral("$.scene"), 1, 1);

    const QString displayPlace = QStringLiteral("$.display");
    const QJsonObject display = ToObject(object.value(QLatin1String("display")), displayPlace,
                                         {QStringLiteral("width"), QStringLiteral("height")});
    scene.display = QSize(ToInt(display.value(QLatin1String("width")),
                                QStringLiteral("$.display.width"), 1, largestSide),
                          ToInt(display.value(QLatin1String("height")),
                                QStringLiteral("$.display.height"), 1, largestSide));
    if (qint64(scene.display.width()) * scene.display.height() > largestDisplay)
        Fail(displayPlace, QStringLiteral("expected at most %1 pixels, found %2 × %3")
                               .arg(largestDisplay)
                               .arg(scene.display.width())
                               .arg(scene.display.height()));

    if (object.contains(QLatin1String("alphaBlend"))) {
        const QJsonValue blend = object.value(QLatin1String("alphaBlend"));
        if (!blend.isBool())
            Expected(QStringLiteral("$.alphaBlend"), QStringLiteral("true or false"), blend);
        scene.alphaBlend = blend.toBool();
    }

    const QString pagesPlace = QStringLiteral("$.pages");
    const QJsonArray pages = ToList(object.value(QLatin1String("pages")), pagesPlace);
    for (int p = 0; p < pages.size(); ++p) {
        ScenePage page;
        const QString pagePlace = Item(pagesPlace, p);
        const QString areasPlace = Member(pagePlace, QStringLiteral("areas"));
        const QJsonArray areas = ToList(ToObject(pages.at(p), pagePlace, {QStringLiteral("areas")})
                                            .value(QLatin1String("areas")),
                                        areasPlace);
        for (int a = 0; a < areas.size(); ++a) {
            SceneArea area;
            const QString areaPlace = Item(areasPlace, a);
            const QString nodesPlace = Member(areaPlace, QStringLiteral("nodes"));
            const QJsonArray nodes =
                ToList(ToObject(areas.at(a), areaPlace, {QStringLiteral("nodes")})
                           .value(QLatin1String("nodes")),
                       nodesPlace);
            for (int n = 0; n < nodes.size(); ++n)
                area.nodes.append(ReadNode(nodes.at(n), Item(nodesPlace, n)));
            page.areas.append(area);
        }
        scene.pages.append(page);
    }
    return scene;
}

/** Keys may hold anything, line breaks too. */
QString OnOneLine(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return text;
}

QByteArray ReadStandardInput()
{
    QFile input;
    input.open(stdin, QIODevice::ReadOnly);
    const QByteArray bytes = input.read(largestFile + 1);
    if (bytes.size() > largestFile)
        throw Fault{QStringLiteral(": expected at most %1 bytes").arg(largestFile)};
    return bytes;
}

QByteArray ReadBytes(const QString& path)
{
    if (path == QLatin1String("-"))
        return ReadStandardInput();
    const QFileInfo info(path);
    if (!info.exists())
        throw Fault{QStringLiteral(": there is no such file")};
    if (!info.isFile())
        throw Fault{QStringLiteral(": expected a scene file, this is no regular file")};
    if (info.size() > largestFile)
        throw Fault{QStringLiteral(": expected at most %1 bytes, the file has %2")
                        .arg(largestFile)
                        .arg(info.size())};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Fault{QStringLiteral(": cannot be read: %1").arg(file.errorString())};
    return file.readAll();
}

/** "LINE:COLUMN" of a place in @p text, both counted from 1, columns in bytes. */
QString LineAndColumn(const QByteArray& text, int offset)
{
    const QByteArray before = text.left(offset);
    const int line = before.count('\n') + 1;
    const int column = offset - (before.lastIndexOf('\n') + 1) + 1;
    return QStringLiteral("%1:%2").arg(line).arg(column);
}

QJsonObject Parse(const QByteArray& text)
{
    // Before anything else, for Qt's reader leaks the values of keys that stand there twice.
    const QString twice = DuplicateKey(text);
    if (!twice.isEmpty())
        Fail(twice, QStringLiteral("expected each key once, found it twice"));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        const int offset = qBound(0, error.offset, text.size());
        throw Fault{QStringLiteral(":%1: no valid JSON, %2")
                        .arg(LineAndColumn(text, offset), error.errorString())};
    }
    if (!document.isObject())
        Expected(QStringLiteral("$"), QStringLiteral("an object"), document.array());
    return document.object();
}

/** Reads what @p bytes answers. */
template <typename Bytes>
bool ReadFrom(const Bytes& bytes, const QString& path, Scene* scene, QString* error,
              MissingFiles missing)
{
    try {
        *scene = Reader(path, missing).Read(Parse(bytes()));
        return true;
    } catch (const Fault& fault) {
        *error = path + OnOneLine(fault.text);
        return false;
    }
}

} // namespace

bool ReadScene(const QString& path, Scene* scene, QString* error, MissingFiles missing)
{
    return ReadFrom([&] { return ReadBytes(path); }, path, scene, error, missing);
}

bool ReadSceneText(const QByteArray& text, const QString& path, Scene* scene, QString* error,
                   MissingFiles missing)
{
    return ReadFrom([&] { return text; }, path, scene, error, missing);
}

bool ReadScene(const QString& path, Scene* scene, QString* error)
{
    return ReadScene(path, scene, error, MissingFiles::AreErrors);
}

} // namespace AnimText
