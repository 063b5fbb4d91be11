/**
 * @file
 * The times of every entrance effect on one text, side by side.
 */
#ifndef ANIMTEXT_DURATIONTABLE_H
#define ANIMTEXT_DURATIONTABLE_H

#include "animtext/shared/playoptions.h"

namespace AnimText {

/** Prints the table for the first node of @p scene, or throws Failure. */
void TellDurationTable(const Playing& playing, const Scene& scene, bool json);

} // namespace AnimText

#endif
