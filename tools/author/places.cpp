#include "author/places.h"

#include <QRegularExpression>

namespace AnimText {

QList<Place> Places(const Scene& scene)
{
    QList<Place> places;
    for (int p = 0; p < scene.pages.size(); ++p) {
        for (int a = 0; a < scene.pages[p].areas.size(); ++a) {
            for (int n = 0; n < scene.pages[p].areas[a].nodes.size(); ++n)
                places.append({p, a, n});
        }
    }
    return places;
}

bool FindPlace(const Scene& scene, const QString& word, Place* place, QString* error)
{
    static const QRegularExpression path(
        QStringLiteral("^\\$\\.pages\\[(\\d+)\\]\\.areas\\[(\\d+)\\]\\.nodes\\[(\\d+)\\]"));
    const QRegularExpressionMatch match = path.match(word);
    const QList<Place> places = Places(scene);
    int index = word.toInt() - 1;
    for (int i = 0; match.hasMatch() && i < places.size(); ++i) {
        if (places[i].page == match.captured(1).toInt() &&
            places[i].area == match.captured(2).toInt() &&
            places[i].node == match.captured(3).toInt())
            index = i;
    }
    if (index < 0 || index >= places.size()) {
        *error = QStringLiteral("%1: there is no text %2; expected %3")
                     .arg(scene.path, word,
                          places.isEmpty() ? QStringLiteral("a scene with texts")
                                           : QStringLiteral("a number from 1 to %1, as animtext "
                                                            "list shows, or a path like "
                                                            "$.pages[0].areas[0].nodes[0]")
                                                 .arg(places.size()));
        return false;
    }
    *place = places[index];
    return true;
}

SceneNode& NodeAt(Scene* scene, const Place& place)
{
    return scene->pages[place.page].areas[place.area].nodes[place.node];
}

void RemoveNode(Scene* scene, const Place& place)
{
    QList<SceneArea>& areas = scene->pages[place.page].areas;
    areas[place.area].nodes.removeAt(place.node);
    if (areas[place.area].nodes.isEmpty())
        areas.removeAt(place.area);
    if (areas.isEmpty())
        scene->pages.removeAt(place.page);
}

namespace {

bool Put(const SceneNode& node, const Destination& destination, Scene* scene, QString* error)
{
    if (!destination.instead.isEmpty()) {
        Place place;
        if (!FindPlace(*scene, destination.instead, &place, error))
            return false;
        NodeAt(scene, place) = node;
        return true;
    }
    const int pages = scene->pages.size();
    if (destination.page < 1 || destination.page > pages + 1) {
        *error = QStringLiteral("there is no page %1; expected 1 to %2, the last a new one")
                     .arg(destination.page)
                     .arg(pages + 1);
        return false;
    }
    const int areas =
        destination.page > pages ? 0 : scene->pages[destination.page - 1].areas.size();
    if (destination.area < 0 || destination.area > areas) {
        *error = QStringLiteral("there is no area %1 on page %2, which has %3")
                     .arg(destination.area)
                     .arg(destination.page)
                     .arg(areas);
        return false;
    }
    if (destination.page > pages)
        scene->pages.append(ScenePage());
    ScenePage& page = scene->pages[destination.page - 1];
    if (destination.area == 0)
        page.areas.append(SceneArea{{node}});
    else
        page.areas[destination.area - 1].nodes.append(node);
    return true;
}

} // namespace

bool PutAuthored(const AuthoredNode& authored, const Destination& destination, Scene* scene,
                 DataFiles* dataFiles, QString* error)
{
    SceneNode node = authored.node;
    const auto add = [&](const QString& key, const QByteArray& content, const QString& suffix) {
        node.files[key] = DataFileName(scene->path, content, suffix);
        dataFiles->insert(node.files[key], content);
    };
    add(QStringLiteral("PathData"), authored.pathFile, QStringLiteral("path"));
    add(QStringLiteral("DescentVector"), authored.descentFile, QStringLiteral("descent"));
    if (!Put(node, destination, scene, error))
        return false;
    if (!destination.display.isEmpty())
        scene->display = destination.display;
    else if (scene->display.isEmpty())
        scene->display = QSize(node.pos.x() + node.size.width(), node.pos.y() + node.size.height());
    if (scene->display.isEmpty()) {
        *error = QStringLiteral("nothing of an area of %1 x %2 pixels at %3,%4 is on a display")
                     .arg(node.size.width())
                     .arg(node.size.height())
                     .arg(node.pos.x())
                     .arg(node.pos.y());
        return false;
    }
    return true;
}

} // namespace AnimText
