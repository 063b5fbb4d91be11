#ifndef PICTUREBLEND_H
#define PICTUREBLEND_H

#include "paint/fixedpoint.h"
#include "paint/picture.h"

namespace Lw {
namespace HNodeAnimationText {

/** Puts @p over, of Argb32, into @p picture with its left upper corner at (@p x, @p y). */
void BlendPicture(const Picture& over, int x, int y, const Picture& picture);

/**
 * Frames the inside of @p edge, within the picture, @p thickness pixels wide, with @p tile of
 * Argb32 repeated from the picture's left upper corner.
 */
void BlendBorder(const Picture& tile, const Box& edge, int thickness, const Picture& picture);

} // namespace HNodeAnimationText
} // namespace Lw

#endif
