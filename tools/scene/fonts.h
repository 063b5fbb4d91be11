/**
 * @file
 * The installed fonts.
 */
#pragma once

#include <QString>
#include <QStringList>

namespace AnimText::scene {

/** The sorted names of installed families that contain @p filter, ignoring case. */
QStringList FontFamilies(const QString& filter = QString());

/** The family of texts for which none is chosen. */
constexpr const char usualFamily[] = "DejaVu Sans";

/**
 * Finds the family for @p name: an installed family, a generic name (Sans, Serif, Monospace) or a
 * font file, which it loads. The usual family may be another where it is not installed. Needs a
 * QGuiApplication.
 * @return false, with one line in @p error, if there is none
 */
bool FindFamily(const QString& name, QString* family, QString* error);

} // namespace AnimText::scene
