#include "files/folderlock.h"

#include "files/wholefile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryFile>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

namespace AnimText::files {
namespace {

const int oldestLock = 30 * 1000; // ms; writing a scene takes far less
const int oldestNameless = 1000;  // ms; an owner writes its name into the lock at once
const int longestWait = 60 * 1000;
const unsigned long pause = 5; // ms between two tries; QLockFile's own pauses grow to seconds

/** Why a lock in @p folder failed. QLockFile does not say, so this tries to write a file. */
QString Cause(const QString& folder)
{
    QTemporaryFile probe(UnfinishedName(folder + "/lock"));
    const QString problem = probe.open() ? WriteAll(&probe, "\n") : probe.errorString();
    return problem.isEmpty() ? "it cannot be locked" : problem;
}

} // namespace

FolderLock::FolderLock(const QString& folder)
    : folder(folder)
    , file(folder + "/.animtext.lock")
{
}

void FolderLock::Take()
{
    QElapsedTimer waited;
    waited.start();
    while (true) {
        // An owner killed before it wrote its name leaves a lock without one.
        qint64 owner = 0;
        QString host;
        QString program;
        file.setStaleLockTime(file.getLockInfo(&owner, &host, &program) ? oldestLock
                                                                        : oldestNameless);
        if (file.tryLock(0))
            return;
        if (file.error() != QLockFile::LockFailedError)
            throw Failure{
                FailedRun,
                QStringLiteral("%1: cannot write to this folder: %2").arg(folder, Cause(folder))};
        FailUnless(waited.elapsed() <= longestWait,
                   folder + ": another program has locked this folder for a minute; if none is "
                            "running, remove .animtext.lock");
        QThread::msleep(pause);
    }
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

} // namespace AnimText::files
