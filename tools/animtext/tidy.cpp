#include "animtext/commands.h"
#include "author/scenestore.h"
#include "cli/commandline.h"
#include "cli/interruption.h"

#include <QDir>

namespace AnimText {

namespace {

int Tidy(const CommandLine& line)
{
    const QString folder = line.Arguments().first();
    const bool removes = line.IsSet("remove");
    WatchForInterruption();
    Unneeded unneeded;
    QString error;
    if (!TidyFolder(folder, removes, &unneeded, &error))
        throw Failure{FailedRun, error};
    for (const QString& name : unneeded.names)
        Print((removes ? "removed " : "") + QDir(folder).filePath(name).toLocal8Bit() + '\n');
    return Done;
}

} // namespace

Command TidyCommand()
{
    return {"tidy",
            "lists data files that no scene needs",
            "FOLDER",
            1,
            1,
            "Lists the data files in a folder that animtext or the studio wrote and that no file "
            "names: not in the folder, nor in those directly below, nor in the one above. With "
            "--remove it deletes them. Scenes elsewhere are not searched. When a file there cannot "
            "be read, nothing is listed and nothing deleted.",
            {Option::Flag("remove", "Deletes these files.")},
            Tidy};
}

} // namespace AnimText
