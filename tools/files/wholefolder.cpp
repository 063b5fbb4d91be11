#include "files/wholefolder.h"

#include "files/wholefile.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <cstdio>

namespace AnimText::files {

namespace {

/** The first file below @p folder that is not in @p own, or empty. */
QString ForeignName(const QDir& folder, const QStringList& own)
{
    QSet<QString> known(own.begin(), own.end());
    for (const QString& name : own)
        known.insert(name.section(QLatin1Char('/'), 0, 0));
    QDirIterator entries(folder.path(),
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString name = folder.relativeFilePath(entries.next());
        if (entries.fileInfo().isSymLink() || !known.contains(name))
            return name;
    }
    return QString();
}

/** Removes @p own from @p folder, then the empty folders. */
void RemoveOwn(const QDir& folder, const QStringList& own)
{
    for (const QString& name : own) {
        QFile::remove(folder.filePath(name));
        if (name.contains(QLatin1Char('/')))
            folder.rmdir(name.section(QLatin1Char('/'), 0, -2));
    }
    folder.rmdir(folder.path());
}

} // namespace

WholeFolder::WholeFolder(const QString& path)
    : path(QDir::cleanPath(QFileInfo(RealPath(QDir::cleanPath(path))).absoluteFilePath()))
{
}

void WholeFolder::CheckReplaceable() const
{
    const QDir there(path);
    const auto check = [](const QString& name, const QString& problem) {
        FailUnless(problem.isEmpty(), CannotWrite(name, problem));
    };
    check(path, WriteProtection(path));
    check(path, there.isReadable() ? QString() : "it cannot be read");
    const QStringList own = ownFiles(there);
    for (const QString& name : own)
        check(there.filePath(name), WriteProtection(there.filePath(name)));
    const QString foreign = ForeignName(there, own);
    FailUnless(foreign.isEmpty(),
               QStringLiteral("%1 has other contents, such as %2; choose a new or empty folder")
                   .arg(path, foreign));
}

void WholeFolder::Open(const OwnFiles& own)
{
    ownFiles = own;
    const QFileInfo info(path);
    FailUnless(!info.exists() || info.isDir(),
               path + " is a file; choose another name for the folder");
    FailUnless(!info.exists() || info.canonicalFilePath() != QDir().canonicalPath(),
               path + " is the current folder, which cannot be replaced; choose another one");
    if (info.exists())
        CheckReplaceable();
    folder = std::make_unique<QTemporaryDir>(UnfinishedName(path));
    const QString problem = SystemError();
    FailUnless(
        folder->isValid(),
        QStringLiteral("cannot create a folder in %1: %2").arg(info.absolutePath(), problem));
}

void WholeFolder::Add(const QString& name, const QByteArray& content)
{
    QFile file(folder->filePath(name));
    QDir().mkpath(QFileInfo(file).path());
    const QString problem = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
                                ? WriteAll(&file, content)
                                : file.errorString();
    FailUnless(problem.isEmpty(), CannotWrite(path + QLatin1Char('/') + name, problem));
    bytes += content.size();
}

void WholeFolder::Finish()
{
    const bool replaces = QFileInfo::exists(path);
    const QString old = folder->path() + ".old";
    if (replaces) {
        CheckReplaceable();
        if (std::rename(QFile::encodeName(path), QFile::encodeName(old)) != 0)
            throw Failure{FailedRun,
                          QStringLiteral("%1 cannot be replaced: %2").arg(path, SystemError())};
    }
    try {
        PutInPlace(folder->path(), path, 0777);
    } catch (const Failure&) {
        if (replaces)
            QDir().rename(old, path);
        throw;
    }
    folder->setAutoRemove(false);
    if (replaces)
        RemoveOwn(QDir(old), ownFiles(QDir(old)));
}

} // namespace AnimText::files
