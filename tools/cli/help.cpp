#include "cli/help.h"

#include <algorithm>

namespace AnimText::cli {

namespace {

constexpr int lineLength = 80;

/** @p text in lines; each but the first begins with @p indent spaces. */
QString Wrapped(const QString& text, int indent)
{
    QStringList lines{QString()};
    for (const QString& word : text.split(QLatin1Char(' '))) {
        if (lines.last().isEmpty())
            lines.last() = word;
        else if (indent + lines.last().size() + 1 + word.size() > lineLength)
            lines.append(word);
        else
            lines.last() += QLatin1Char(' ') + word;
    }
    return lines.join(QLatin1Char('\n') + QString(indent, QLatin1Char(' ')));
}

QString Names(const Option& option)
{
    const QString letter = option.letter ? QStringLiteral("-%1, ").arg(QLatin1Char(option.letter))
                                         : QString(4, QLatin1Char(' '));
    const QString value = QString::fromLatin1(option.alone    ? " [%1]"
                                              : *option.value ? " %1"
                                                              : "%1")
                              .arg(QLatin1String(option.value));
    return QStringLiteral("  %1--%2%3").arg(letter, QLatin1String(option.name), value);
}

} // namespace

QByteArray Overview(const QVector<Command>& commands)
{
    QByteArray text = "Usage: animtext COMMAND [options]\nCreates, plays and checks animated-text "
                      "scenes.\n\nCommands:\n";
    for (const Command& command : commands)
        text += "  " + QByteArray(command.name).leftJustified(12) + command.summary + '\n';
    return text + "\nRun 'animtext help COMMAND' for its options and examples.\n";
}

QByteArray HelpText(const Command& command)
{
    QString usage = "Usage: animtext " + QLatin1String(command.name);
    for (const Option& option : command.options) {
        if (option.isRequired)
            usage += QStringLiteral(" %1 %2").arg(ShortestName(option), option.value);
    }
    usage += " [options] " + QLatin1String(command.arguments.shown);
    int width = 0;
    for (const Option& option : command.options)
        width = std::max(width, int(Names(option).size()) + 2);

    QString text = QStringLiteral("%1\n%2\n\nOptions:\n")
                       .arg(usage.trimmed(), Wrapped(QString::fromUtf8(command.description), 0));
    for (const Option& option : command.options) {
        text += Names(option).leftJustified(width) + Wrapped(HelpWithDefault(option), width) +
                QLatin1Char('\n');
    }
    text += "\nExamples:\n";
    for (const char* example : command.examples)
        text += QStringLiteral("  %1\n").arg(QString::fromUtf8(example));
    return text.toUtf8();
}

} // namespace AnimText::cli
