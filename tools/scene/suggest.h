/**
 * @file
 * "Did you mean": the known word closest to a mistyped one.
 */
#pragma once

#include <QString>
#include <QStringList>

namespace AnimText::scene {

/** "; did you mean X?" for the closest word, or nothing. */
QString DidYouMean(const QString& word, const QStringList& known);

/**
 * "; did you mean X?" with the shortest of @p known that contains @p word, or else with the
 * closest, comparing only the first words if necessary; or empty.
 */
QString DidYouMeanOneOf(const QString& word, const QStringList& known);

} // namespace AnimText::scene
