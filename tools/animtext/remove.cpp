#include "animtext/commands.h"
#include "animtext/shared/savescene.h"

namespace AnimText {

namespace {

int Remove(const CommandLine& line)
{
    ChangeText(line, [](Scene* scene, const Place& place, QString*) {
        scene->Remove(place);
        return true;
    });
    return Done;
}

} // namespace

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
