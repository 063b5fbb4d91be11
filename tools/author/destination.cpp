#include "author/destination.h"

namespace AnimText {

namespace {

bool Put(const SceneNode& node, const Destination& destination, Scene* scene, QString* error)
{
    if (!destination.instead.isEmpty()) {
        Place place;
        if (!scene->Find(destination.instead, &place, error))
            return false;
        scene->At(place) = node;
        return true;
    }
    const int pages = scene->pages.size();
    if (destination.page < 1 || destination.page > pages + 1) {
        *error = QStringLiteral("there is no page %1; the next new page is %2")
                     .arg(destination.page)
                     .arg(pages + 1);
        return false;
    }
    const int areas =
        destination.page > pages ? 0 : scene->pages[destination.page - 1].areas.size();
    if (destination.area < 0 || destination.area > areas) {
        *error = QStringLiteral("there is no area %1 on page %2")
                     .arg(destination.area)
                     .arg(destination.page);
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
        *error = QStringLiteral("an area of %1 x %2 pixels at %3,%4 is outside the display")
                     .arg(node.size.width())
                     .arg(node.size.height())
                     .arg(node.pos.x())
                     .arg(node.pos.y());
        return false;
    }
    return true;
}

} // namespace AnimText
