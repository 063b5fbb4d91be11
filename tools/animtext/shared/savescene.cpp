#include "animtext/shared/savescene.h"

#include "cli/interruption.h"
#include "cli/output.h"

#include <QFileInfo>

namespace AnimText {

void SaveScene(const QString& path, const SceneChange& change)
{
    QString error;
    QString doubt;
    const Storing storing = ChangeScene(path, change, &error, &doubt);
    if (storing != Storing::Saved)
        throw Failure{storing == Storing::Refused ? BadInput : FailedRun, error};
    if (!doubt.isEmpty())
        Warn(QStringLiteral("kept old data files: ") + doubt);
}

QPair<Scene, Place> ChangeText(const CommandLine& line, const TextChange& change)
{
    const QString path = line.Arguments().at(0);
    if (!QFileInfo::exists(path))
        throw Failure{BadInput, path + QStringLiteral(": no such file")};
    WatchForInterruption();
    QPair<Scene, Place> changed;
    SaveScene(path, [&](Scene* scene, DataFiles*, QString* error) {
        const bool isDone = scene->Find(line.Arguments().at(1), &changed.second, error) &&
                            change(scene, changed.second, error);
        changed.first = *scene;
        return isDone;
    });
    return changed;
}

} // namespace AnimText
