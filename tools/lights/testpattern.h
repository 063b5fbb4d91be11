/**
 * @file
 * Test patterns for setting up LEDs.
 */
#pragma once

#include <QImage>
#include <QStringList>

namespace AnimText::lights {

/**
 * "corners": top left red, top right green, bottom left blue, bottom right white, for the layout.
 * "order": rows that fill from left to right, top to bottom, for serpentines. "colors": red, green
 * and blue bars from the left, for the color order. "levels": from black to white, for gamma and
 * brightness.
 */
QStringList TestPatterns();

/** The pattern of that name at @p tick; any other name shows all in turn. */
QImage TestPattern(const QString& name, QSize size, int tick);

} // namespace AnimText::lights
