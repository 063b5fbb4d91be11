/**
 * @file
 * Finds keys that occur twice in one JSON object, which Qt's reader accepts.
 */
#pragma once

#include <QByteArray>
#include <QStringList>

namespace AnimText::scene {

/**
 * The JSON paths of keys that their object already has, at most 20 of them.
 * @param json any bytes; in bytes that are not JSON, whatever looks like keys
 */
QStringList DuplicateKeys(const QByteArray& json);

} // namespace AnimText::scene
