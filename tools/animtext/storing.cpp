#include "animtext/storing.h"

#include "animtext/output.h"

namespace AnimText {

void StoreScene(const QString& path, const SceneChange& change)
{
    QString error;
    QString doubt;
    const Storing storing = ChangeScene(path, change, &error, &doubt);
    if (storing != Storing::Saved)
        throw Failure{storing == Storing::Refused ? BadInput : FailedRun, error};
    if (!doubt.isEmpty())
        Warn(QStringLiteral("old data files are kept: ") + doubt);
}

} // namespace AnimText
