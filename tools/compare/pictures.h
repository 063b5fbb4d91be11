/**
 * @file
 * Shows the difference between two pictures.
 */
#pragma once

#include <QImage>
#include <QString>

namespace AnimText::compare {

/** Reads a picture that librecord kept; throws Failure. */
QImage ReadPam(const QString& path);

/** Both pictures dimmed, with what only @p a has in red, and what only @p b has in green. */
QImage DifferenceOf(const QImage& a, const QImage& b);

} // namespace AnimText::compare
