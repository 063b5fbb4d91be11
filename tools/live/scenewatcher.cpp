#include "live/scenewatcher.h"

#include "files/wholefile.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <sys/stat.h>

namespace AnimText::live {

namespace {

constexpr int restTime = 50; // milliseconds without a change

/** A string that changes when the file changes or is replaced; empty if there is no file. */
QString Mark(const QString& file)
{
    struct stat state = {};
    if (stat(QFile::encodeName(file).constData(), &state) != 0)
        return QString();
    return QStringLiteral("%1:%2:%3.%4")
        .arg(quint64(state.st_ino))
        .arg(qint64(state.st_size))
        .arg(qint64(state.st_mtim.tv_sec))
        .arg(qint64(state.st_mtim.tv_nsec));
}

} // namespace

SceneWatcher::SceneWatcher(QObject* parent)
    : QObject(parent)
{
    rest.setSingleShot(true);
    rest.setInterval(restTime);
    connect(&rest, &QTimer::timeout, this, &SceneWatcher::Compare);
    const auto wait = [this] { rest.start(); };
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, wait);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, wait);
}

void SceneWatcher::Watch(const scene::Scene& scene)
{
    QSet<QString> names{QFileInfo(scene.path).absoluteFilePath(),
                        QFileInfo(files::RealPath(scene.path)).absoluteFilePath()};
    for (const scene::SceneNode* node : scene.Nodes()) {
        for (const QString& file : node->files)
            names.insert(scene.FullName(file));
    }
    names.remove(QString());
    QMap<QString, QString> watched;
    for (const QString& name : names)
        watched.insert(name, files.value(name, Mark(name)));
    files = watched;
    WatchAll();
    rest.start();
}

void SceneWatcher::Accept()
{
    for (auto file = files.begin(); file != files.end(); ++file)
        *file = Mark(file.key());
}

/**
 * Called after every change: Qt no longer watches files that were replaced or, while links keep
 * them, goes on watching the old ones.
 */
void SceneWatcher::WatchAll()
{
    const QStringList old = watcher.files() + watcher.directories();
    if (!old.isEmpty())
        watcher.removePaths(old);
    QStringList paths;
    for (auto file = files.begin(); file != files.end(); ++file)
        paths << file.key() << QFileInfo(file.key()).absolutePath();
    if (!paths.isEmpty())
        watcher.addPaths(paths); // skips those that do not exist
}

void SceneWatcher::Compare()
{
    const QMap<QString, QString> before = files;
    WatchAll(); // first, so that no change falls between the look and the watch
    Accept();
    if (files != before)
        emit Changed();
}

} // namespace AnimText::live
