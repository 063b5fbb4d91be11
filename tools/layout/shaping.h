/**
 * @file
 * A text laid out in a font as one line, and the outlines of its clusters.
 */
#ifndef ANIMTEXT_SHAPING_H
#define ANIMTEXT_SHAPING_H

#include "layout/styledtext.h"

#include <QList>
#include <QPainterPath>
#include <QVector>

namespace AnimText {

/** A bar under letters. */
struct Bar
{
    qreal top = 0;    ///< pixels below the baseline
    qreal height = 0; ///< pixels; 0 for no bar
};

/**
 * The units of a text that the font shows as one shape: a letter, a letter with its accents, a
 * ligature, a syllable.
 */
struct Cluster
{
    int first = 0;        ///< its first UTF-16 unit
    int units = 0;        ///< how many units it has
    qreal advance = 0;    ///< pixels, as laid out, kerning included
    QPainterPath shape;   ///< pixels; origin at the left end of the baseline, y downward
    Bar underline;        ///< none unless its style has one
    QVector<int> missing; ///< UTF-16 units at which characters begin that no font has, and that
                          ///< @c shape therefore lacks
};

/** A text as one line. */
struct ShapedLine
{
    QVector<Cluster> clusters; ///< in the order of the text
    QVector<int> visualOrder;  ///< indices into @c clusters, from the left of the line to its right
    int ascent = 0;            ///< pixels above the baseline, of all fonts used
    int descent = 0;           ///< pixels below the baseline, of all fonts used
    bool rightToLeft = false;  ///< the direction of its first letter
};

/**
 * Lays @p text out as a whole, in one line on one baseline: ligatures, joined letters, kerning and
 * both directions of writing as the toolkit's text layout makes them, with its own fallback for
 * characters that a font lacks. The time is linear in the length of the text but for a line that
 * mixes directions, where it also grows with the square of the number of changes.
 */
ShapedLine ShapeLine(const StyledText& text);

/** The measures of a line, pixels. */
struct LineSize
{
    int ascent = 0;  ///< above the baseline, of all fonts used
    int descent = 0; ///< below the baseline
    int width = 0;
};

/** What ShapeLine() would give, at a fraction of the time. */
LineSize MeasureLine(const StyledText& text);

/** A character of which nothing will be seen. */
struct UnseenCharacter
{
    int index = 0;        ///< its first UTF-16 unit
    uint codePoint = 0;   ///< 0x0 .. 0x10FFFF
    bool missing = false; ///< no font has it; otherwise its font has pictures in place of outlines
};

/** The characters of @p line, laid out from @p text, that ought to be seen and have no outline. */
QList<UnseenCharacter> UnseenCharacters(const QString& text, const ShapedLine& line);

} // namespace AnimText

#endif
