#include "author/textsource.h"

#include "files/wholefile.h"
#include "scene/jsonvalues.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace AnimText::author {
namespace {

constexpr qint64 largestFile = 64 << 20; // bytes

int Number(const QHash<QString, QString>& row, const char* field)
{
    return row.value(QLatin1String(field)).toInt();
}

layout::StyleRun StyleOf(const QHash<QString, QString>& row)
{
    layout::StyleRun run;
    run.font = QFont(row.value("fontName"));
    run.font.setPixelSize(qMax(1, qRound(Number(row, "fontSize") * 96 / 72.0)));
    run.font.setBold(Number(row, "bold") == 1);
    run.font.setItalic(Number(row, "italic") == 1);
    run.font.setUnderline(Number(row, "underline") == 1);
    run.color = QColor::fromRgb(QRgb(Number(row, "Color")));
    return run;
}

QJsonObject ToJson(const TextSource& source)
{
    QJsonArray runs;
    for (const layout::StyleRun& run : source.text.runs)
        runs.append(QJsonObject{{"begin", run.begin},
                                {"font", run.font.family()},
                                {"size", run.font.pixelSize()},
                                {"bold", run.font.bold()},
                                {"italic", run.font.italic()},
                                {"underline", run.font.underline()},
                                {"color", run.color.name()}});
    return {{"text", source.text.text},
            {"name", source.name},
            {"runs", runs},
            {"fit", int(source.fit)},
            {"align", int(source.align)},
            {"valign", int(source.valign)},
            {"padding", source.padding},
            {"keepsWords", source.keepsWords}};
}

template <typename Enumeration>
Enumeration OneOf(const QJsonValue& value, Enumeration last)
{
    return Enumeration(qBound(0, value.toInt(), int(last)));
}

TextSource FromJson(const QJsonObject& json)
{
    TextSource source;
    source.text.text = json.value("text").toString();
    source.name = json.value("name").toString();
    for (const auto& value : json.value("runs").toArray()) {
        const QJsonObject object = value.toObject();
        layout::StyleRun run;
        run.font = QFont(object.value("font").toString());
        run.font.setPixelSize(qMax(1, object.value("size").toInt()));
        run.font.setBold(object.value("bold").toBool());
        run.font.setItalic(object.value("italic").toBool());
        run.font.setUnderline(object.value("underline").toBool());
        run.color = QColor(object.value("color").toString());
        // Whoever wrote the file: the first run begins at 0, and the others follow in order.
        const QVector<layout::StyleRun>& runs = source.text.runs;
        run.begin = runs.isEmpty() ? 0 : qMax(runs.last().begin + 1, object.value("begin").toInt());
        source.text.runs.append(run);
    }
    source.fit = OneOf(json.value("fit"), layout::Fit::Both);
    source.align = OneOf(json.value("align"), layout::Align::Right);
    source.valign = OneOf(json.value("valign"), layout::VAlign::Bottom);
    source.padding = qMax(0, json.value("padding").toInt());
    source.keepsWords = json.value("keepsWords").toBool(true);
    return source;
}

} // namespace

bool operator==(const TextSource& a, const TextSource& b)
{
    return static_cast<const layout::Setting&>(a) == static_cast<const layout::Setting&>(b) &&
           a.text == b.text && a.name == b.name;
}

TextSource SourceOf(const scene::SceneNode& node)
{
    TextSource source;
    const QString text = node.attributes.value("Text").toString();
    const auto rows = node.lists.value("TextAttribute");
    layout::StyleRun style = StyleOf(rows.value(0));
    for (int i = 0; i < text.size(); ++i) {
        if (i < rows.size())
            style = StyleOf(rows.at(i));
        source.text.Append(text.mid(i, 1), style);
    }
    if (source.text.runs.isEmpty())
        source.text.runs = {style};
    return source;
}

QByteArray LayoutDigest(const scene::SceneNode& node)
{
    scene::SceneNode layout;
    layout.size = node.size;
    layout.attributes["Text"] = node.attributes.value("Text");
    layout.lists = node.lists;
    // The part of a data file's name after the scene's is a digest of its content.
    for (const char* key : {"PathData", "DescentVector"}) {
        const QString name = QFileInfo(node.files.value(QLatin1String(key))).fileName();
        layout.files[QLatin1String(key)] = name.section(QLatin1Char('.'), -2);
    }
    scene::Scene scene;
    scene.pages = {scene::ScenePage{{scene::SceneArea{{layout}}}}};
    return QCryptographicHash::hash(scene::SceneToJson(scene), QCryptographicHash::Sha256)
        .toHex()
        .left(32);
}

QString SourcesName(const QString& scenePath)
{
    const QString suffix = ".sources";
    return files::Shortened(QFileInfo(scenePath).completeBaseName(),
                            files::longestName - suffix.size()) +
           suffix;
}

TextSources ReadSources(const QString& scenePath)
{
    QFile file(QFileInfo(files::RealPath(scenePath))
                   .dir()
                   .filePath(SourcesName(files::RealPath(scenePath))));
    if (!QFileInfo(file).isFile() || file.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return {};
    return SourcesFromJson(file.readAll());
}

QByteArray SourcesToJson(const TextSources& sources)
{
    QJsonObject json;
    for (auto source = sources.begin(); source != sources.end(); ++source)
        json.insert(QString::fromLatin1(source.key()), ToJson(source.value()));
    return QJsonDocument(QJsonObject{{"sources", json}}).toJson();
}

TextSources SourcesFromJson(const QByteArray& json)
{
    TextSources sources;
    const QJsonObject list =
        QJsonDocument::fromJson(scene::WithMarksEscaped(json)).object().value("sources").toObject();
    for (auto it = list.begin(); it != list.end(); ++it) {
        const TextSource source = FromJson(it.value().toObject());
        if (!source.text.runs.isEmpty())
            sources.insert(it.key().toLatin1(), source);
    }
    return sources;
}

} // namespace AnimText::author
