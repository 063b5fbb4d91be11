/**
 * @file
 * What an author chooses about a layout.
 */
#pragma once

namespace AnimText::layout {

/** What the largest size must fit. */
enum class Fit {
    None,
    Height, ///< the area's height
    Both,   ///< the area's height and width, on one page
    Line,   ///< the area's height, unless the text scrolls up or down
};

/** Horizontal alignment of each page. */
enum class Align {
    Natural, ///< the side where reading starts; right with pages filled from the end
    Left,
    Center,
    Right,
};

/** Vertical alignment of the line. */
enum class VAlign { Top, Middle, Bottom };

struct Setting
{
    Fit fit = Fit::None; ///< except for None, changes the sizes of a text that has an area
    Align align = Align::Natural;
    VAlign valign = VAlign::Middle;
    int padding = 0;        ///< free pixels on each side of the area
    bool keepsWords = true; ///< pages end where words end
};

inline bool operator==(const Setting& a, const Setting& b)
{
    return a.fit == b.fit && a.align == b.align && a.valign == b.valign && a.padding == b.padding &&
           a.keepsWords == b.keepsWords;
}

} // namespace AnimText::layout
