/**
 * @file
 * A table of the times of all entrance effects.
 */
#ifndef ANIMTEXT_DURATIONTABLE_H
#define ANIMTEXT_DURATIONTABLE_H

#include "animtext/shared/playoptions.h"
#include "scene/json.h"
#include "timing/playlength.h"

namespace AnimText {

Json ToJson(const NodePlay& play);

/** Prints the table for the first node of @p scene; throws Failure. */
void PrintDurationTable(const Playing& playing, const Scene& scene, bool json);

} // namespace AnimText

#endif
