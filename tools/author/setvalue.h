/**
 * @file
 * Changes a setting of a text in a scene.
 */
#ifndef ANIMTEXT_SETVALUE_H
#define ANIMTEXT_SETVALUE_H

#include "scene/scene.h"

#include <QString>

namespace AnimText {

/**
 * Sets a value that needs no new layout, by its name on the command line ("speed", "hold", "color")
 * or in the scene file ("AnimationSpeed"). A motion can replace one with the same layout.
 * @return false, with one line in @p error, if that is not possible
 */
bool SetValue(Scene* scene, const Place& place, const QString& key, const QString& value,
              QString* error);

} // namespace AnimText

#endif
