#include "cli/option.h"

#include "scene/catalog.h"

namespace AnimText::cli {

Option Option::Effect(const char* name, const char* help)
{
    Option option{Kind::Effect, name, "NAME|N", help};
    for (const scene::Motion& effect : scene::Effects())
        option.choices.append(QLatin1String(effect.name));
    return option;
}

Option Option::Scroll(const char* name, const char* help)
{
    return {Kind::Scroll, name, "DIRECTION", help, 0, 0, scene::Directions()};
}

QString ShortestName(const Option& option)
{
    return option.letter ? QLatin1Char('-') + QString(QLatin1Char(option.letter))
                         : "--" + QLatin1String(option.name);
}

QString HelpWithDefault(const Option& option)
{
    const QString help = QString::fromUtf8(option.help);
    return option.standard
               ? QStringLiteral("%1 Default: %2.").arg(help, QString::fromUtf8(option.standard))
               : help;
}

} // namespace AnimText::cli
