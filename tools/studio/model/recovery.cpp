#include "studio/model/recovery.h"

#include "files/wholefile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>

namespace AnimText::studio::model {
namespace {

constexpr int delayLength = 500; // milliseconds from a change to its copy
const QString lockName = "lock";
const QString sceneName = "scene.json";
const QString aboutName = "about.json";

/** Unlike a saved scene, a copy may have errors. Data files are written before the scene. */
bool WriteCopy(const Sign& sign, const QString& path, const QString& folder)
{
    const QDir dir(folder);
    const QString scenePath = dir.filePath(sceneName);
    author::DataFiles files;
    const scene::Scene scene = SceneToSave(sign, scenePath, &files);
    const QJsonObject about{{"path", path}};
    files.insert(aboutName, QJsonDocument(about).toJson());
    try {
        for (auto file = files.begin(); file != files.end(); ++file)
            files::WriteWhole(dir.filePath(file.key()), file.value());
        files::WriteWhole(scenePath, scene::SceneToJson(scene));
    } catch (const files::Failure&) {
        return false;
    }
    for (const QString& name : dir.entryList({"*.path", "*.descent"})) {
        if (!files.contains(name))
            QFile::remove(dir.filePath(name));
    }
    return true;
}

} // namespace

Recovery::Recovery(Document* document, const QString& below)
    : document(document)
    , root(!below.isEmpty()
               ? below
               : QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/recovery")
    , folder(root + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::WithoutBraces))
    , lock(QDir(folder).filePath(lockName))
{
    QDir().mkpath(folder);
    lock.setStaleLockTime(0);
    lock.tryLock();
    delay.setSingleShot(true);
    delay.setInterval(delayLength);
    pool.setMaxThreadCount(1);
    connect(document, &Document::Changed, this, &Recovery::Look);
    connect(document, &Document::StateChanged, this, &Recovery::Look);
    connect(&delay, &QTimer::timeout, this, &Recovery::Keep);
}

Recovery::~Recovery()
{
    pool.waitForDone();
    lock.unlock();
    QDir(folder).removeRecursively();
}

void Recovery::Look()
{
    if (document->IsModified()) {
        if (!delay.isActive())
            delay.start();
        return;
    }
    delay.stop();
    if (!taken.isEmpty())
        pool.start([older = taken] { QDir(older).removeRecursively(); });
    taken.clear();
    pool.start([at = folder] { QFile::remove(QDir(at).filePath(sceneName)); });
}

void Recovery::Keep()
{
    if (!document->Current().IsLaidOut())
        return; // called again when it is
    pool.start([this, sign = document->Current(), path = document->Path(), older = taken] {
        if (!WriteCopy(sign, path, folder))
            return;
        if (!older.isEmpty())
            QDir(older).removeRecursively();
        QMetaObject::invokeMethod(this, &Recovery::Kept);
    });
    taken.clear();
}

void Recovery::TakeOver(const LostWork& work)
{
    document->Recover(work.sign, work.path);
    taken = work.folder; // set last: opening the sign has called Look()
}

QList<LostWork> Recovery::Find() const
{
    QList<LostWork> found;
    const QDir all(root);
    for (const QString& name : all.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir dir(all.filePath(name));
        if (dir.path() == folder)
            continue;
        QLockFile itsLock(dir.filePath(lockName));
        itsLock.setStaleLockTime(0);
        if (!itsLock.tryLock())
            continue; // its studio is still running
        LostWork work;
        work.folder = dir.path();
        const QString scenePath = dir.filePath(sceneName);
        QString error;
        if (!ReadSign(scenePath, &work.sign, &error)) {
            itsLock.unlock();
            Drop(work);
            continue;
        }
        work.when = QFileInfo(scenePath).lastModified();
        QFile about(dir.filePath(aboutName));
        if (about.open(QIODevice::ReadOnly))
            work.path = QJsonDocument::fromJson(about.readAll()).object().value("path").toString();
        found.append(work);
    }
    std::sort(found.begin(), found.end(),
              [](const LostWork& a, const LostWork& b) { return a.when > b.when; });
    return found;
}

void Recovery::Drop(const LostWork& work)
{
    QDir(work.folder).removeRecursively();
}

} // namespace AnimText::studio::model
