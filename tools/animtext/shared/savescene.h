/**
 * @file
 * Changes of scene files, as the commands make them.
 */
#ifndef ANIMTEXT_SAVESCENE_H
#define ANIMTEXT_SAVESCENE_H

#include "author/scenestore.h"
#include "cli/commandline.h"

#include <functional>

namespace AnimText {

/** Changes the scene at @p path; throws Failure unless it was saved. @sa ChangeScene() */
void SaveScene(const QString& path, const SceneChange& change);

/** Changes one text; returns false with one line in @p error when it must not be saved. */
using TextChange = std::function<bool(Scene* scene, const Place& place, QString* error)>;

/**
 * Changes the text at the place that the second argument names, in the scene that the first names.
 * Throws Failure unless it was saved. @return the changed scene and the place
 */
QPair<Scene, Place> ChangeText(const CommandLine& line, const TextChange& change);

} // namespace AnimText

#endif
