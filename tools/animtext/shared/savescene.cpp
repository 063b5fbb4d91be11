#include "animtext/shared/savescene.h"

#include "cli/output.h"

#include <QFileInfo>

namespace AnimText {

void EndSaving(Storing storing, const Stored& stored, const QString& error)
{
    if (storing == Storing::Misread)
        throw Misuse{error};
    if (storing != Storing::Saved)
        throw Failure{storing == Storing::Refused ? BadInput : FailedRun, error};
    if (!stored.doubt.isEmpty())
        Warn("kept old data files: " + stored.doubt);
}

QPair<Scene, Place> ChangeText(const CommandLine& line, const TextChange& change)
{
    const QString path = line.Arguments().at(0);
    if (!QFileInfo::exists(path))
        throw Failure{BadInput, path + ": no such file"};
    QString error;
    Stored stored;
    Place place;
    const auto changeText = [&](Scene* scene, DataFiles*, QString* why) {
        return scene->Find(line.Arguments().at(1), &place, why) && change(scene, place, why);
    };
    const Storing storing = ChangeScene(path, changeText, &error, &stored);
    EndSaving(storing, stored, error);
    return {stored.scene, place};
}

} // namespace AnimText
