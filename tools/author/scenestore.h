/**
 * @file
 * Changes a scene and its data files in one step.
 */
#pragma once

#include "author/datafiles.h"
#include "scene/scene.h"
#include "validate/validate.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <functional>

namespace AnimText::author {

/** Content of new data files by name, in the scene's folder. */
using DataFiles = QMap<QString, QByteArray>;

/**
 * Changes a scene. A new scene is empty and has no display. Returns false, with one line in @p
 * error, to refuse.
 */
using SceneChange = std::function<bool(scene::Scene* scene, DataFiles* dataFiles, QString* error)>;

enum class Storing {
    Saved,
    Misread, ///< the text to write cannot be read, see AuthorScene()
    Refused, ///< the change is not possible, or the file is not a scene
    Failed,  ///< writing failed
};

/** A scene that was saved. */
struct Stored
{
    scene::Scene scene;
    QList<validate::Finding> findings; ///< about it
    QString doubt; ///< if old data files were kept because a file could not be searched: which one
};

/**
 * Reads the scene at @p path, calls @p change and writes the scene back while other writers in the
 * folder wait. Follows symbolic links.
 *
 * Refuses to write a scene that cannot be read back or has new errors, a name that does not end in
 * ".json", and to replace a file that is not a scene. Data files are written first and the scene
 * last, in one step, so a killed process leaves the old scene or the new one, complete. Then
 * removes data files that only the old scene named, see FindUnneeded(). Unless Saved, @p error has
 * one line and nothing new is left.
 */
Storing ChangeScene(const QString& path, const SceneChange& change, QString* error,
                    Stored* stored = nullptr);

/**
 * Finds unused data files in @p folder, such as those of a deleted scene or a killed writer. With
 * @p removes, deletes them while other writers wait. Throws Failure.
 */
QStringList TidyFolder(const QString& folder, bool removes);

} // namespace AnimText::author
