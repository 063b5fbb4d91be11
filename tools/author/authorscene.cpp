#include "author/authorscene.h"

#include <QFileInfo>

namespace AnimText::author {

namespace {

bool Put(const scene::SceneNode& node, const Destination& destination, scene::Scene* scene,
         scene::Place* place, QString* error)
{
    if (!destination.instead.isEmpty()) {
        if (!scene->Find(destination.instead, place, error))
            return false;
        scene->At(*place) = node;
        return true;
    }
    const int pages = scene->pages.size();
    if (destination.page > pages + 1) {
        *error = QStringLiteral("there is no page %1; the next new page is %2")
                     .arg(destination.page)
                     .arg(pages + 1);
        return false;
    }
    if (destination.page > pages)
        scene->pages.append(scene::ScenePage());
    QList<scene::SceneArea>& areas = scene->pages[destination.page - 1].areas;
    if (destination.area > areas.size()) {
        *error = QStringLiteral("there is no area %1 on page %2")
                     .arg(destination.area)
                     .arg(destination.page);
        return false;
    }
    if (destination.area == 0)
        areas.append(scene::SceneArea());
    const int area = destination.area == 0 ? areas.size() - 1 : destination.area - 1;
    *place = {destination.page - 1, area, int(areas[area].nodes.size())};
    areas[area].nodes.append(node);
    return true;
}

/**
 * Puts @p authored into @p scene and its data files into @p dataFiles; its pictures become relative
 * to the scene's folder. Sets @p place to where it is.
 */
bool PutAuthored(const AuthoredNode& authored, const Destination& destination, scene::Scene* scene,
                 DataFiles* dataFiles, scene::Place* place, QString* error)
{
    if (!destination.isAdded) {
        const int texts = scene->Nodes().size();
        if (texts > 1 && !destination.overwrites) {
            *error = QStringLiteral("%1 has %2 texts; use --replace PLACE to replace one, "
                                    "--append to add one, or --overwrite to replace all")
                         .arg(scene->path)
                         .arg(texts);
            return false;
        }
        const QString path = scene->path;
        *scene = scene::Scene();
        scene->path = path;
    }
    if (destination.isOpaque)
        scene->alphaBlend = false;
    scene::SceneNode node = authored.node;
    for (QString& picture : node.files)
        picture =
            QFileInfo(scene->path).dir().relativeFilePath(QFileInfo(picture).absoluteFilePath());
    for (auto file = authored.data.begin(); file != authored.data.end(); ++file) {
        node.files[file.key()] = DataFileName(scene->path, file.key(), file.value());
        dataFiles->insert(node.files[file.key()], file.value());
    }
    if (!Put(node, destination, scene, place, error))
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

} // namespace

Storing AuthorScene(const AuthorRequest& request, AuthoredScene* authored, QString* error)
{
    TextSource source;
    static_cast<layout::Setting&>(source) = request.setting;
    if (!ReadText(request.written, &source, &authored->notes, error))
        return Storing::Misread;
    const Destination& destination = request.destination;
    scene::SceneNode settings = request.node;
    if (destination.area > 0 && settings.size.isEmpty()) {
        scene::Scene scene;
        if (!scene::ReadScene(request.path, &scene, error, scene::MissingFiles::AreAccepted))
            return Storing::Refused;
        const scene::ScenePage page = scene.pages.value(destination.page - 1);
        const scene::SceneNode other = page.areas.value(destination.area - 1).nodes.value(0);
        settings.size = other.size;
        if (!request.hasPlace)
            settings.pos = other.pos;
    }
    if (!AuthorNode(source, settings, request.motion, &authored->text, error))
        return Storing::Refused;
    if (request.beforeSaving)
        request.beforeSaving();
    return ChangeScene(
        request.path,
        [&](scene::Scene* scene, DataFiles* dataFiles, QString* why) {
            return PutAuthored(authored->text, destination, scene, dataFiles, &authored->place,
                               why);
        },
        error, &authored->stored);
}

} // namespace AnimText::author
