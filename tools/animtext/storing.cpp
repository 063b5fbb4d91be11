#include "animtext/storing.h"

#include "animtext/output.h"

namespace AnimText {

void StoreScene(const QString& path, const SceneChange& change)
{
    QString error;
    const Storing storing = ChangeScene(path, change, &error);
    if (storing != Storing::Saved)
        throw Failure{storing == Storing::Refused ? BadInput : FailedRun, error};
}

} // namespace AnimText
