#include "scene/fonts.h"

#include "animtext/commands.h"
#include "cli/commandline.h"
#include "scene/suggest.h"

namespace AnimText::animtext {

cli::Command FontsCommand()
{
    return {"fonts",
            "list installed fonts",
            {"[FILTER]", 0, 1},
            "Lists the installed font families, or those whose names contain FILTER.",
            {},
            [](const cli::CommandLine& line) {
                const QString filter = line.Arguments().value(0);
                const QStringList families = scene::FontFamilies(filter);
                if (families.isEmpty())
                    throw files::Failure{
                        files::FailedRun,
                        QStringLiteral("no installed font family contains \"%1\"%2")
                            .arg(filter, scene::DidYouMeanOneOf(filter, scene::FontFamilies()))};
                cli::Print(families.join(QLatin1Char('\n')).toUtf8() + '\n');
            },
            {"animtext fonts", "animtext fonts dejavu"}};
}

} // namespace AnimText::animtext
