/**
 * @file
 * Shows the difference between two pictures.
 */
#pragma once

#include <QImage>
#include <QString>

namespace AnimText::compare {

/** Reads a picture that librecord kept. On failure returns false and sets @p error to one line. */
bool ReadPam(const QString& path, QImage* picture, QString* error);

/** Both pictures dimmed, with what only @p a has in red, and what only @p b has in green. */
QImage DifferenceOf(const QImage& a, const QImage& b);

} // namespace AnimText::compare
