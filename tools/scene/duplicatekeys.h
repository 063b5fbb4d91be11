/**
 * @file
 * Finds keys that stand twice in one JSON object, which Qt's reader lets pass.
 */
#ifndef ANIMTEXT_DUPLICATEKEYS_H
#define ANIMTEXT_DUPLICATEKEYS_H

#include <QByteArray>
#include <QStringList>

namespace AnimText {

/**
 * The JSON paths of keys that their object already has, at most 20 of them.
 * @param json any bytes; what is no JSON has the keys that it seems to have
 */
QStringList DuplicateKeys(const QByteArray& json);

} // namespace AnimText

#endif
