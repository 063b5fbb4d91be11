#include "author/authorscene.h"

namespace AnimText {

Storing AuthorScene(const AuthorRequest& request, AuthoredScene* authored, QString* error)
{
    TextSource source;
    static_cast<Setting&>(source) = request.setting;
    if (!ReadText(request.written, &source, &authored->notes, error))
        return Storing::Misread;
    const Destination& destination = request.destination;
    SceneNode settings = request.node;
    if (destination.area > 0 && settings.size.isEmpty()) {
        Scene scene;
        if (!ReadScene(request.path, &scene, error, MissingFiles::AreAccepted))
            return Storing::Refused;
        const ScenePage page = scene.pages.value(destination.page - 1);
        const SceneNode other = page.areas.value(destination.area - 1).nodes.value(0);
        settings.size = other.size;
        if (!request.hasPlace)
            settings.pos = other.pos;
    }
    if (!AuthorNode(source, settings, request.motion, &authored->text, error))
        return Storing::Refused;
    return ChangeScene(
        request.path,
        [&](Scene* scene, DataFiles* dataFiles, QString* why) {
            return PutAuthored(authored->text, destination, scene, dataFiles, &authored->place,
                               why);
        },
        error, &authored->stored);
}

} // namespace AnimText
