#include "validate/validate.h"

#include "animtext/commandline.h"
#include "animtext/commands.h"

namespace AnimText {

namespace {

int Validate(const CommandLine& line)
{
    const QString path = line.Arguments().first();
    const QList<Finding> findings = ValidateScene(path);
    Print(line.IsSet("json") ? FindingsAsJson(path, findings) : FindingsAsText(path, findings));
    if (Count(findings, Severity::Error) > 0)
        return BadInput;
    return line.IsSet("strict") && !findings.isEmpty() ? FailedRun : Done;
}

} // namespace

Command ValidateCommand()
{
    return {"validate",
            "looks for mistakes in a scene",
            "SCENE.json",
            1,
            1,
            "Looks for mistakes in a scene. The exit status is 0 without errors, 2 with; warnings "
            "count with --strict, as 1.",
            {Option::Flag("json", "Prints one JSON object."),
             Option::Flag("strict", "Warnings count as a failure.")},
            Validate};
}

} // namespace AnimText
