/**
 * @file
 * Changing a scene and its data files so that nobody ever finds half of it.
 */
#ifndef ANIMTEXT_SCENESTORE_H
#define ANIMTEXT_SCENESTORE_H

#include "author/datafiles.h"
#include "scene/scene.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <functional>

namespace AnimText {

/** Content of new data files by name; they lie beside the scene. */
using DataFiles = QMap<QString, QByteArray>;

/**
 * Changes a scene, which is empty and has no display when the file is not there yet. Answers false,
 * with one line in the error, when it will not.
 */
using SceneChange = std::function<bool(Scene* scene, DataFiles* dataFiles, QString* error)>;

enum class Storing {
    Saved,
    Refused, ///< what was asked for cannot be, or what is there is no scene
    Failed,  ///< the disk did not take it
};

/**
 * Reads the scene at @p path, lets @p change work on it and writes it back, all in one step: other
 * writers in the folder wait. A symbolic link is followed; data files lie beside the file itself.
 *
 * Nothing is written that no tool could read, nor anything with mistakes that were not there
 * before. The name must end in ".json", and a file that is there and is no scene stays. The data
 * files come first, the scene last and at once: killed at any moment, what stands there is the old
 * scene or the new one, and its files are there. Data files that the replaced scene named, and the
 * new one does not, are removed where FindUnneeded() finds them so. Unless Saved, @p error has one
 * line on it and nothing new is left behind. Where something cannot be looked at, so that old data
 * files stay, @p doubt says what.
 */
Storing ChangeScene(const QString& path, const SceneChange& change, QString* error,
                    QString* doubt = nullptr);

/**
 * The data files in @p folder that no scene needs, such as those of a scene that was deleted or of
 * a writer that was killed. With @p removes they are deleted, while other writers wait. On failure
 * returns false with one line in @p error.
 */
bool TidyFolder(const QString& folder, bool removes, Unneeded* unneeded, QString* error);

} // namespace AnimText

#endif
