/**
 * @file
 * A laid-out line as the sign wants it: outlines and measures by UTF-16 unit.
 */
#ifndef ANIMTEXT_PLACEMENT_H
#define ANIMTEXT_PLACEMENT_H

#include "layout/shaping.h"

#include <QSize>
#include <QStringList>

namespace AnimText {

/** How the sign will set the characters at rest. */
enum class Arrangement {
    Pages,        ///< side by side, in pages that are filled from the text's beginning
    PagesFromEnd, ///< side by side, in pages that are filled from the text's end
    Line,         ///< side by side, all of them
    Column,       ///< one below the other
};

/** Where a page's text stands between the sides of the area. */
enum class Align {
    Natural, ///< where reading begins; at the right with pages that are filled from the end
    Left,
    Center,
    Right,
};

/** Where the line stands between top and bottom of the area. */
enum class VAlign { Top, Middle, Bottom };

/** What a line is set for. */
struct Setting
{
    Arrangement arrangement = Arrangement::Pages;
    QSize area; ///< pixels
    Align align = Align::Natural;
    VAlign valign = VAlign::Middle;
    int padding = 0;        ///< pixels that stay free at each side of the area
    bool keepsWords = true; ///< pages end where words end
    /** The motion turns or stretches each character about its own place, so it must stand there:
        margins are made of spaces that are added to the text. */
    bool needsPlaces = false;
    /** The motion's pace goes by the widest character, so no space may be wider than a letter. */
    bool needsEvenWidths = false;
    /** The motion reaches up to where the highest letter touches the top. */
    bool reachesTop = false;
};

/**
 * What stands in a scene for each UTF-16 unit of a text; the lists are as long as the text. A
 * cluster has its outline, its width and its height at its first unit; its other units are empty
 * and 0 by 0, so that they take no room in a line nor in a column.
 */
struct PlacedText
{
    QString text;                   ///< as it was laid out, but for spaces added as margins
    QVector<int> source;            ///< the unit of the laid-out text whose style each has
    QVector<QPainterPath> outlines; ///< pixels; origin at the left end of the unit's place on the
                                    ///< baseline, y downward
    QVector<int> widths;            ///< pixels
    QVector<int> heights;           ///< pixels
    QVector<int> descents;          ///< pixels, the same for every unit: the baseline is straight
    QStringList tornWords;          ///< words that are wider than a page
};

/**
 * Sets @p line, laid out from @p text.
 *
 * The sign gives every character a place in the order of the text, from the left of its page, and
 * begins a page where the next place would not fit. So a page is turned early by making the space
 * there as wide as the rest of the page, or, where words have no spaces, the last character (with
 * pages from the end: the first one). An outline may stand outside its place: that is how lines are
 * aligned and how reading goes from right to left (pages are cut, and characters come in, in the
 * order of reading). A motion that turns characters turns them about their places; for such a
 * motion lines are aligned by added spaces, and only text from right to left stands elsewhere.
 *
 * Letters begin on whole pixels, so that equal letters look equal. What two neighbours both cover
 * (joined letters) is left to one of them.
 */
PlacedText PlaceText(const QString& text, const ShapedLine& line, const Setting& setting);

} // namespace AnimText

#endif
