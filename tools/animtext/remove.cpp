#include "animtext/commands.h"
#include "animtext/shared/savescene.h"

namespace AnimText::animtext {

cli::Command RemoveCommand()
{
    return {"remove",
            "remove a text from a scene",
            {"SCENE.json PLACE", 2, 2},
            "Removes a text with its data files, and its area and page if they become empty. PLACE "
            "is the text's number in animtext list, or its path as in animtext validate.",
            {},
            [](const cli::CommandLine& line) {
                shared::ChangeText(line,
                                   [](scene::Scene* scene, const scene::Place& place, QString*) {
                                       scene->Remove(place);
                                       return true;
                                   });
            },
            {"animtext remove sign.json 2",
             "animtext remove sign.json '$.pages[0].areas[0].nodes[0]'"}};
}

} // namespace AnimText::animtext
