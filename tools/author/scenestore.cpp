#include "author/scenestore.h"

#include "author/folderlock.h"
#include "scene/wholefile.h"
#include "validate/validate.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace AnimText {
namespace {

const int digestLength = 16; // hexadecimal digits: no two texts of one folder will share them

bool Holds(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.size() == content.size() && file.open(QIODevice::ReadOnly) &&
           file.readAll() == content;
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

/** The data files that were made for the scene at @p path, also by writers that were killed. */
QStringList OwnDataFiles(const QString& path)
{
    static const QRegularExpression ours(
        QStringLiteral("\\.[0-9a-f]{%1}\\.(path|descent)$").arg(digestLength));
    const QString name = QFileInfo(path).completeBaseName();
    return QFileInfo(path)
        .dir()
        .entryList(QDir::Files)
        .filter(ours)
        .filter(QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(name) +
                                   QStringLiteral("\\.[^.]+\\.[^.]+$")));
}

/** Removes the data files @p candidates that no scene of @p folder names. */
void RemoveUnnamed(const QDir& folder, const QStringList& candidates)
{
    if (candidates.isEmpty())
        return;
    QStringList named;
    for (const QString& scene : folder.entryList({QStringLiteral("*.json")}, QDir::Files))
        named += NamedDataFiles(folder.filePath(scene));
    for (const QString& name : candidates) {
        if (!named.contains(name))
            QFile::remove(folder.filePath(name));
    }
}

/** The first mistake among @p after that is an error and not among @p before, or nothing. */
QString NewMistake(const QList<Finding>& before, const QList<Finding>& after)
{
    for (const Finding& finding : after) {
        const bool known = std::any_of(before.begin(), before.end(), [&](const Finding& old) {
            return old.mistake == finding.mistake && old.found == finding.found;
        });
        if (finding.GetRule().severity == Severity::Error && !known)
            return QStringLiteral("%1: found %2, expected %3")
                .arg(finding.place, finding.found, finding.expected);
    }
    return QString();
}

/** One change of one scene, under the lock of its folder. */
class Store
{
public:
    Store(const QString& path, const FolderLock& lock)
        : path(path)
        , folder(QFileInfo(path).dir())
        , lock(lock)
    {
    }

    Storing Change(const SceneChange& change, QString* error)
    {
        Scene scene;
        scene.path = path;
        // An empty file is where somebody made room for a scene.
        const bool isThere = QFileInfo(path).size() > 0;
        if (isThere && !ReadScene(path, &scene, error, MissingFiles::AreAccepted))
            return Storing::Refused;
        const QList<Finding> before = isThere ? ValidateScene(scene) : QList<Finding>();
        const QStringList filesBefore = NamedDataFiles(path);
        DataFiles dataFiles;
        if (!change(&scene, &dataFiles, error))
            return Storing::Refused;
        const Storing storing = Write(scene, before, dataFiles, error);
        if (storing == Storing::Saved) {
            lock.Sync();
            RemoveUnnamed(folder, filesBefore + OwnDataFiles(path));
        } else {
            for (const QString& file : made)
                QFile::remove(file);
        }
        return storing;
    }

private:
    Storing Write(const Scene& scene, const QList<Finding>& before, const DataFiles& dataFiles,
                  QString* error)
    {
        for (auto file = dataFiles.begin(); file != dataFiles.end(); ++file) {
            const QString place = folder.filePath(file.key());
            if (Holds(place, file.value()))
                continue;
            if (!QFileInfo::exists(place))
                made.append(place);
            if (!WriteWhole(place, file.value(), error))
                return Storing::Failed;
        }
        lock.Sync(); // the scene must not reach the disk before the files that it names

        const QByteArray json = SceneToJson(scene);
        Scene read;
        if (!ReadSceneText(json, path, &read, error, MissingFiles::AreErrors))
            return Storing::Refused;
        const QString mistake = NewMistake(before, ValidateScene(read));
        if (!mistake.isEmpty()) {
            *error = QStringLiteral("%1: %2").arg(path, mistake);
            return Storing::Refused;
        }
        return WriteWhole(path, json, error) ? Storing::Saved : Storing::Failed;
    }

    const QString path;
    const QDir folder;
    const FolderLock& lock;
    QStringList made; // files that were not there
};

} // namespace

QString DataFileName(const QString& scenePath, const QByteArray& content, const QString& suffix)
{
    const QByteArray digest = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
    return QFileInfo(scenePath).completeBaseName() + QLatin1Char('.') +
           QString::fromLatin1(digest.left(digestLength)) + QLatin1Char('.') + suffix;
}

Storing ChangeScene(const QString& path, const SceneChange& change, QString* error)
{
    const QString file = RealPath(path);
    const QFileInfo info(file);
    const QDir folder = info.dir();
    const auto refuse = [&](const QString& why) {
        *error = QStringLiteral("%1: %2").arg(path, why);
        return Storing::Refused;
    };
    if (info.isDir())
        return refuse(QStringLiteral("is a folder; a file name was expected"));
    if (info.suffix().toLower() != QLatin1String("json"))
        return refuse(QStringLiteral("expected a name that ends in .json"));
    if (!folder.exists())
        return refuse(QStringLiteral("there is no folder %1").arg(folder.path()));
    QString target;
    if (!FindTarget(path, &target, error))
        return Storing::Failed;
    FolderLock lock(folder.absolutePath());
    if (!lock.Take(error))
        return Storing::Failed;
    return Store(file, lock).Change(change, error);
}

} // namespace AnimText
