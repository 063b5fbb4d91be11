#include "animtext/commands.h"
#include "cli/commandline.h"
#include "scene/motion.h"
#include "scene/scene.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace AnimText::animtext {

namespace {

constexpr int longestText = 40; // characters of a text that are listed

QString MotionName(const scene::SceneNode& node)
{
    const scene::Motion* motion = scene::MotionOf(node).Row();
    return motion ? QString(motion->name) : "unknown";
}

int SpeedOf(const scene::SceneNode& node)
{
    return node.attributes.value(scene::MotionOf(node).SpeedKey()).toInt();
}

QByteArray AsJson(const scene::Scene& scene)
{
    QJsonArray texts;
    for (const scene::Place& place : scene.Places()) {
        const scene::SceneNode& node = scene.At(place);
        texts.append(QJsonObject{{"number", texts.size() + 1},
                                 {"path", place.Path()},
                                 {"page", place.page + 1},
                                 {"area", place.area + 1},
                                 {"text", node.attributes.value("Text").toString()},
                                 {"motion", MotionName(node)},
                                 {"speed", SpeedOf(node)},
                                 {"hold", node.hold},
                                 {"pos", QJsonArray{node.pos.x(), node.pos.y()}},
                                 {"size", QJsonArray{node.size.width(), node.size.height()}}});
    }
    return QJsonDocument(texts).toJson(QJsonDocument::Indented);
}

QByteArray AsText(const scene::Scene& scene)
{
    QString text;
    int number = 0;
    for (const scene::Place& place : scene.Places()) {
        const scene::SceneNode& node = scene.At(place);
        QString words = node.attributes.value("Text").toString().simplified();
        if (words.size() > longestText)
            words = words.left(longestText - 3) + "...";
        text += QString::asprintf("%3d  page %d area %d  %d x %d at %d,%d  %s, speed %d, "
                                  "hold %g s  \"%s\"\n",
                                  ++number, place.page + 1, place.area + 1, node.size.width(),
                                  node.size.height(), node.pos.x(), node.pos.y(),
                                  qUtf8Printable(MotionName(node)), SpeedOf(node), node.hold / 10.0,
                                  qUtf8Printable(words));
    }
    return text.toUtf8();
}

void List(const cli::CommandLine& line)
{
    const QString path = line.Arguments().first();
    scene::Scene scene;
    QString error;
    files::FailUnless(scene::ReadScene(path, &scene, &error, scene::MissingFiles::AreAccepted),
                      error, files::BadInput);
    cli::Print(line.IsSet("json") ? AsJson(scene) : AsText(scene));
}

} // namespace

cli::Command ListCommand()
{
    return {"list",
            "list the texts in a scene",
            {"SCENE.json", 1, 1},
            "Lists the texts in a scene with their numbers, pages, areas, motions and times.",
            {Option::Flag("json", "Print a JSON list.")},
            List,
            {"animtext list sign.json", "animtext list sign.json --json"}};
}

} // namespace AnimText::animtext
