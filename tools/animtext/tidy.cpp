#include "animtext/commands.h"
#include "author/scenestore.h"
#include "cli/commandline.h"
#include "cli/interruption.h"

#include <QDir>

namespace AnimText::animtext {

cli::Command TidyCommand()
{
    return {
        "tidy",
        "list data files that no scene uses",
        {"FOLDER", 1, 1},
        "Lists the data files in FOLDER that animtext or the studio wrote and that no other file "
        "names. It searches FOLDER, its subfolders (one level) and its parent folder; scenes "
        "elsewhere are not searched. If a file cannot be read, it lists and deletes nothing.",
        {Option::Flag("remove", "Delete the files.")},
        [](const cli::CommandLine& line) {
            const QString folder = line.Arguments().first();
            const QByteArray done = line.IsSet("remove") ? "removed " : "";
            cli::WatchForInterruption();
            for (const QString& name : author::TidyFolder(folder, line.IsSet("remove")))
                cli::Print(done + QDir(folder).filePath(name).toLocal8Bit() + '\n');
        },
        {"animtext tidy .", "animtext tidy --remove ."}};
}

} // namespace AnimText::animtext
