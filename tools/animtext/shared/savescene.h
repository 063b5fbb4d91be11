/**
 * @file
 * Changes scene files.
 */
#pragma once

#include "author/scenestore.h"
#include "cli/commandline.h"

#include <functional>

namespace AnimText::animtext::shared {

/** Throws Misuse or Failure with @p error unless a scene was saved; warns of files that were kept.
 */
void EndSaving(author::Storing storing, const author::Stored& stored, const QString& error);

/** Changes one text; returns false with one line in @p error to refuse. */
using TextChange =
    std::function<bool(scene::Scene* scene, const scene::Place& place, QString* error)>;

/**
 * Changes a text: the first argument of @p line is the scene, the second the place. Throws Failure
 * unless the scene was saved. @return the changed scene and the place
 */
QPair<scene::Scene, scene::Place> ChangeText(const cli::CommandLine& line,
                                             const TextChange& change);

} // namespace AnimText::animtext::shared
