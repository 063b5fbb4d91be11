#include "validate/validate.h"

#include "animtext/commandline.h"
#include "animtext/commands.h"

namespace AnimText {

int RunValidate(const QStringList& words)
{
    CommandLine line(QStringLiteral("validate"), QStringLiteral("SCENE.json"),
                     QStringLiteral("Looks for mistakes in a scene. The exit status is 0 without "
                                    "errors, 2 with; warnings count with --strict, as 1."));
    line.AddOption({QStringLiteral("json")}, QStringLiteral("Prints one JSON object."));
    line.AddOption({QStringLiteral("strict")}, QStringLiteral("Warnings count as a failure."));
    if (!line.Parse(words, 1, 1))
        return line.ExitStatus();

    const QString path = line.Arguments().first();
    const QList<Finding> findings = ValidateScene(path);
    const bool printed = Print(line.IsSet(QStringLiteral("json")) ? FindingsAsJson(path, findings)
                                                                  : FindingsAsText(path, findings));
    if (!printed)
        return Fail(FailedRun, QStringLiteral("the findings cannot be written"));
    if (Count(findings, Severity::Error) > 0)
        return BadInput;
    return line.IsSet(QStringLiteral("strict")) && !findings.isEmpty() ? FailedRun : Done;
}

} // namespace AnimText
