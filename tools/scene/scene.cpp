#include "scene/scene.h"

#include "files/wholefile.h"

#include <QDir>
#include <QFileInfo>

namespace AnimText::scene {

QList<Place> Scene::Places() const
{
    QList<Place> places;
    for (int p = 0; p < pages.size(); ++p) {
        for (int a = 0; a < pages[p].areas.size(); ++a) {
            for (int n = 0; n < pages[p].areas[a].nodes.size(); ++n)
                places.append({p, a, n});
        }
    }
    return places;
}

SceneNode& Scene::At(const Place& place)
{
    return pages[place.page].areas[place.area].nodes[place.node];
}

const SceneNode& Scene::At(const Place& place) const
{
    return pages[place.page].areas[place.area].nodes[place.node];
}

QList<SceneNode*> Scene::Nodes()
{
    QList<SceneNode*> nodes;
    for (const Place& place : Places())
        nodes.append(&At(place));
    return nodes;
}

QList<const SceneNode*> Scene::Nodes() const
{
    QList<const SceneNode*> nodes;
    for (const Place& place : Places())
        nodes.append(&At(place));
    return nodes;
}

bool Scene::Find(const QString& word, Place* place, QString* error) const
{
    const QList<Place> places = Places();
    const int index = ReadPlace(word, place) ? places.indexOf(*place) : word.toInt() - 1;
    if (index < 0 || index >= places.size()) {
        *error = QStringLiteral("%1: there is no text %2; expected %3")
                     .arg(path, word,
                          places.isEmpty() ? "a scene with texts"
                                           : QStringLiteral("a number from 1 to %1, as animtext "
                                                            "list shows, or a path like "
                                                            "$.pages[0].areas[0].nodes[0]")
                                                 .arg(places.size()));
        return false;
    }
    *place = places[index];
    return true;
}

void Scene::Remove(const Place& place)
{
    QList<SceneArea>& areas = pages[place.page].areas;
    areas[place.area].nodes.removeAt(place.node);
    if (areas[place.area].nodes.isEmpty())
        areas.removeAt(place.area);
    if (areas.isEmpty())
        pages.removeAt(place.page);
}

QString Scene::FullName(const QString& file) const
{
    if (file.isEmpty())
        return QString();
    const QDir folder = QFileInfo(files::RealPath(path)).absoluteDir();
    return QDir::cleanPath(folder.absoluteFilePath(file));
}

QString SceneFault::Line(const QString& path) const
{
    // A line and a column follow the name directly, as in compilers' messages.
    QString line = path;
    if (!place.isEmpty())
        line += (place.startsWith(QLatin1Char('$')) ? ": " : ":") + place;
    return QStringLiteral("%1: expected %2, found %3%4")
        .arg(line, expected, found, AndMore(others));
}

QString AndMore(int others)
{
    return others == 0 ? QString() : QStringLiteral(" and %1 more like it").arg(others);
}

QString Counted(int count, const QString& noun)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(noun, count == 1 ? "" : "s");
}

} // namespace AnimText::scene
