#include "animtext/commands.h"

#include "cli/commandline.h"
#include "scene/sceneschema.h"

namespace AnimText::animtext {

cli::Command SchemaCommand()
{
    return {"schema",
            "print the JSON Schema of scene files",
            {},
            "Prints the JSON Schema (draft 7) of scene files. Editors use it to complete, check "
            "and explain keys.",
            {Option::Flag("tables", "Print the keys of a text as Markdown tables instead.")},
            [](const cli::CommandLine& line) {
                cli::Print(line.IsSet("tables") ? scene::SceneTables() : scene::SceneSchema());
            },
            {"animtext schema >scene.schema.json", "animtext schema --tables"}};
}

} // namespace AnimText::animtext
