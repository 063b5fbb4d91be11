#include "player/pngfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>

namespace AnimText {

namespace {

/** A name in @p folder that is no picture of a film; empty when there is none. */
QString ForeignFile(const QDir& folder)
{
    static const QRegularExpression frame(QStringLiteral("^frame-[0-9]{4,}\\.png$"));
    const QStringList names =
        folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        if (!frame.match(name).hasMatch())
            return name;
    }
    return QString();
}

} // namespace

PngFolder::PngFolder(const QString& path)
    : path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
{
}

bool PngFolder::Open(const FilmFormat&, QString* error)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isDir()) {
        *error = QStringLiteral("%1 is a file; give the folder another name").arg(path);
        return false;
    }
    const QString foreign = info.exists() ? ForeignFile(QDir(path)) : QString();
    if (!foreign.isEmpty()) {
        *error =
            QStringLiteral("%1 also holds %2; name an empty or a new folder").arg(path, foreign);
        return false;
    }
    const QString parent = info.absolutePath();
    folder = std::make_unique<QTemporaryDir>(parent + QStringLiteral("/.") + info.fileName() +
                                             QStringLiteral(".XXXXXX"));
    if (!folder->isValid()) {
        *error = QStringLiteral("no folder can be made in %1: %2")
                     .arg(parent, QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    return true;
}

bool PngFolder::Add(const QImage& picture, QString* error)
{
    const QString name =
        folder->filePath(QStringLiteral("frame-%1.png").arg(frames, 4, 10, QLatin1Char('0')));
    if (!picture.save(name, "PNG")) {
        *error = QStringLiteral("%1 cannot be written").arg(name);
        return false;
    }
    ++frames;
    return true;
}

bool PngFolder::Finish(const std::function<bool()>&, QString* error)
{
    // A temporary folder is nobody else's; the one that people asked for is as theirs are.
    const mode_t mask = umask(0);
    umask(mask);
    chmod(QFile::encodeName(folder->path()).constData(), 0777 & ~mask);

    if (QFileInfo::exists(path) && !QDir(path).removeRecursively()) {
        *error = QStringLiteral("%1 cannot be replaced").arg(path);
        return false;
    }
    if (!QDir().rename(folder->path(), path)) {
        *error = QStringLiteral("%1 cannot be made").arg(path);
        return false;
    }
    folder->setAutoRemove(false);
    return true;
}

} // namespace AnimText
