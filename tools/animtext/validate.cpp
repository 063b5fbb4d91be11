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
    return {"validate",
            "check scenes for mistakes",
            "SCENE.json...",
            1,
            100000,
            "Checks scenes for mistakes; - is standard input. The exit status is 2 if there are "
            "errors, and with --strict 1 if there are only warnings.",
            {Option::Flag("json", "Print a JSON object, or a list of objects for several scenes."),
             Option::Flag("strict", "Fail on warnings, too.")},
            Validate,
            {"animtext validate sign.json", "animtext validate --strict --json *.json"}};
}

} // namespace AnimText
