/**
 * @file
 * Outlines that may be put into one path. The engine collects the outlines of a page in one path
 * and fills it by the odd-even rule: where two of them overlap, as joined letters do, there would
 * be a hole.
 */
#ifndef ANIMTEXT_SEAMS_H
#define ANIMTEXT_SEAMS_H

#include <QPainterPath>

namespace AnimText {

/** @p path so that the odd-even rule fills what its own rule fills. */
QPainterPath WithoutOverlaps(const QPainterPath& path);

/** @p path less what @p neighbour covers of it. */
QPainterPath WithoutSharedArea(const QPainterPath& path, const QPainterPath& neighbour);

} // namespace AnimText

#endif
