#include "cli/help.h"

#include "cli/output.h"
#include "files/wholefile.h"

#include <QDir>

namespace AnimText::cli {

namespace {

/** @p text escaped for the formatter. */
QByteArray Plain(QByteArray text)
{
    text.replace("\\", "\\e").replace("-", "\\-");
    // At the start of a line these begin a request.
    return text.startsWith('.') || text.startsWith('\'') ? "\\&" + text : text;
}

QByteArray Bold(const QByteArray& text)
{
    return "\\fB" + Plain(text) + "\\fR";
}

QByteArray Italic(const QByteArray& text)
{
    return text.isEmpty() ? text : "\\fI" + Plain(text) + "\\fR";
}

QByteArray PageName(const Command& command)
{
    return QByteArray("animtext-") + command.name;
}

QByteArray Head(const QByteArray& name, const QByteArray& summary)
{
    return ".TH " + Plain(name.toUpper()) +
           " 1 \"\" \"Animated Text " ANIMTEXT_VERSION "\" \"User Commands\"\n.SH NAME\n" +
           Plain(name) + " \\- " + Plain(summary) + '\n';
}

QByteArray Synopsis(const Command& command)
{
    QByteArray text = ".SH SYNOPSIS\n" + Bold(QByteArray("animtext ") + command.name);
    for (const Option& option : command.options) {
        if (option.isRequired)
            text += ' ' + Bold(ShortestName(option).toUtf8()) + ' ' + Italic(option.value);
    }
    text += " [options]";
    if (*command.arguments.shown)
        text += ' ' + Italic(command.arguments.shown);
    return text + '\n';
}

QByteArray Item(const Option& option)
{
    QByteArray text = ".TP\n";
    if (option.letter)
        text += Bold(QByteArray("-") + option.letter) + ", ";
    text += Bold(QByteArray("--") + option.name);
    if (*option.value)
        text += option.alone ? " [" + Italic(option.value) + ']' : ' ' + Italic(option.value);
    return text + '\n' + Plain(HelpWithDefault(option).toUtf8()) + '\n';
}

QByteArray Examples(const QVector<const char*>& examples)
{
    QByteArray text = ".SH EXAMPLES\n.EX\n";
    for (const char* example : examples)
        text += Plain(example) + '\n';
    return text + ".EE\n";
}

QByteArray References(const QVector<QByteArray>& pages)
{
    // No line breaks at the hyphens of names.
    QByteArray text = ".SH SEE ALSO\n.nh\n.ad l\n";
    for (const QByteArray& page : pages)
        text += (page == pages.first() ? "" : ",\n") + Bold(page) + "(1)";
    return text + '\n';
}

QByteArray ManualOverview(const QVector<Command>& commands)
{
    QByteArray text =
        Head("animtext", "create, play and check animated text for signs") + ".SH SYNOPSIS\n" +
        Bold("animtext") + ' ' + Italic("COMMAND") +
        " [options]\n"
        ".SH DESCRIPTION\n"
        "Creates, plays and checks scenes: texts that enter with an effect and are "
        "held page by page, or that scroll.\n"
        "A scene is a JSON file with its data files beside it. The plugin that runs on "
        "the sign plays it, so windows and films show what the sign will show. No "
        "sign is needed.\n"
        ".SH COMMANDS\n";
    QVector<QByteArray> pages;
    for (const Command& command : commands) {
        text += ".TP\n" + Bold(command.name) + '\n' + Plain(command.summary) + '\n';
        pages.append(PageName(command));
    }
    return text + ".PP\n" + Bold("animtext help") + ' ' + Italic("COMMAND") +
           " shows the options of a command and examples, as does its man page.\n"
           ".SH ENVIRONMENT\n"
           ".TP\n" +
           Bold("ANIMATIONTEXT_PLUGIN") + "\nThe plugin library. " + Bold("--plugin") +
           " takes precedence. Default: the installed one.\n"
           ".TP\n" +
           Bold("ANIMATIONTEXT_PICTURES") +
           "\nThe folder with Frog1.png to Frog5.png, which two effects show. Default: the "
           "installed one.\n"
           ".SH EXIT STATUS\n"
           ".TP\n0\nSuccess.\n"
           ".TP\n1\nThe command failed, for example because a disk was full.\n"
           ".TP\n2\nThe command line or a scene is wrong. Standard error says what is wrong, "
           "where, and what was expected.\n" +
           Examples({"animtext author --text \"Platform 4\" --effect SwingEffect -o sign.json",
                     "animtext render sign.json -o sign.gif", "animtext validate sign.json"}) +
           References(pages);
}

QByteArray ManualPage(const Command& command)
{
    QByteArray text = Head(PageName(command), command.summary) + Synopsis(command) +
                      ".SH DESCRIPTION\n" + Plain(command.description) + "\n.SH OPTIONS\n";
    for (const Option& option : command.options)
        text += Item(option);
    return text + Examples(command.examples) + References({"animtext"});
}

} // namespace

void WriteManual(const QVector<Command>& commands, const QString& folder)
{
    const QDir dir(folder);
    files::MakeFolder(folder);
    files::WriteWhole(dir.filePath("animtext.1"), ManualOverview(commands));
    for (const Command& command : commands)
        files::WriteWhole(dir.filePath(PageName(command) + ".1"), ManualPage(command));
}

} // namespace AnimText::cli
