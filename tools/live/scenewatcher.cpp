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

/** Called after every change, because files that were replaced are no longer watched. */
void SceneWatcher::WatchAll()
{
    QStringList paths;
    for (auto file = files.begin(); file != files.end(); ++file)
        paths << file.key() << QFileInfo(file.key()).absolutePath();
    if (!paths.isEmpty())
        watcher.addPaths(paths); // skips those that are watched or do not exist
}

void SceneWatcher::Compare()
{
    const QMap<QString, QString> before = files;
    Accept();
    WatchAll();
    if (files != before)
        emit Changed();
}

} // namespace AnimText::live
