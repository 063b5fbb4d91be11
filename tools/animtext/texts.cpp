// The commands on the texts of a scene: list, set, remove.
#include "animtext/commandline.h"
#include "animtext/commands.h"
#include "animtext/cutoff.h"
#include "animtext/interruption.h"
#include "animtext/storing.h"
#include "author/places.h"
#include "scene/motion.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace AnimText {

namespace {

constexpr int longestText = 40; // characters of a text that are listed

QString MotionName(const SceneNode& node)
{
    const Motion* motion = MotionOf(node).Row();
    return motion ? QLatin1String(motion->name) : QStringLiteral("unknown");
}

int SpeedOf(const SceneNode& node)
{
    return node.attributes.value(MotionOf(node).SpeedKey()).toInt();
}

QByteArray AsJson(Scene* scene)
{
    QJsonArray texts;
    for (const Place& place : Places(*scene)) {
        const SceneNode& node = NodeAt(scene, place);
        texts.append(QJsonObject{
            {QStringLiteral("number"), texts.size() + 1},
            {QStringLiteral("path"), QStringLiteral("$.pages[%1].areas[%2].nodes[%3]")
                                         .arg(place.page)
                                         .arg(place.area)
                                         .arg(place.node)},
            {QStringLiteral("page"), place.page + 1},
            {QStringLiteral("area"), place.area + 1},
            {QStringLiteral("text"), node.attributes.value(QStringLiteral("Text")).toString()},
            {QStringLiteral("motion"), MotionName(node)},
            {QStringLiteral("speed"), SpeedOf(node)},
            {QStringLiteral("hold"), node.hold},
            {QStringLiteral("pos"), QJsonArray{node.pos.x(), node.pos.y()}},
            {QStringLiteral("size"), QJsonArray{node.size.width(), node.size.height()}}});
    }
    return QJsonDocument(texts).toJson(QJsonDocument::Indented);
}

QByteArray AsText(Scene* scene)
{
    QByteArray text;
    int number = 0;
    for (const Place& place : Places(*scene)) {
        const SceneNode& node = NodeAt(scene, place);
        QString words = node.attributes.value(QStringLiteral("Text")).toString().simplified();
        if (words.size() > longestText)
            words = words.left(longestText - 3) + QStringLiteral("...");
        text += QStringLiteral("%1  page %2 area %3  %4 x %5 at %6,%7  %8, speed %9")
                    .arg(++number, 3)
                    .arg(place.page + 1)
                    .arg(place.area + 1)
                    .arg(node.size.width())
                    .arg(node.size.height())
                    .arg(node.pos.x())
                    .arg(node.pos.y())
                    .arg(MotionName(node))
                    .arg(SpeedOf(node))
                    .toUtf8() +
                ", hold " + QByteArray::number(node.hold / 10.0) + " s  \"" + words.toUtf8() +
                "\"\n";
    }
    return text;
}

int List(const CommandLine& line)
{
    const QString path = line.Arguments().first();
    Scene scene;
    QString error;
    if (!ReadScene(path, &scene, &error, MissingFiles::AreAccepted))
        throw Failure{BadInput, error};
    Print(line.IsSet("json") ? AsJson(&scene) : AsText(&scene));
    return Done;
}

/** Changes the text at the place that the second argument names. */
template <typename Work>
int ChangeText(const CommandLine& line, const Work& work)
{
    const QString path = line.Arguments().at(0);
    if (!QFileInfo::exists(path))
        throw Failure{BadInput, path + QStringLiteral(": there is no such file")};
    WatchForInterruption();
    Scene changed;
    Place place;
    StoreScene(path, [&](Scene* scene, DataFiles*, QString* error) {
        const bool isDone =
            FindPlace(*scene, line.Arguments().at(1), &place, error) && work(scene, place, error);
        changed = *scene;
        return isDone;
    });
    if (line.Arguments().size() > 2) // the text is still there
        WarnOfCut(changed, NodeAt(&changed, place));
    return Done;
}

int Set(const CommandLine& line)
{
    const QStringList settings = line.Arguments().mid(2);
    for (const QString& setting : settings) {
        if (setting.indexOf(QLatin1Char('=')) < 1)
            throw Misuse{QStringLiteral("expected KEY=VALUE, not \"%1\"").arg(setting)};
    }
    return ChangeText(line, [&](Scene* scene, const Place& place, QString* error) {
        for (const QString& setting : settings) {
            if (!SetValue(&NodeAt(scene, place), setting.section(QLatin1Char('='), 0, 0),
                          setting.section(QLatin1Char('='), 1), error))
                return false;
        }
        return true;
    });
}

int Remove(const CommandLine& line)
{
    return ChangeText(line, [](Scene* scene, const Place& place, QString*) {
        RemoveNode(scene, place);
        return true;
    });
}

} // namespace

Command ListCommand()
{
    return {"list",
            "lists the texts of a scene",
            "SCENE.json",
            1,
            1,
            "Lists the texts of a scene with their numbers, pages, areas, motions and times.",
            {Option::Flag("json", "Prints a JSON list.")},
            List};
}

Command SetCommand()
{
    return {"set",
            "changes a text of a scene",
            "SCENE.json PLACE KEY=VALUE...",
            3,
            1000,
            "Changes what needs no new layout: effect, scroll, speed, hold (2s, 1500ms), "
            "plays, pos, color, hollow, or an attribute by its name in the scene file. PLACE is "
            "the text's number, as animtext list shows it, or its path in the file, as animtext "
            "validate does. Another text, font or area is animtext author --replace.",
            {},
            Set};
}

Command RemoveCommand()
{
    return {
        "remove",
        "removes a text from a scene",
        "SCENE.json PLACE",
        2,
        2,
        "Removes a text, with its data files, and an area and a page that are empty then. PLACE "
        "is the text's number, as animtext list shows it, or its path in the file.",
        {},
        Remove};
}

} // namespace AnimText
