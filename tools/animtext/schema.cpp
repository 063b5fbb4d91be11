#include "animtext/commands.h"

#include "cli/commandline.h"
#include "scene/sceneschema.h"

namespace AnimText {

Command SchemaCommand()
{
    return {"schema",
            "print the JSON Schema of scene files",
            "",
            0,
            0,
            "Prints the JSON Schema (draft 7) of scene files. Editors use it to complete, check "
            "and explain keys.",
            {Option::Flag("tables", "Print the keys of a text as Markdown tables instead.")},
            [](const CommandLine& line) {
                Print(line.IsSet("tables") ? SceneTables() : SceneSchema());
                return int(Done);
            },
            {"animtext schema >scene.schema.json", "animtext schema --tables"}};
}

} // namespace AnimText
