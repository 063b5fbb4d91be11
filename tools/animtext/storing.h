/**
 * @file
 * Changes of scene files, as the commands make them.
 */
#ifndef ANIMTEXT_STORING_H
#define ANIMTEXT_STORING_H

#include "author/scenestore.h"

namespace AnimText {

/** Changes the scene at @p path; throws Failure unless it was saved. @sa ChangeScene() */
void StoreScene(const QString& path, const SceneChange& change);

} // namespace AnimText

#endif
