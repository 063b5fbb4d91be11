/**
 * @file
 * Where the device has scrolled a picture to.
 */
#ifndef TORV_SCROLL_H
#define TORV_SCROLL_H

#include "torvsdk.h"

#include <QtGlobal>

namespace Torv {

enum ScrollCode { ScrollLeft = 26, ScrollRight = 27 };

/**
 * The x of the picture's left edge in its area: a scrolling picture enters at one edge, leaves
 * at the other and enters again, once every areaWidth + pictureWidth pixels.
 * @param milliseconds since the session was shown; below 0 the picture is out of sight
 * @return 0 when the effect does not scroll
 */
qint64 ScrollPosition(const Effect& effect, int areaWidth, int pictureWidth, qint64 milliseconds);

} // namespace Torv

#endif
