#include "cli/manual.h"

#include "cli/output.h"
#include "files/wholefile.h"

#include <QDir>

namespace AnimText {

namespace {

/** Text of which the formatter changes nothing. */
QByteArray Plain(QByteArray text)
{
    text.replace("\\", "\\e").replace("-", "\\-");
    // These begin a request at the start of a line.
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
    if (*command.arguments)
        text += ' ' + Italic(command.arguments);
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
    text += '\n' + Plain(option.help);
    if (option.standard)
        text += " [" + Plain(option.standard) + ']';
    return text + '\n';
}

QByteArray References(const QVector<QByteArray>& pages)
{
    // Names are not broken at their hyphens.
    QByteArray text = ".SH SEE ALSO\n.nh\n.ad l\n";
    for (const QByteArray& page : pages)
        text += (page == pages.first() ? "" : ",\n") + Bold(page) + "(1)";
    return text + '\n';
}

} // namespace

QByteArray ManualOverview(const QVector<Command>& commands)
{
    QByteArray text = Head("animtext", "animated text for signs, authored and played on a desk") +
                      ".SH SYNOPSIS\n" + Bold("animtext") + ' ' + Italic("COMMAND") +
                      " [options]\n"
                      ".SH DESCRIPTION\n"
                      "Authors, plays and looks into scenes: texts that come in with an effect, "
                      "stand and follow one another, or scroll.\n"
                      "A scene is a JSON file beside its data files. It is played by the plugin "
                      "that runs on the sign, so what is written and shown here is what the sign "
                      "shows; no display is needed.\n"
                      ".SH COMMANDS\n";
    QVector<QByteArray> pages;
    for (const Command& command : commands) {
        text += ".TP\n" + Bold(command.name) + '\n' + Plain(command.summary) + '\n';
        pages.append(PageName(command));
    }
    const auto example = [](const char* words, const char* what) {
        return QByteArray(".PP\n") + what + "\n.PP\n.EX\n" + Plain(words) + "\n.EE\n";
    };
    return text + ".PP\n" + Bold("animtext help") + ' ' + Italic("COMMAND") +
           " tells the options of a command; so does its manual page.\n"
           ".SH ENVIRONMENT\n"
           ".TP\n" +
           Bold("ANIMATIONTEXT_PLUGIN") + "\nThe plugin library that plays scenes where no " +
           Bold("--plugin") +
           " names one, in place of the one that was installed with this program.\n"
           ".TP\n" +
           Bold("ANIMATIONTEXT_PICTURES") +
           "\nThe folder with the pictures Frog1.png to Frog5.png that two of the effects show, in "
           "place of those that were installed with this program.\n"
           ".SH EXIT STATUS\n"
           ".TP\n0\nThe command did what it was asked for.\n"
           ".TP\n1\nIt could not, say because a disk was full; standard error tells why.\n"
           ".TP\n2\nThe words of the command line or a scene are wrong; standard error tells "
           "which, where, and what was expected.\n"
           ".SH EXAMPLES\n" +
           example("animtext author --text \"Platform 4\" --effect SwingEffect -o sign.json",
                   "A text that swings in, as a scene:") +
           example("animtext render sign.json -o sign.gif", "The same as a film:") +
           example("animtext validate sign.json", "Whether the sign will show what was meant:") +
           References(pages);
}

QByteArray ManualPage(const Command& command)
{
    QByteArray text = Head(PageName(command), command.summary) + Synopsis(command) +
                      ".SH DESCRIPTION\n" + Plain(command.description) + "\n.SH OPTIONS\n";
    for (const Option& option : command.options)
        text += Item(option);
    return text + References({"animtext"});
}

void WriteManual(const QVector<Command>& commands, const QString& folder)
{
    const auto write = [&folder](const QByteArray& name, const QByteArray& page) {
        const QString path = QDir(folder).filePath(QString::fromLatin1(name) + QLatin1String(".1"));
        QString error;
        if (!WriteWhole(path, page, &error))
            throw Failure{FailedRun, error};
    };
    QString error;
    if (!MakeFolder(folder, &error))
        throw Failure{FailedRun, error};
    write("animtext", ManualOverview(commands));
    for (const Command& command : commands)
        write(PageName(command), ManualPage(command));
}

} // namespace AnimText
