/**
 * @file
 * "Did you mean": the known word closest to a mistyped one.
 */
#ifndef ANIMTEXT_SUGGEST_H
#define ANIMTEXT_SUGGEST_H

#include <QString>
#include <QStringList>

namespace AnimText {

/**
 * The one of @p known that takes the fewest changed, added, dropped or swapped letters to come from
 * @p word, upper and lower case alike; empty when even that one is too far away to be meant.
 */
QString Closest(const QString& word, const QStringList& known);

/** "; did you mean X?" for the closest word, or nothing. */
QString DidYouMean(const QString& word, const QStringList& known);

/**
 * "; did you mean X?" with the shortest of @p known that contains @p word, or else with the
 * closest, comparing only the first words if necessary; or empty.
 */
QString DidYouMeanOneOf(const QString& word, const QStringList& known);

} // namespace AnimText

#endif
