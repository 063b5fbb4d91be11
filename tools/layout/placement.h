/**
 * @file
 * Places a line on the sign: outlines and sizes by UTF-16 unit.
 */
#pragma once

#include "layout/setting.h"
#include "layout/shaping.h"
#include "scene/motion.h"

#include <QSize>
#include <QStringList>

namespace AnimText::layout {

/**
 * The lists of a scene, with an item for each UTF-16 unit of the text. The first unit of a cluster
 * has its outline, width and height; the others are empty, 0 by 0, and take no room.
 */
struct PlacedText
{
    QString text;                   ///< the laid-out text and spaces added as margins
    QVector<int> source;            ///< the unit of the laid-out text that has its style
    QVector<QPainterPath> outlines; ///< pixels; origin at the left end of the place, on the
                                    ///< baseline; y downward
    QVector<int> widths;            ///< pixels
    QVector<int> heights;           ///< pixels
    QVector<int> descents;          ///< pixels; equal, so that the baseline is straight
    QStringList tornWords;          ///< words that are wider than a page
};

/**
 * Places @p line, laid out from @p text, in @p area, pixels.
 *
 * The sign gives each character a place, in text order from the left of the page, and begins a new
 * page when the next place does not fit. To end a page early, the space there is made as wide as
 * the rest of the page; without a space, the last character of the page is (the first one, with
 * pages filled from the end). Outlines may be outside their places, for alignment and for
 * right-to-left text, whose characters still enter in reading order. Motions that rotate characters
 * use the centers of the places: for them, added spaces align the line, and only right-to-left text
 * is shifted.
 *
 * Letters begin at whole pixels, so that equal letters look equal. Areas that two neighbors cover,
 * as joined letters do, belong to one of them.
 */
PlacedText PlaceText(const QString& text, const ShapedLine& line, const Setting& setting,
                     const scene::NodeMotion& motion, const QSize& area);

} // namespace AnimText::layout
