/**
 * @file
 * Changes a setting of a text in a scene.
 */
#pragma once

#include "scene/scene.h"

#include <QString>

namespace AnimText::author {

/**
 * Sets a value that needs no new layout, by its name on the command line ("speed", "hold", "color")
 * or in the scene file ("AnimationSpeed"). A motion can replace one with the same layout.
 * @return one line on why that is not possible, or empty
 */
QString SetValue(scene::Scene* scene, const scene::Place& place, const QString& word,
                 const QString& value);

} // namespace AnimText::author
