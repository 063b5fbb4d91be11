#include "layout/fonts.h"

#include "animtext/commands.h"
#include "cli/commandline.h"

namespace AnimText {

namespace {

int Fonts(const CommandLine& line)
{
    const QString filter = line.Arguments().value(0);
    const QStringList families = FontFamilies(filter);
    if (families.isEmpty())
        throw Failure{FailedRun, QStringLiteral("there is no font family \"%1\"%2")
                                     .arg(filter, DidYouMeanOneOf(filter, FontFamilies()))};
    Print(families.join(QLatin1Char('\n')).toUtf8() + '\n');
    return Done;
}

} // namespace

Command FontsCommand()
{
    return {"fonts",    "lists the fonts that are installed",
            "[FILTER]", 0,
            1,          "Lists the installed font families, or those whose names hold FILTER.",
            {},         Fonts};
}

} // namespace AnimText
