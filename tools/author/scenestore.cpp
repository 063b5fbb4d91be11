#include "author/scenestore.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringList>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace AnimText {
namespace {

const int digestLength = 16; // hexadecimal digits: no two texts of one folder will share them

/**
 * The folder of a scene, held by one writer at a time. The lock goes with the process, so a killed
 * writer leaves none. Where a file system knows no locks, writers merely take their chances.
 */
class FolderLock
{
public:
    explicit FolderLock(const QString& folder)
        : descriptor(
              open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        if (descriptor >= 0)
            flock(descriptor, LOCK_EX);
    }
    ~FolderLock()
    {
        if (descriptor >= 0)
            close(descriptor);
    }

    /** Names that were made, replaced or removed in the folder reach the disk. */
    void Sync() const
    {
        if (descriptor >= 0)
            fsync(descriptor);
    }

private:
    Q_DISABLE_COPY(FolderLock)

    const int descriptor;
};

bool Holds(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.size() == content.size() && file.open(QIODevice::ReadOnly) &&
           file.readAll() == content;
}

bool Write(const QString& path, const QByteArray& content, QString* error)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return true;
    *error = QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString());
    return false;
}

/** The data files of our own making that the scene file at @p path names; they lie beside it. */
QStringList NamedDataFiles(const QString& path)
{
    static const QRegularExpression ours(
        QStringLiteral("\"([^\"/\\\\]*\\.[0-9a-f]{%1}\\.(?:path|descent))\"").arg(digestLength));
    QFile file(path);
    QStringList names;
    if (!file.open(QIODevice::ReadOnly))
        return names;
    auto match = ours.globalMatch(QString::fromUtf8(file.readAll()));
    while (match.hasNext())
        names.append(match.next().captured(1));
    return names;
}

/** Removes the data files @p candidates that neither @p path nor another scene beside it names. */
void RemoveUnnamed(const QString& path, const QStringList& candidates)
{
    if (candidates.isEmpty())
        return;
    const QDir folder = QFileInfo(path).dir();
    QStringList named = NamedDataFiles(path);
    for (const QString& scene : folder.entryList({QStringLiteral("*.json")}, QDir::Files))
        named += NamedDataFiles(folder.filePath(scene));
    for (const QString& name : candidates) {
        if (!named.contains(name))
            QFile::remove(folder.filePath(name));
    }
}

} // namespace

QString DataFileName(const QString& scenePath, const QByteArray& content, const QString& suffix)
{
    const QByteArray digest = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
    return QFileInfo(scenePath).completeBaseName() + QLatin1Char('.') +
           QString::fromLatin1(digest.left(digestLength)) + QLatin1Char('.') + suffix;
}

bool SaveScene(const Scene& scene, const QMap<QString, QByteArray>& dataFiles, QString* error)
{
    const QString& path = scene.path;
    const QFileInfo info(path);
    const QDir folder = info.dir();
    if (info.isDir() || !folder.exists()) {
        *error = info.isDir()
                     ? QStringLiteral("%1: is a folder; a file name was expected").arg(path)
                     : QStringLiteral("%1: there is no folder %2").arg(path, folder.path());
        return false;
    }
    const FolderLock lock(folder.absolutePath());
    const QStringList before = NamedDataFiles(path);

    QStringList made;
    bool written = true;
    for (auto file = dataFiles.begin(); written && file != dataFiles.end(); ++file) {
        const QString place = folder.filePath(file.key());
        if (Holds(place, file.value()))
            continue;
        if (!QFileInfo::exists(place))
            made.append(place);
        written = Write(place, file.value(), error);
    }
    lock.Sync(); // the scene must not reach the disk before the files that it names
    if (!written || !Write(path, SceneToJson(scene), error)) {
        for (const QString& place : made)
            QFile::remove(place);
        return false;
    }
    lock.Sync();
    RemoveUnnamed(path, before);
    return true;
}

} // namespace AnimText
