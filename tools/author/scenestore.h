/**
 * @file
 * Writing a scene with its data files so that nobody ever finds half of it.
 */
#ifndef ANIMTEXT_SCENESTORE_H
#define ANIMTEXT_SCENESTORE_H

#include "scene/scene.h"

#include <QByteArray>
#include <QMap>
#include <QString>

namespace AnimText {

/**
 * The name for a data file of the scene at @p scenePath: the scene's own, a digest of @p content
 * and
 * @p suffix. Other content has another name, so that a scene never meets the data of another one.
 */
QString DataFileName(const QString& scenePath, const QByteArray& content, const QString& suffix);

/**
 * Writes @p scene to its path and @p dataFiles (content by name) beside it. The data files come
 * first, the scene last and at once: killed at any moment, what stands there is the old scene
 * or the new one, and its files are there. Data files made by DataFileName() that the replaced
 * scene named and that no scene in the folder names any more are removed. On failure answers false
 * with one line in @p error and leaves nothing new behind.
 */
bool SaveScene(const Scene& scene, const QMap<QString, QByteArray>& dataFiles, QString* error);

} // namespace AnimText

#endif
