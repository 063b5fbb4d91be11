/**
 * @file
 * The times of every entrance effect on one text, side by side.
 */
#ifndef ANIMTEXT_DURATIONTABLE_H
#define ANIMTEXT_DURATIONTABLE_H

#include "animtext/shared/playoptions.h"
#include "scene/json.h"
#include "timing/simulation.h"

namespace AnimText {

/** The times of @p simulation as they are printed. */
Json ToJson(const Simulation& simulation);

/** Prints the table for the first node of @p scene, or throws Failure. */
void TellDurationTable(const Playing& playing, const Scene& scene, bool json);

} // namespace AnimText

#endif
