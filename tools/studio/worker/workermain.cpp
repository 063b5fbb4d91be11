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
    // Interrupting the studio is its own affair; a worker ends when its input does.
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    // What a plugin prints must not come between the answers.
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
            continue; // then it takes part as any other
    }
    int ownName = 1;
    QGuiApplication application(ownName, argv);
    return WorkerLoop(dispatcher, plugin, output).Run();
}

} // namespace AnimText
