/**
 * @file
 * Finds keys that stand twice in one JSON object, which Qt's reader lets pass.
 */
#ifndef ANIMTEXT_DUPLICATEKEYS_H
#define ANIMTEXT_DUPLICATEKEYS_H

#include <QByteArray>
#include <QString>

namespace AnimText {

/**
 * The JSON path of the first key that its object already has; empty when there is none.
 * @param json any bytes; what is no JSON has the keys that it seems to have
 */
QString DuplicateKey(const QByteArray& json);

} // namespace AnimText

#endif
