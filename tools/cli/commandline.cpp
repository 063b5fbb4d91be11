#include "cli/commandline.h"

#include "scene/suggest.h"

namespace AnimText::cli {

namespace {

/** The option of that name, or null. */
const Option* FindOption(const Command& command, const QString& name)
{
    for (const Option& option : command.options) {
        if (name == QLatin1String(option.name))
            return &option;
    }
    return nullptr;
}

Misuse UnknownOption(const Command& command, const QString& word)
{
    QStringList names;
    for (const Option& option : command.options)
        names.append("--" + QLatin1String(option.name));
    const QString meant = word.startsWith("--") ? word : QLatin1Char('-') + word;
    return {QStringLiteral("unknown option %1%2").arg(word, scene::DidYouMean(meant, names))};
}

/**
 * @p words with the values of options that were given without one, for which Qt has no means.
 * Refuses names after a single dash, which Qt would take for a letter and its value.
 */
QStringList WithLoneValues(const Command& command, QStringList words)
{
    for (int i = 0; i < words.size() && words.at(i) != "--"; ++i) {
        const bool isLong = words.at(i).startsWith("--");
        const Option* option = isLong ? FindOption(command, words.at(i).mid(2)) : nullptr;
        const bool isAlone = i + 1 == words.size() || words.at(i + 1).startsWith(QLatin1Char('-'));
        if (option && option->alone && isAlone)
            words[i] += QLatin1Char('=') + QLatin1String(option->alone);
        else if (option && option->kind != Kind::Flag)
            ++i;
        else if (words.at(i).startsWith(QLatin1Char('-')) &&
                 FindOption(command, words.at(i).mid(1)))
            throw UnknownOption(command, words.at(i));
    }
    return words;
}

} // namespace

CommandLine::CommandLine(const Command& command, const QStringList& words)
{
    for (const Option& option : command.options) {
        QStringList names{option.name};
        if (option.letter)
            names.append(QString(QLatin1Char(option.letter)));
        parser.addOption({names, QString(), option.value, option.standard});
    }
    const bool isRead = parser.parse(QStringList{QString()} + WithLoneValues(command, words));
    if (IsSet("help"))
        return;
    const QString unknown = parser.unknownOptionNames().value(0);
    if (!unknown.isEmpty())
        throw UnknownOption(command, QLatin1String(unknown.size() == 1 ? "-" : "--") + unknown);
    if (!isRead)
        throw Misuse{parser.errorText().remove(QLatin1Char('.'))};
    for (const Option& option : command.options) {
        for (const QString& value : Values(option.name))
            values[option.name] = ReadValue(option, value);
    }
    const auto& expected = command.arguments;
    const QStringList arguments = Arguments();
    if (arguments.size() > expected.most)
        throw Misuse{QStringLiteral("unexpected argument \"%1\"").arg(arguments.at(expected.most))};
    if (arguments.size() < expected.least)
        throw Misuse{QStringLiteral("expected %1").arg(expected.shown)};
    if (arguments.contains(QString()))
        throw Misuse{QStringLiteral("expected %1, not an empty argument").arg(expected.shown)};
    for (const Option& option : command.options) {
        if (option.isRequired && !IsSet(option.name))
            throw Misuse{QStringLiteral("expected %1 %2").arg(ShortestName(option), option.value)};
    }
}

} // namespace AnimText::cli
