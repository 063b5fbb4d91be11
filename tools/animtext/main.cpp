#include "animtext/commands.h"
#include "cli/commandline.h"
#include "cli/help.h"
#include "cli/interruption.h"
#include "cli/manual.h"
#include "cli/messages.h"
#include "player/virtualdispatcher.h"
#include "scene/suggest.h"

#include <QFile>
#include <QGuiApplication>
#include <QStandardPaths>
#if QT_VERSION < 0x060000
#include <QTextCodec>
#endif

#include <unistd.h>

namespace {

using namespace AnimText;

const QStringList shells{"bash", "zsh", "fish"};

const QVector<Command>& Commands();

QStringList CommandNames()
{
    QStringList names;
    for (const Command& command : Commands())
        names.append(QLatin1String(command.name));
    return names;
}

const Command& FindCommand(const QString& name)
{
    for (const Command& command : Commands()) {
        if (name == QLatin1String(command.name))
            return command;
    }
    throw Misuse{
        QStringLiteral("unknown command \"%1\"%2").arg(name, DidYouMean(name, CommandNames()))};
}

int Help(const CommandLine& line)
{
    if (line.IsSet("man")) {
        WriteManual(Commands(), line.Value("man"));
        return Done;
    }
    const QString name = line.Arguments().value(0);
    Print(name.isEmpty() ? Overview(Commands()) : HelpText(FindCommand(name)));
    return Done;
}

int Complete(const CommandLine& line)
{
    const QString shell = line.Arguments().first();
    if (!shells.contains(shell))
        throw Misuse{QStringLiteral("unknown shell \"%1\"; expected bash, zsh or fish").arg(shell)};
    Print(shell == "bash"  ? CompletionForBash(Commands())
          : shell == "zsh" ? CompletionForZsh(Commands())
                           : CompletionForFish(Commands()));
    return Done;
}

const QVector<Command>& Commands()
{
    static QVector<Command> commands;
    if (commands.isEmpty()) {
        const Command completion{
            "completion",
            "print a completion script for a shell",
            "bash|zsh|fish",
            1,
            1,
            "Prints a completion script for bash, zsh or fish. A comment at its top says how to "
            "load it.",
            {},
            Complete,
            {"source <(animtext completion bash)", "animtext completion zsh >_animtext"},
            shells};
        commands = {AuthorCommand(),   ListCommand(),   SetCommand(),     RemoveCommand(),
                    TidyCommand(),     PlayCommand(),   RenderCommand(),  SheetCommand(),
                    GalleryCommand(),  TraceCommand(),  CompareCommand(), DurationCommand(),
                    ValidateCommand(), SchemaCommand(), EffectsCommand(), FontsCommand(),
                    completion};
        Command help{
            "help",
            "show help for a command",
            "[COMMAND]",
            0,
            1,
            "Shows what a command does, its options and examples.",
            {Option::File("man", "FOLDER", "Write the man pages of all commands to a folder.")},
            Help,
            {"animtext help render", "animtext help --man man"},
            CommandNames()};
        commands.append(help);
        for (Command& command : commands)
            command.options.append(Option::Flag("help", "Show this help.").Letter('h'));
    }
    return commands;
}

int Run(QString name, const QStringList& words)
{
    if (name.isEmpty())
        throw Misuse{QStringLiteral("expected a command")};
    if (name == QLatin1String("--version")) {
        Print("animtext " ANIMTEXT_VERSION "\n");
        return Done;
    }
    if (name == QLatin1String("--help") || name == QLatin1String("-h"))
        name = QStringLiteral("help");
    const Command& command = FindCommand(name);
    try {
        const CommandLine line(command, words);
        if (!line.IsSet("help"))
            return command.run(line);
        Print(HelpText(command));
        return Done;
    } catch (const Misuse& misuse) {
        throw Failure{BadInput, QStringLiteral("%1 (see animtext help %2)")
                                    .arg(misuse.message, QLatin1String(command.name))};
    }
}

int RunAndReport(const QStringList& words)
{
    try {
        const int status = Run(words.value(0), words.mid(1));
        FlushOutput();
        return status;
    } catch (const Misuse& misuse) {
        Warn(misuse.message + QStringLiteral(" (see animtext help)"));
        return BadInput;
    } catch (const Failure& failure) {
        Warn(failure.message);
        return Interrupted() ? InterruptionStatus() : failure.status;
    }
}

} // namespace

int main(int argc, char** argv)
{
    InstallMessages();
    EndAtInterruption();
#if QT_VERSION < 0x060000
    // File names are UTF-8 even where no locale is set, as in containers.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
    // QGuiApplication gets no arguments: it would take some of them, such as --plugin.
    QStringList words;
    for (int i = 1; i < argc; ++i) {
        // A byte order mark is a character of a text; Qt drops it at the beginning.
        words.append(QString::fromUtf8(QByteArray(argv[i]).prepend('-')).mid(1));
        if (words.last().toUtf8() != argv[i]) {
            Warn(QStringLiteral("%1: expected UTF-8").arg(words.last()));
            return BadInput;
        }
    }
    // PlayLive() makes its own application. No other command shows a window, so none may
    // fail without a display or depend on the desktop's theme.
    if (words.value(0) == QLatin1String("play"))
        return RunAndReport(words);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    QCoreApplication::setEventDispatcher(new VirtualDispatcher);
    int ownName = 1;
    QGuiApplication application(ownName, argv);
    // Without XDG_RUNTIME_DIR Qt makes a folder in TMPDIR, which nothing here needs.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        rmdir(QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)));
    QCoreApplication::setApplicationName(QStringLiteral("animtext"));
    return RunAndReport(words);
}
