/**
 * @file
 * Warns of texts that the host ends too early.
 */
#pragma once

#include "scene/scene.h"

namespace AnimText::animtext::shared {

/**
 * Warns if the planned time of @p node is over before its last page has entered and is more than
 * 5 % too short, and suggests a speed or a hold that avoids this. A last page that is held for less
 * than its hold gives no warning. Plays longer than half an hour, or less for large areas, are not
 * checked, nor nodes whose files are missing.
 */
void WarnOfCut(const scene::Scene& scene, const scene::SceneNode& node);

} // namespace AnimText::animtext::shared
