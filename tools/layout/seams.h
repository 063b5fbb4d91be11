/**
 * @file
 * Removes overlaps of outlines. The engine fills all outlines of a page as one path by the odd-even
 * rule, so overlaps, as between joined letters, would be holes.
 */
#pragma once

#include <QPainterPath>

namespace AnimText::layout {

/** @p path changed so that the odd-even rule fills the same area. */
QPainterPath WithoutOverlaps(const QPainterPath& path);

/** @p path without the area that @p neighbor covers. */
QPainterPath WithoutSharedArea(const QPainterPath& path, const QPainterPath& neighbor);

} // namespace AnimText::layout
