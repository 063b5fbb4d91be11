#include "studio/worker/workermain.h"

#include "studio/worker/workerloop.h"

#include <QGuiApplication>

#include <csignal>
#include <unistd.h>

namespace AnimText {
namespace {

constexpr int lowNiceness = 10;

} // namespace

int WorkerMain(int argc, char** argv)
{
    // Ctrl+C ends the studio; a worker ends with its input.
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    // The plugin's own output must not mix with the answers.
    const int output = dup(STDOUT_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);

    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    auto* dispatcher = new VirtualDispatcher;
    QCoreApplication::setEventDispatcher(dispatcher);
    QString plugin;
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--plugin") == 0 && i + 1 < argc)
            plugin = QString::fromLocal8Bit(argv[i + 1]);
        else if (qstrcmp(argv[i], "--no-haste") == 0 && nice(lowNiceness) == -1)
            continue; // handled with the next messages
    }
    int ownName = 1;
    QGuiApplication application(ownName, argv);
    return WorkerLoop(dispatcher, plugin, output).Run();
}

} // namespace AnimText
