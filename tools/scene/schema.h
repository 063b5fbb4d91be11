/**
 * @file
 * The keys that the animated text node reads from its attribute store.
 */
#ifndef ANIMTEXT_SCHEMA_H
#define ANIMTEXT_SCHEMA_H

#include <QString>
#include <QStringList>

namespace AnimText {

/** Attributes whose value is a text. */
const QStringList& TextAttributeKeys();
/** Attributes whose value is a whole number: settings, flags and colors. */
const QStringList& NumberAttributeKeys();
/** Lists with a row for each character. */
const QStringList& ListKeys();
/** The fields of a row of the list @p key, in the order in which they are written. */
QStringList RowFields(const QString& key);
/** Keys that stand for a file. */
const QStringList& FileKeys();

} // namespace AnimText

#endif
