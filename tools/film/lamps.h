/**
 * @file
 * Pictures as the LEDs of a sign show them.
 */
#pragma once

#include <QImage>

namespace AnimText::film {

constexpr int smallestLamp = 4; ///< pixels from LED to LED; closer ones are not round

/**
 * Draws the pixels of @p picture, which has no alpha, as round LEDs on black.
 * @param size pixels from LED to LED
 * @param pitch the same in LED diameters, 1 to 4
 */
QImage AsLamps(const QImage& picture, int size, double pitch);

} // namespace AnimText::film
