#include "validate/validate.h"

#include "animtext/commands.h"
#include "cli/commandline.h"

namespace AnimText::animtext {

namespace {

void Validate(const cli::CommandLine& line)
{
    QList<validate::Report> reports;
    QList<validate::Finding> all;
    QByteArray text;
    for (const QString& path : line.Arguments()) {
        reports.append({path, validate::ValidateScene(path)});
        all += reports.last().findings;
        text += (text.isEmpty() ? "" : "\n") + validate::ReportAsText(reports.last());
    }
    cli::Print(line.IsSet("json") ? validate::ReportsAsJson(reports) : text);
    if (validate::Count(all, validate::Severity::Error) > 0)
        cli::EndWith(files::BadInput);
    if (line.IsSet("strict") && !all.isEmpty())
        cli::EndWith(files::FailedRun);
}

} // namespace

cli::Command ValidateCommand()
{
    return {"validate",
            "check scenes for mistakes",
            {"SCENE.json...", 1, 100000},
            "Checks scenes for mistakes; - is standard input. The exit status is 2 if there are "
            "errors, and with --strict 1 if there are only warnings.",
            {Option::Flag("json", "Print a JSON object, or a list of objects for several scenes."),
             Option::Flag("strict", "Fail on warnings, too.")},
            Validate,
            {"animtext validate sign.json", "animtext validate --strict --json *.json"}};
}

} // namespace AnimText::animtext
