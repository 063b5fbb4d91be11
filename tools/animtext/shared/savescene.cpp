#include "animtext/shared/savescene.h"

#include "cli/interruption.h"
#include "cli/output.h"

#include <QFileInfo>

namespace AnimText::animtext::shared {

void EndSaving(author::Storing storing, const author::Stored& stored, const QString& error)
{
    if (storing == author::Storing::Misread)
        throw cli::Misuse{error};
    if (storing != author::Storing::Saved)
        throw files::Failure{
            storing == author::Storing::Refused ? files::BadInput : files::FailedRun, error};
    if (!stored.doubt.isEmpty())
        cli::Warn("kept old data files: " + stored.doubt);
}

QPair<scene::Scene, scene::Place> ChangeText(const cli::CommandLine& line, const TextChange& change)
{
    const QString path = line.Arguments().at(0);
    files::FailUnless(QFileInfo::exists(path), path + ": no such file", files::BadInput);
    QString error;
    author::Stored stored;
    scene::Place place;
    const auto changeText = [&](scene::Scene* scene, author::DataFiles*, QString* why) {
        return scene->Find(line.Arguments().at(1), &place, why) && change(scene, place, why);
    };
    cli::WatchForInterruption(); // so that the change is made whole or not at all
    const author::Storing storing = author::ChangeScene(path, changeText, &error, &stored);
    EndSaving(storing, stored, error);
    return {stored.scene, place};
}

} // namespace AnimText::animtext::shared
