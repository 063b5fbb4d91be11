#include "author/scenestore.h"

#include "files/folderlock.h"
#include "files/wholefile.h"
#include "validate/validate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace AnimText::author {
namespace {

bool Holds(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.size() == content.size() && file.open(QIODevice::ReadOnly) &&
           file.readAll() == content;
}

/** The files that @p scene names in its own folder. */
QStringList NamedFiles(const scene::Scene& scene)
{
    const QDir folder = QFileInfo(scene.path).absoluteDir();
    QStringList names;
    for (const scene::SceneNode* node : scene.Nodes()) {
        for (const QString& file : node->files) {
            const QFileInfo info(scene.FullName(file));
            if (info.dir() == folder)
                names.append(info.fileName());
        }
    }
    return names;
}

/** The first error in @p after that is not in @p before, or empty. */
QString NewMistake(const QList<validate::Finding>& before, const QList<validate::Finding>& after)
{
    for (const validate::Finding& finding : after) {
        const bool known =
            std::any_of(before.begin(), before.end(), [&](const validate::Finding& old) {
                return old.mistake == finding.mistake && old.found == finding.found;
            });
        if (finding.GetRule().severity == validate::Severity::Error && !known)
            return QStringLiteral("%1: found %2, expected %3")
                .arg(finding.place, finding.found, finding.expected);
    }
    return QString();
}

/** One change of one scene, under the lock of its folder. */
struct Store
{
    const QString path;
    const files::FolderLock& lock;
    Stored* const stored;
    QString* const error;
    const QDir folder = QFileInfo(path).dir();
    QStringList made{}; // files that did not exist before, unless the scene was saved

    ~Store()
    {
        for (const QString& file : made)
            QFile::remove(file);
    }

    Storing Change(const SceneChange& change)
    {
        scene::Scene scene;
        scene.path = path;
        // An empty file counts as a new scene.
        const bool isThere = QFileInfo(path).size() > 0;
        if (isThere && !scene::ReadScene(path, &scene, error, scene::MissingFiles::AreAccepted))
            return Storing::Refused;
        const QList<validate::Finding> before =
            isThere ? validate::ValidateScene(scene) : QList<validate::Finding>();
        QStringList replaced = NamedFiles(scene);
        DataFiles dataFiles;
        if (!change(&scene, &dataFiles, error))
            return Storing::Refused;
        const Storing storing = Write(scene, before, dataFiles);
        if (storing == Storing::Saved) {
            lock.Sync();
            for (const QString& name : NamedFiles(scene))
                replaced.removeAll(name);
            const Unneeded unneeded = FindUnneeded(folder, replaced);
            for (const QString& name : unneeded.names)
                QFile::remove(folder.filePath(name));
            stored->doubt = unneeded.doubt;
            made.clear();
        }
        return storing;
    }

    Storing Write(const scene::Scene& scene, const QList<validate::Finding>& before,
                  const DataFiles& dataFiles)
    {
        for (auto file = dataFiles.begin(); file != dataFiles.end(); ++file) {
            const QString place = folder.filePath(file.key());
            if (Holds(place, file.value()))
                continue;
            if (!QFileInfo::exists(place))
                made.append(place);
            files::WriteWhole(place, file.value());
        }
        lock.Sync(); // the scene must not reach the disk before the files that it names

        const QByteArray json = scene::SceneToJson(scene);
        if (!scene::ReadSceneText(json, path, &stored->scene, error,
                                  scene::MissingFiles::AreErrors))
            return Storing::Refused;
        stored->findings = validate::ValidateScene(stored->scene);
        const QString mistake = NewMistake(before, stored->findings);
        if (!mistake.isEmpty()) {
            *error = QStringLiteral("%1: %2").arg(path, mistake);
            return Storing::Refused;
        }
        files::WriteWhole(path, json);
        return Storing::Saved;
    }
};

} // namespace

Storing ChangeScene(const QString& path, const SceneChange& change, QString* error, Stored* stored)
{
    const QString file = files::RealPath(path);
    const QFileInfo info(file);
    const QDir folder = info.dir();
    const auto refuse = [&](const QString& why) {
        *error = QStringLiteral("%1: %2").arg(path, why);
        return Storing::Refused;
    };
    if (info.isDir())
        return refuse("is a folder; expected a file name");
    if (info.suffix().toLower() != "json")
        return refuse("expected a name that ends in .json");
    if (!folder.exists())
        return refuse(QStringLiteral("the folder %1 does not exist").arg(folder.path()));
    try {
        files::FindTarget(path);
        files::FolderLock lock(folder.absolutePath());
        lock.Take();
        Stored unused;
        return Store{file, lock, stored ? stored : &unused, error}.Change(change);
    } catch (const files::Failure& failure) {
        *error = failure.message;
        return Storing::Failed;
    }
}

QStringList TidyFolder(const QString& path, bool removes)
{
    const QDir folder(path);
    files::FailUnless(folder.exists() && folder.isReadable(),
                      path + ": expected a folder that can be read");
    files::FolderLock lock(folder.absolutePath());
    if (removes)
        lock.Take();
    const Unneeded unneeded = FindUnneeded(folder, DataFilesIn(folder));
    files::FailUnless(unneeded.doubt.isEmpty(),
                      "cannot tell which data files are unused: " + unneeded.doubt);
    for (const QString& name : removes ? unneeded.names : QStringList()) {
        QFile file(folder.filePath(name));
        if (!file.remove())
            throw files::Failure{files::FailedRun, QStringLiteral("%1 cannot be removed: %2")
                                                       .arg(file.fileName(), file.errorString())};
    }
    return unneeded.names;
}

} // namespace AnimText::author
