#include "cli/commandline.h"

#include "cli/values.h"
#include "scene/suggest.h"

namespace AnimText {

namespace {

/** The option of that name; null for none. */
const Option* FindOption(const Command& command, const QString& name)
{
    for (const Option& option : command.options) {
        if (name == QLatin1String(option.name))
            return &option;
    }
    return name == QLatin1String(HelpOption().name) ? &HelpOption() : nullptr;
}

QStringList LongNames(const Command& command)
{
    QStringList names{QStringLiteral("--help")};
    for (const Option& option : command.options)
        names.append(QStringLiteral("--") + QLatin1String(option.name));
    return names;
}

} // namespace

const Option& HelpOption()
{
    static const Option help = Option::Flag("help", "Shows this help.").Letter('h');
    return help;
}

CommandLine::CommandLine(const Command& command, const QStringList& words)
    : command(command)
{
    QStringList rest = words;
    bool optionsMayCome = true;
    while (!rest.isEmpty() && !IsSet("help")) {
        const QString word = rest.takeFirst();
        if (optionsMayCome && word == QLatin1String("--"))
            optionsMayCome = false;
        else if (optionsMayCome && word.startsWith(QLatin1String("--")))
            ReadLong(word, &rest);
        else if (optionsMayCome && word.startsWith(QLatin1Char('-')) && word.size() > 1)
            ReadShort(word, &rest);
        else
            arguments.append(word);
    }
    if (!IsSet("help"))
        Require();
}

void CommandLine::ReadLong(const QString& word, QStringList* rest)
{
    const int sign = word.indexOf(QLatin1Char('='));
    const QString name = word.mid(2, sign < 0 ? -1 : sign - 2);
    const Option* option = FindOption(command, name);
    if (!option)
        throw Misuse{QStringLiteral("unknown option --%1%2")
                         .arg(name, DidYouMean(QStringLiteral("--") + name, LongNames(command)))};
    Take(*option, sign >= 0, word.mid(sign + 1), rest);
}

void CommandLine::ReadShort(const QString& word, QStringList* rest)
{
    const bool isLongName = word.size() > 2 && FindOption(command, word.mid(1));
    for (const Option& option : command.options + QVector<Option>{HelpOption()}) {
        if (option.letter && word.at(1) == QLatin1Char(option.letter) && !isLongName) {
            Take(option, word.size() > 2, word.mid(2), rest);
            return;
        }
    }
    throw Misuse{QStringLiteral("unknown option %1%2")
                     .arg(word, DidYouMean(QLatin1Char('-') + word, LongNames(command)))};
}

void CommandLine::Take(const Option& option, bool hasValue, const QString& value, QStringList* rest)
{
    const QString name = QLatin1String(option.name);
    if (option.kind == Kind::Flag) {
        if (hasValue)
            throw Misuse{QStringLiteral("--%1 takes no value, not \"%2\"").arg(name, value)};
        given[name] = QStringList{QString()};
        return;
    }
    const bool follows =
        !rest->isEmpty() && !(option.alone && rest->first().startsWith(QLatin1Char('-')));
    QString taken = value;
    if (!hasValue && follows)
        taken = rest->takeFirst();
    else if (!hasValue && option.alone)
        taken = QLatin1String(option.alone);
    else if (!hasValue)
        throw Misuse{QStringLiteral("--%1 takes %2, which is missing")
                         .arg(name, QLatin1String(option.value))};
    CheckValue(option, taken);
    given[name].append(taken);
}

void CommandLine::Require() const
{
    const QString shown = QLatin1String(command.arguments);
    if (arguments.size() > command.most)
        throw Misuse{QStringLiteral("\"%1\" is one word too many").arg(arguments.at(command.most))};
    if (arguments.size() < command.least)
        throw Misuse{QStringLiteral("expected %1").arg(shown)};
    if (arguments.contains(QString()))
        throw Misuse{QStringLiteral("expected %1, not an empty word").arg(shown)};
    for (const Option& option : command.options) {
        if (option.isRequired && !IsSet(option.name))
            throw Misuse{QStringLiteral("expected %1 %2")
                             .arg(ShortestName(option), QLatin1String(option.value))};
    }
}

const Option& CommandLine::Find(const QString& name) const
{
    const Option* option = FindOption(command, name);
    Q_ASSERT_X(option, "CommandLine", qPrintable(name));
    return *option;
}

QString CommandLine::Value(const char* option) const
{
    const QString name = QLatin1String(option);
    return given.contains(name) ? given.value(name).last() : QString::fromUtf8(Find(name).standard);
}

QStringList CommandLine::Values(const char* option) const
{
    return given.value(QLatin1String(option));
}

int CommandLine::Number(const char* option) const
{
    return ToNumber(Find(QLatin1String(option)), Value(option));
}

double CommandLine::Fraction(const char* option) const
{
    return ToFraction(Find(QLatin1String(option)), Value(option));
}

double CommandLine::Time(const char* option) const
{
    return ToMilliseconds(Find(QLatin1String(option)), Value(option));
}

QSize CommandLine::Size(const char* option) const
{
    return ToSize(Find(QLatin1String(option)), Value(option));
}

QPoint CommandLine::Point(const char* option) const
{
    return ToPoint(Find(QLatin1String(option)), Value(option));
}

QColor CommandLine::Color(const char* option) const
{
    return ToColor(Find(QLatin1String(option)), Value(option));
}

QPair<int, int> CommandLine::Range(const char* option) const
{
    return ToRange(Find(QLatin1String(option)), Value(option));
}

int CommandLine::Choice(const char* option) const
{
    return ToChoice(Find(QLatin1String(option)), Value(option));
}

} // namespace AnimText
