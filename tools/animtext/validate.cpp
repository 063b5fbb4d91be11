#include "validate/validate.h"

#include "animtext/commands.h"
#include "cli/commandline.h"

namespace AnimText {

namespace {

int Validate(const CommandLine& line)
{
    QList<Report> reports;
    QList<Finding> all;
    QByteArray text;
    for (const QString& path : line.Arguments()) {
        reports.append({path, ValidateScene(path)});
        all += reports.last().findings;
        text += (text.isEmpty() ? "" : "\n") + ReportAsText(reports.last());
    }
    Print(line.IsSet("json") ? ReportsAsJson(reports) : text);
    if (Count(all, Severity::Error) > 0)
        return BadInput;
    return line.IsSet("strict") && !all.isEmpty() ? FailedRun : Done;
}

} // namespace

Command ValidateCommand()
{
    return {
        "validate",
        "looks for mistakes in scenes",
        "SCENE.json...",
        1,
        100000,
        "Looks for mistakes in scenes; - is standard input. The exit status is 0 without errors, "
        "2 with; warnings count with --strict, as 1.",
        {Option::Flag("json", "Prints a JSON object, or a list of them for several scenes."),
         Option::Flag("strict", "Warnings count as a failure.")},
        Validate};
}

} // namespace AnimText
