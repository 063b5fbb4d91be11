/**
 * @file
 * Notices when a scene changes on disk.
 */
#pragma once

#include "scene/scene.h"

#include <QFileSystemWatcher>
#include <QMap>
#include <QObject>
#include <QTimer>

namespace AnimText::live {

/**
 * Watches a scene file, its data files and their folders, so that it also notices files that are
 * replaced or come back.
 */
class SceneWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SceneWatcher(QObject* parent = nullptr);

    /**
     * Watches @p scene instead of the previous one. No change since the last Changed() is lost:
     * files that were watched before are compared with their previous state.
     */
    void Watch(const scene::Scene& scene);
    /** Accepts the files as they are now, for example after writing them. */
    void Accept();

signals:
    /** Emitted once for several changes, when no more follow. */
    void Changed();

private:
    void Compare();
    void WatchAll();

    QFileSystemWatcher watcher;
    QTimer rest;
    QMap<QString, QString> files; // full name, and Mark() of its state
};

} // namespace AnimText::live
