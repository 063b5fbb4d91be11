/**
 * @file
 * Times as people write them.
 */
#pragma once

#include <QString>

namespace AnimText::scene {

/**
 * Reads 2s, 2.5s, 1500ms, 3min, 1h or 40t (ticks of 66 ms) into milliseconds. A number without a
 * unit is seconds. Returns false when @p text is none of these.
 */
bool ReadTime(const QString& text, double* milliseconds);

/** @p milliseconds in hold units of 100 ms; false when that is not a whole number from 0 to
 * 1,000,000.
 */
bool ToHoldUnits(double milliseconds, int* units);

} // namespace AnimText::scene
