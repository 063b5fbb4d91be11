#include "animtext/commands.h"
#include "cli/commandline.h"
#include "cli/help.h"
#include "cli/interruption.h"
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

const QVector<cli::Command>& Commands();

QStringList Names(const QVector<cli::Command>& commands)
{
    QStringList names;
    for (const cli::Command& command : commands)
        names.append(command.name);
    return names;
}

const cli::Command& FindCommand(const QString& name)
{
    for (const cli::Command& command : Commands()) {
        if (name == command.name)
            return command;
    }
    throw cli::Misuse{QStringLiteral("unknown command \"%1\"%2")
                          .arg(name, scene::DidYouMean(name, Names(Commands())))};
}

void Help(const cli::CommandLine& line)
{
    if (line.IsSet("man"))
        return cli::WriteManual(Commands(), line.Value("man"));
    const QString name = line.Arguments().value(0);
    cli::Print(name.isEmpty() ? cli::Overview(Commands()) : cli::HelpText(FindCommand(name)));
}

void Complete(const cli::CommandLine& line)
{
    cli::Print(cli::Completion(line.Arguments().first(), Commands()));
}

const QVector<cli::Command>& Commands()
{
    static const QVector<cli::Command> commands = [] {
        QVector<cli::Command> all{
            animtext::AuthorCommand(),
            animtext::ListCommand(),
            animtext::SetCommand(),
            animtext::RemoveCommand(),
            animtext::TidyCommand(),
            animtext::PlayCommand(),
            animtext::RenderCommand(),
            animtext::SheetCommand(),
            animtext::GalleryCommand(),
            animtext::TraceCommand(),
            animtext::CompareCommand(),
            animtext::DurationCommand(),
            animtext::ValidateCommand(),
            animtext::SchemaCommand(),
            animtext::EffectsCommand(),
            animtext::FontsCommand(),
            {"completion",
             "print a completion script for a shell",
             {"bash|zsh|fish", 1, 1, {"bash", "zsh", "fish"}},
             "Prints a completion script for bash, zsh or fish. A comment at its top says how to "
             "load it.",
             {},
             Complete,
             {"source <(animtext completion bash)", "animtext completion zsh >_animtext"}}};
        all.append({"help",
                    "show help for a command",
                    {"[COMMAND]", 0, 1, Names(all)},
                    "Shows what a command does, its options and examples.",
                    {cli::Option::File("man", "FOLDER",
                                       "Write the man pages of all commands to a folder.")},
                    Help,
                    {"animtext help render", "animtext help --man man"}});
        for (cli::Command& command : all)
            command.options.append(cli::Option::Flag("help", "Show this help.").Letter('h'));
        return all;
    }();
    return commands;
}

void Run(QString name, const QStringList& words)
{
    if (name.isEmpty())
        throw cli::Misuse{"expected a command"};
    if (name == QLatin1String("--version"))
        return cli::Print("animtext " ANIMTEXT_VERSION "\n");
    if (name == QLatin1String("--help") || name == QLatin1String("-h"))
        name = "help";
    const cli::Command& command = FindCommand(name);
    try {
        const cli::CommandLine line(command, words);
        if (!line.IsSet("help"))
            return command.run(line);
        cli::Print(cli::HelpText(command));
    } catch (const cli::Misuse& misuse) {
        throw files::Failure{files::BadInput,
                             QStringLiteral("%1 (see animtext help %2)")
                                 .arg(misuse.message, QLatin1String(command.name))};
    }
}

int RunAndReport(const QStringList& words)
{
    try {
        Run(words.value(0), words.mid(1));
        cli::FlushOutput();
        return files::Done;
    } catch (const cli::Misuse& misuse) {
        cli::Warn(misuse.message + " (see animtext help)");
        return files::BadInput;
    } catch (const files::Failure& failure) {
        if (!failure.message.isEmpty())
            cli::Warn(failure.message);
        return cli::Interrupted() ? cli::InterruptionStatus() : failure.status;
    }
}

} // namespace

int main(int argc, char** argv)
{
    cli::InstallMessages();
    cli::EndAtInterruption();
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
            cli::Warn(QStringLiteral("%1: expected UTF-8").arg(words.last()));
            return files::BadInput;
        }
    }
    // PlayLive() makes its own application. No other command shows a window, so none may
    // fail without a display or depend on the desktop's theme.
    if (words.value(0) == QLatin1String("play"))
        return RunAndReport(words);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    QCoreApplication::setEventDispatcher(new player::VirtualDispatcher);
    int ownName = 1;
    QGuiApplication application(ownName, argv);
    // Without XDG_RUNTIME_DIR Qt makes a folder in TMPDIR, which nothing here needs.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        rmdir(QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)));
    QCoreApplication::setApplicationName("animtext");
    return RunAndReport(words);
}
