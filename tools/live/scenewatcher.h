/**
 * @file
 * Notices when a scene changes on the disk.
 */
#ifndef ANIMTEXT_SCENEWATCHER_H
#define ANIMTEXT_SCENEWATCHER_H

#include "scene/scene.h"

#include <QFileSystemWatcher>
#include <QMap>
#include <QObject>
#include <QTimer>

namespace AnimText {

/**
 * Watches a scene file and its data files, and their folders, so that a file that takes another's
 * place, or comes back, is noticed as well.
 */
class SceneWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SceneWatcher(QObject* parent = nullptr);

    /**
     * Watches @p scene in place of what was watched. A change since the last Changed() is not lost:
     * what was watched before is compared with what it was then.
     */
    void Watch(const Scene& scene);
    /** Takes the files as they are now for known, say after writing them. */
    void Accept();

signals:
    /** Once for changes that come together, when they have come to rest. */
    void Changed();

private:
    void Compare();
    void WatchAll();

    QFileSystemWatcher watcher;
    QTimer rest;
    QMap<QString, QString> files; // full names, and by what a file is known from another
};

} // namespace AnimText

#endif
