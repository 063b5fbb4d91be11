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

bool WholeFolder::IsReplaceable(const QString& at, QString* error) const
{
    const QDir there(at);
    QString culprit = path;
    QString protection = WriteProtection(at);
    if (protection.isEmpty() && !there.isReadable())
        protection = "it cannot be read";
    const QStringList own = protection.isEmpty() ? ownFiles(there) : QStringList();
    for (int i = 0; i < own.size() && protection.isEmpty(); ++i) {
        culprit = there.filePath(own.at(i));
        protection = WriteProtection(culprit);
    }
    const QString foreign = protection.isEmpty() ? ForeignName(there, own) : QString();
    if (!protection.isEmpty())
        *error = CannotWrite(culprit, protection);
    else if (!foreign.isEmpty())
        *error = QStringLiteral("%1 has other contents, such as %2; choose a new or empty folder")
                     .arg(path, foreign);
    return protection.isEmpty() && foreign.isEmpty();
}

bool WholeFolder::Open(const OwnFiles& own, QString* error)
{
    ownFiles = own;
    const QFileInfo info(path);
    if (info.exists() && !info.isDir()) {
        *error = QStringLiteral("%1 is a file; choose another name for the folder").arg(path);
        return false;
    }
    if (info.exists() && info.canonicalFilePath() == QDir().canonicalPath()) {
        *error = path + " is the current folder, which cannot be replaced; choose another one";
        return false;
    }
    if (info.exists() && !IsReplaceable(path, error))
        return false;
    folder = std::make_unique<QTemporaryDir>(UnfinishedName(path));
    if (folder->isValid())
        return true;
    *error =
        QStringLiteral("cannot create a folder in %1: %2").arg(info.absolutePath(), SystemError());
    return false;
}

bool WholeFolder::Add(const QString& name, const QByteArray& content, QString* error)
{
    QFile file(folder->filePath(name));
    QDir().mkpath(QFileInfo(file).path());
    QString problem;
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        problem = file.errorString();
    else if (WriteAll(&file, content, &problem)) {
        bytes += content.size();
        return true;
    }
    *error = CannotWrite(path + QLatin1Char('/') + name, problem);
    return false;
}

bool WholeFolder::Finish(QString* error)
{
    const bool replaces = QFileInfo::exists(path);
    const QString old = folder->path() + ".old";
    if (replaces && !IsReplaceable(path, error))
        return false;
    if (replaces && std::rename(QFile::encodeName(path), QFile::encodeName(old)) != 0) {
        *error = QStringLiteral("%1 cannot be replaced: %2").arg(path, SystemError());
        return false;
    }
    if (!PutInPlace(folder->path(), path, 0777, error)) {
        if (replaces)
            QDir().rename(old, path);
        return false;
    }
    folder->setAutoRemove(false);
    if (replaces)
        RemoveOwn(QDir(old), ownFiles(QDir(old)));
    return true;
}

} // namespace AnimText::files
