#include "player/pngfolder.h"

#include "player/stillfile.h"
#include "scene/wholefile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <thread>

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

bool PngFolder::Open(const FilmFormat& wanted, QString* error)
{
    format = wanted;
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
    folder = std::make_unique<QTemporaryDir>(UnfinishedName(path));
    if (!folder->isValid()) {
        *error = QStringLiteral("no folder can be made in %1: %2")
                     .arg(info.absolutePath(), QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    return true;
}

bool PngFolder::Add(int frame, const QImage& picture, QString* error)
{
    if (!lastPng.valid() || picture != last) {
        last = picture;
        lastPng = std::async(std::launch::async, PngOf, picture, format.transparent,
                             PngEffort::Fast).share();
    }
    waiting.push_back({frame, lastPng});
    return waiting.size() <= std::max(1U, std::thread::hardware_concurrency()) || WriteNext(error);
}

bool PngFolder::WriteNext(QString* error)
{
    const Page page = waiting.front();
    waiting.pop_front();
    const QByteArray png = page.png.get();
    const int digits = std::max(4, QString::number(format.firstFrame + format.frames - 1).size());
    const QString name =
        QStringLiteral("frame-%1.png").arg(page.frame, digits, 10, QLatin1Char('0'));
    QFile file(folder->filePath(name));
    const bool whole = !png.isEmpty() && file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                       file.write(png) == png.size();
    if (!whole)
        *error = QStringLiteral("%1/%2 cannot be written: %3").arg(path, name, file.errorString());
    return whole;
}

bool PngFolder::Finish(QString* error)
{
    while (!waiting.empty()) {
        if (!WriteNext(error))
            return false;
    }
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
