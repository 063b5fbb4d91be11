/**
 * @file
 * What a sign does not show of a text because the host takes it away too early.
 */
#ifndef ANIMTEXT_CUTOFF_H
#define ANIMTEXT_CUTOFF_H

#include "scene/scene.h"

namespace AnimText {

/**
 * Warns when the time that the host plans for @p node of @p scene is over before its last page has
 * entered and more than 5 % of that time is missing; says which speed or hold would not. A last
 * page that stands for less than its hold is no reason: `animtext duration` shows that. Nothing is
 * said of plays beyond half an hour, or less for large areas, nor where the plugin or the node's
 * files are missing.
 */
void WarnOfCut(const Scene& scene, const SceneNode& node);

} // namespace AnimText

#endif
