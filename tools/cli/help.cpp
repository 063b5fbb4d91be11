#include "cli/help.h"

#include <algorithm>

namespace AnimText {

namespace {

constexpr int lineLength = 80;

/** @p text in lines, each but the first after @p indent blanks. */
QString Wrapped(const QString& text, int indent)
{
    QString wrapped;
    int column = indent;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        if (column > indent && column + 1 + word.size() > lineLength) {
            wrapped += QLatin1Char('\n') + QString(indent, QLatin1Char(' '));
            column = indent;
        } else if (column > indent) {
            wrapped += QLatin1Char(' ');
            ++column;
        }
        wrapped += word;
        column += word.size();
    }
    return wrapped;
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
    QByteArray text =
        "Animated text: authors, plays and looks into scenes on an emulated display.\n"
        "\nUsage: animtext COMMAND [options]\n\nCommands:\n";
    for (const Command& command : commands)
        text += "  " + QByteArray(command.name).leftJustified(12) + command.summary + '\n';
    return text + "\nanimtext help COMMAND tells the options of a command.\n"
                  "The plugin is taken from --plugin, else from the environment variable\n"
                  "ANIMATIONTEXT_PLUGIN, else it is the one installed with this program.\n";
}

QByteArray HelpText(const Command& command)
{
    QString usage = QStringLiteral("Usage: animtext ") + QLatin1String(command.name);
    for (const Option& option : command.options) {
        if (option.isRequired)
            usage +=
                QStringLiteral(" %1 %2").arg(ShortestName(option), QLatin1String(option.value));
    }
    usage += QStringLiteral(" [options] ") + QLatin1String(command.arguments);
    int width = 0;
    for (const Option& option : command.options)
        width = std::max(width, int(Names(option).size()) + 2);

    QString text = QStringLiteral("%1\n%2\n\nOptions:\n")
                       .arg(usage.trimmed(), Wrapped(QString::fromUtf8(command.description), 0));
    for (const Option& option : command.options) {
        QString help = QString::fromUtf8(option.help);
        if (option.standard)
            help += QStringLiteral(" [%1]").arg(QString::fromUtf8(option.standard));
        text += Names(option).leftJustified(width) + Wrapped(help, width) + QLatin1Char('\n');
    }
    return text.toUtf8();
}

} // namespace AnimText
