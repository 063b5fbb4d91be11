#include "gallery/galleryfolder.h"

#include "player/filmfile.h"
#include "scene/wholefile.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

namespace AnimText {

namespace {

// What a folder must hold to be taken for a gallery.
const char markFile[] = "gallery.js";

} // namespace

GalleryFolder::GalleryFolder(const QString& path)
    : path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
{
}

bool GalleryFolder::Open(QString* error)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isDir()) {
        *error = QStringLiteral("%1 is a file; give the folder another name").arg(path);
        return false;
    }
    if (info.exists() && !QDir(path).isEmpty() &&
        !QFileInfo::exists(path + QLatin1Char('/') + QLatin1String(markFile))) {
        *error = QStringLiteral("%1 holds other things; name an empty folder, a new one or an "
                                "older gallery")
                     .arg(path);
        return false;
    }
    folder = std::make_unique<QTemporaryDir>(UnfinishedName(path));
    if (folder->isValid())
        return true;
    *error = QStringLiteral("no folder can be made in %1: %2")
                 .arg(info.absolutePath(), QString::fromLocal8Bit(std::strerror(errno)));
    return false;
}

bool GalleryFolder::Add(const QString& name, const QByteArray& content, QString* error)
{
    QFile file(folder->filePath(name));
    if (QDir().mkpath(QFileInfo(file).path()) &&
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
        file.write(content) == content.size()) {
        bytes += content.size();
        return true;
    }
    *error = QStringLiteral("%1/%2 cannot be written: %3").arg(path, name, file.errorString());
    return false;
}

bool GalleryFolder::Finish(QString* error)
{
    const QString old = folder->path() + QStringLiteral(".old");
    const bool replaces = QFileInfo::exists(path);
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
