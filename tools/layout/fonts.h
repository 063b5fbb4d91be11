/**
 * @file
 * The fonts that there are.
 */
#ifndef ANIMTEXT_FONTS_H
#define ANIMTEXT_FONTS_H

#include <QString>
#include <QStringList>

namespace AnimText {

/** The installed families whose names hold @p filter, upper and lower case alike; in order. */
QStringList FontFamilies(const QString& filter = QString());

/**
 * The family that @p wish names: an installed one, one of the general names Sans, Serif and
 * Monospace, or that of a font file, which is loaded. Needs a QGuiApplication.
 * @return false when there is none, and then @p error has one line on it
 */
bool FindFamily(const QString& wish, QString* family, QString* error);

/**
 * "; did you mean X?" with the shortest of @p known that holds @p word, else with the closest, be
 * it only to its first words, or nothing.
 */
QString DidYouMeanOneOf(const QString& word, const QStringList& known);

} // namespace AnimText

#endif
