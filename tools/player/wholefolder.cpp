#include "player/wholefolder.h"

#include "player/filmfile.h"
#include "scene/wholefile.h"

#include <QFileInfo>

#include <cerrno>
#include <cstring>

namespace AnimText {

WholeFolder::WholeFolder(const QString& path)
    : path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
{
}

bool WholeFolder::Open(const std::function<QString(const QDir&)>& inTheWay, QString* error)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isDir()) {
        *error = QStringLiteral("%1 is a file; give the folder another name").arg(path);
        return false;
    }
    const QString foreign = info.exists() ? inTheWay(QDir(path)) : QString();
    if (!foreign.isEmpty()) {
        *error =
            QStringLiteral("%1 also holds %2; name an empty or a new folder").arg(path, foreign);
        return false;
    }
    folder = std::make_unique<QTemporaryDir>(UnfinishedName(path));
    if (folder->isValid())
        return true;
    *error = QStringLiteral("no folder can be made in %1: %2")
                 .arg(info.absolutePath(), QString::fromLocal8Bit(std::strerror(errno)));
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
    *error = QStringLiteral("%1/%2 cannot be written: %3").arg(path, name, problem);
    return false;
}

bool WholeFolder::Finish(QString* error)
{
    const bool replaces = QFileInfo::exists(path);
    const QString old = folder->path() + QStringLiteral(".old");
    if (replaces && !QDir().rename(path, old)) {
        *error = QStringLiteral("%1 cannot be replaced").arg(path);
        return false;
    }
    if (!PutInPlace(folder->path(), path, 0777, error)) {
        if (replaces)
            QDir().rename(old, path);
        return false;
    }
    folder->setAutoRemove(false);
    if (replaces)
        QDir(old).removeRecursively();
    return true;
}

} // namespace AnimText
