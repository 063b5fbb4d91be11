/**
 * @file
 * The light of a neon border, place by place: fourteen patterns, each in two looks.
 */
#ifndef LW_NEONSTYLES_H
#define LW_NEONSTYLES_H

#include "neonpatterns.h"

#include <QtGlobal>

namespace Lw {

const int NeonStyleCount = 28;

/**
 * @param style 1 .. NeonStyleCount; anything else is the first
 * @param tick how many pictures there have been before
 */
NeonLight NeonLightAt(int style, const NeonLoop& loop, const NeonSpot& spot, qint64 tick);

} // namespace Lw

#endif
