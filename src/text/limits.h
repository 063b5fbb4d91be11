#ifndef LIMITS_H
#define LIMITS_H

#include <QtGlobal>

namespace Lw {
namespace HNodeAnimationText {

/*
 * The most that the sign reads and paints. Larger files and attributes are refused before they cost
 * memory or time. The tools use the same limits.
 */

/** Bytes of a data file. */
const qint64 maxDataFileSize = qint64(256) << 20;

/** Elements of one outline, and the largest coordinate in pixels. */
const int maxOutlineElements = 65536;
const double maxOutlineCoordinate = 1e6;

/** Bytes of one picture that is painted into; the device's own limit for a buffer. */
const qint64 maxCanvasBytes = qint64(256) << 20;

/** Pixels of a fill picture, checked before it is decoded, if the format has its size. */
const qint64 maxPicturePixels = 64 * 1000 * 1000;

/**
 * Where, in pixels, a character of a line may begin to be painted in its place: the raster painter
 * computes in 16 bits.
 */
const int lastPaintableX = 31999;

} // namespace HNodeAnimationText
} // namespace Lw

#endif
