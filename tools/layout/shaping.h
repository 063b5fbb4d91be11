/**
 * @file
 * Lays out a text as one line with the outlines of its clusters.
 */
#pragma once

#include "layout/styledtext.h"

#include <QPainterPath>
#include <QVector>

namespace AnimText::layout {

/** An underline. */
struct Bar
{
    qreal top = 0;    ///< pixels below the baseline
    qreal height = 0; ///< pixels; 0: none
};

/**
 * Units of a text that have one shape: a letter, a letter with accents, a ligature or a syllable.
 */
struct Cluster
{
    int first = 0;      ///< its first UTF-16 unit
    int units = 0;      ///< number of units
    qreal advance = 0;  ///< pixels, including kerning
    QPainterPath shape; ///< pixels; origin at the left end of the baseline, y downward
    Bar underline;
    QVector<int> missing; ///< first UTF-16 units of characters that no font has
};

/** A text as one line. */
struct ShapedLine
{
    QVector<Cluster> clusters; ///< in the order of the text
    QVector<int> visualOrder;  ///< indices into @c clusters, from left to right
    int ascent = 0;            ///< pixels above the baseline, of all fonts used
    int descent = 0;           ///< pixels below the baseline, of all fonts used
    bool rightToLeft = false;  ///< direction of the first letter
};

/**
 * Lays out @p text in one line on one baseline with Qt's text layout: ligatures, joined letters,
 * kerning, both writing directions and fallback fonts. Takes time linear in the length of the text,
 * plus the square of the number of changes of direction.
 */
ShapedLine ShapeLine(const StyledText& text);

/** The size of a line, pixels. */
struct LineSize
{
    int ascent = 0;  ///< above the baseline, of all fonts used
    int descent = 0; ///< below the baseline
    int width = 0;
};

/** The size of the line of ShapeLine(), in a fraction of the time. */
LineSize MeasureLine(const StyledText& text);

} // namespace AnimText::layout
