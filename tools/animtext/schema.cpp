#include "animtext/commands.h"

#include "cli/commandline.h"
#include "scene/sceneschema.h"

namespace AnimText {

namespace {

int PrintSchema(const CommandLine& line)
{
    Print(line.IsSet("tables") ? SceneTables() : SceneSchema());
    return Done;
}

} // namespace

Command SchemaCommand()
{
    return {"schema",
            "prints what a scene file may hold, as a JSON Schema",
            "",
            0,
            0,
            "Prints a JSON Schema (draft 7) of scene files: editors complete and check by it, and "
            "show what each key does.",
            {Option::Flag("tables", "Prints the keys of a text as Markdown tables instead.")},
            PrintSchema};
}

} // namespace AnimText
