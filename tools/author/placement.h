/**
 * @file
 * A laid-out line as the sign wants it: outlines and measures by UTF-16 unit.
 */
#ifndef ANIMTEXT_PLACEMENT_H
#define ANIMTEXT_PLACEMENT_H

#include "author/shaping.h"

namespace AnimText {

/** How the sign will set the characters at rest. */
enum class Arrangement {
    Pages,        ///< side by side, in pages that are filled from the text's beginning
    PagesFromEnd, ///< side by side, in pages that are filled from the text's end
    Line,         ///< side by side, all of them
    Column,       ///< one below the other
};

/** The bar under underlined text. */
struct Bar
{
    qreal top = 0;    ///< pixels below the baseline
    qreal height = 0; ///< pixels; 0 for no bar
};

/**
 * What stands in a scene for each UTF-16 unit of a text; the lists are as long as the text. A
 * cluster has its outline, its width and its height at its first unit; its other units are empty
 * and 0 by 0, so that they take no room in a line nor in a column.
 */
struct PlacedText
{
    QVector<QPainterPath> outlines; ///< pixels; origin at the left end of the unit's place on the
                                    ///< baseline, y downward
    QVector<int> widths;            ///< pixels; they add up to the laid-out line, rounded
    QVector<int> heights;           ///< pixels
    QVector<int> descents;          ///< pixels, the same for every unit: the baseline is straight
};

/**
 * Sets @p line for an area @p areaWidth pixels wide.
 *
 * The sign gives every character a place in the order of the text, from the left. Where reading
 * goes from right to left the place stays (so that pages are cut, and characters come in, in the
 * order of reading) and the outline is moved out of it to where it is seen on its page; with pages
 * this holds for the area width that is given here. Letters begin on whole pixels, so that equal
 * letters look equal. What two neighbours both cover (joined letters) is left to one of them.
 */
PlacedText PlaceText(const ShapedLine& line, Arrangement arrangement, int areaWidth,
                     const Bar& underline);

} // namespace AnimText

#endif
