/**
 * @file
 * Changing a setting of a text that is in a scene.
 */
#ifndef ANIMTEXT_SETVALUE_H
#define ANIMTEXT_SETVALUE_H

#include "scene/scene.h"

#include <QString>

namespace AnimText {

/**
 * Sets what needs no new layout, by the names of the command line ("speed", "hold", "color" ...) or
 * of the scene file ("AnimationSpeed" ...). A motion can take the place of another one that sets
 * the text in the same way.
 * @return false when that cannot be, and then @p error has one line on it
 */
bool SetValue(Scene* scene, const Place& place, const QString& key, const QString& value,
              QString* error);

} // namespace AnimText

#endif
