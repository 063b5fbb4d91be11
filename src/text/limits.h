#ifndef LIMITS_H
#define LIMITS_H

#include <QtGlobal>

namespace Lw {
namespace HNodeAnimationText {

/*
 * What the sign reads and paints at most. Files and attributes come from anywhere; what lies beyond
 * is refused before it costs memory or time. Tools warn and refuse by the same numbers.
 */

/** Bytes of a data file. */
const qint64 maxDataFileSize = qint64(256) << 20;

/** Elements of one outline, and the largest coordinate in pixels. */
const int maxOutlineElements = 65536;
const double maxOutlineCoordinate = 1e6;

/** Bytes of one picture that is painted into; the device's own limit for a buffer. */
const qint64 maxCanvasBytes = qint64(256) << 20;

/** Pixels of a fill picture, asked for before it is decoded where the format tells. */
const qint64 maxPicturePixels = 64 * 1000 * 1000;

/**
 * Where, in pixels, a character of a line may begin to be painted in its place: the raster painter
 * computes in 16 bits.
 */
const int lastPaintableX = 31999;

} // namespace HNodeAnimationText
} // namespace Lw

#endif
