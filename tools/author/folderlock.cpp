#include "author/folderlock.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

namespace AnimText {
namespace {

const int oldestLock = 30 * 1000; // ms; a scene is written in far less
const int longestWait = 60 * 1000;
const unsigned long pause = 5; // ms between two tries; QLockFile's own pauses grow to seconds

} // namespace

FolderLock::FolderLock(const QString& folder)
    : folder(folder)
    , file(folder + QStringLiteral("/.animtext.lock"))
{
    file.setStaleLockTime(oldestLock);
}

bool FolderLock::Take(QString* error)
{
    QElapsedTimer waited;
    waited.start();
    while (!file.tryLock(0)) {
        if (file.error() != QLockFile::LockFailedError) {
            *error = QStringLiteral("%1: nothing can be written into this folder").arg(folder);
            return false;
        }
        if (waited.elapsed() > longestWait) {
            *error = QStringLiteral("%1: another program has been writing here for a minute; if "
                                    "there is none, remove .animtext.lock")
                         .arg(folder);
            return false;
        }
        QThread::msleep(pause);
    }
    return true;
}

void FolderLock::Sync() const
{
    const int descriptor =
        open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}

} // namespace AnimText
