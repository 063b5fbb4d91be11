#include "cli/option.h"

namespace AnimText {

Option Option::Flag(const char* name, const char* help)
{
    return {Kind::Flag, name, "", help};
}

Option Option::Text(const char* name, const char* value, const char* help)
{
    return {Kind::Text, name, value, help};
}

Option Option::File(const char* name, const char* value, const char* help)
{
    return {Kind::File, name, value, help};
}

Option Option::Number(const char* name, int least, int most, const char* help)
{
    return {Kind::Number, name, "N", help, double(least), double(most)};
}

Option Option::Fraction(const char* name, double least, double most, const char* value,
                        const char* help)
{
    return {Kind::Fraction, name, value, help, least, most};
}

Option Option::Time(const char* name, int unit, double least, double most, const char* value,
                    const char* help)
{
    return {Kind::Time, name, value, help, least, most, unit};
}

Option Option::Size(const char* name, int most, const char* help)
{
    return {Kind::Size, name, "WxH", help, 1, double(most)};
}

Option Option::Point(const char* name, const char* help)
{
    return {Kind::Point, name, "X,Y", help, -99999, 99999};
}

Option Option::Color(const char* name, const char* help)
{
    return {Kind::Color, name, "COLOR", help};
}

Option Option::Range(const char* name, const char* help)
{
    return {Kind::Range, name, "A-B", help};
}

Option Option::Choice(const char* name, const char* value, const QStringList& choices,
                      const char* help)
{
    return {Kind::Choice, name, value, help, 0, 0, 0, choices};
}

Option Option::Letter(char letter) const
{
    Option option = *this;
    option.letter = letter;
    return option;
}

Option Option::Required() const
{
    Option option = *this;
    option.isRequired = true;
    return option;
}

Option Option::Or(const char* standard) const
{
    Option option = *this;
    option.standard = standard;
    return option;
}

Option Option::Alone(const char* alone) const
{
    Option option = *this;
    option.alone = alone;
    return option;
}

Option Option::Offering(const QStringList& words) const
{
    Option option = *this;
    option.choices = words;
    return option;
}

QString ShortestName(const Option& option)
{
    return option.letter ? QLatin1Char('-') + QString(QLatin1Char(option.letter))
                         : QStringLiteral("--") + QLatin1String(option.name);
}

QString HelpWithDefault(const Option& option)
{
    const QString help = QString::fromUtf8(option.help);
    return option.standard
               ? QStringLiteral("%1 Default: %2.").arg(help, QString::fromUtf8(option.standard))
               : help;
}

} // namespace AnimText
