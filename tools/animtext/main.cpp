#include "animtext/commandline.h"
#include "animtext/commands.h"
#include "animtext/messages.h"
#include "player/virtualdispatcher.h"
#include "scene/suggest.h"

#include <QGuiApplication>
#include <QTextCodec>

#include <cstdio>

namespace {

using namespace AnimText;

struct Command
{
    const char* name;
    int (*run)(const QStringList& words);
    const char* summary;
};

const Command commands[] = {
    {"author", RunAuthor, "lays a text out and writes the scene that shows it"},
    {"render", RunRender, "plays a scene and writes it as GIF, APNG, WebP, MP4, WebM or PNGs"},
    {"sheet", RunSheet, "draws a contact sheet, a row of frames for each scene"},
    {"trace", RunTrace, "prints what every tick gives the display, one JSON line each"},
    {"duration", RunDuration, "tells how long the host thinks a scene plays, and how long it does"},
    {"validate", RunValidate, "looks for mistakes in a scene"},
    {"soak", RunSoak, "plays scenes for hours of virtual time and tells what is left of it"},
    {"effects", RunEffects, "lists the entrance effects and scrolls"},
};

QByteArray Usage()
{
    QByteArray text =
        "Animated text: authors, plays and looks into scenes on an emulated display.\n"
        "\nUsage: animtext COMMAND [options]\n\nCommands:\n";
    for (const Command& command : commands)
        text += "  " + QByteArray(command.name).leftJustified(10) + command.summary + '\n';
    return text + "\nanimtext COMMAND --help tells the options of a command.\n"
                  "The plugin is taken from --plugin, else from the environment variable\n"
                  "ANIMATIONTEXT_PLUGIN, else from ../lib beside this program.\n";
}

QStringList CommandNames()
{
    QStringList names;
    for (const Command& command : commands)
        names.append(QString::fromLatin1(command.name));
    return names;
}

int Run(const QStringList& words)
{
    const QString name = words.value(0);
    if (name.isEmpty())
        return Fail(BadInput, QStringLiteral("expected a command (see animtext --help)"));
    if (name == QLatin1String("--help") || name == QLatin1String("-h") ||
        name == QLatin1String("help"))
        return Print(Usage()) ? Done : FailedRun;
    if (name == QLatin1String("--version"))
        return Print("animtext " ANIMTEXT_VERSION "\n") ? Done : FailedRun;
    for (const Command& command : commands) {
        if (name == QLatin1String(command.name))
            return command.run(words.mid(1));
    }
    return Fail(BadInput, QStringLiteral("there is no command \"%1\"%2 (see animtext --help)")
                              .arg(name, DidYouMean(name, CommandNames())));
}

} // namespace

int main(int argc, char** argv)
{
    InstallMessages();
    // Texts and file names come as UTF-8, also where no locale is set, as in containers.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setEventDispatcher(new VirtualDispatcher);
    // The words are ours alone: Qt would take some of them, --plugin for one, for itself.
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    int ownName = 1;
    QGuiApplication application(ownName, argv);
    QCoreApplication::setApplicationName(QStringLiteral("animtext"));
    const int status = Run(words);
    if (std::fflush(stdout) != 0 && status == Done)
        return Fail(FailedRun, QStringLiteral("the output cannot be written"));
    return status;
}
