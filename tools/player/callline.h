/**
 * @file
 * A call of the device as a line of JSON.
 */
#pragma once

#include <display.h>

#include <QByteArray>
#include <QImage>

namespace AnimText::player {

/**
 * One JSON object: "call", the arguments by their names in torvsdk.h, "result", and, when the call
 * had no effect, "problem". Records are objects, "pixelWord" is text in hexadecimal, and a buffer
 * is "buffer 0", "buffer 1" or null: the lines of two runs are the same.
 */
QByteArray CallLine(const Torv::CallRecord& call);

/** The SHA-1 of a picture's rows, without what pads them, in hexadecimal; empty for a null one. */
QByteArray Sha1Of(const QImage& picture);

} // namespace AnimText::player
