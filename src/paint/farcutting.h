#ifndef FARCUTTING_H
#define FARCUTTING_H

#include "paint/fixedpoint.h"
#include "paint/outline.h"

namespace Lw {
namespace HNodeAnimationText {

/**
 * The outline cut to the picture, as the device cuts it. @p closed is finite and its subpaths are
 * closed. What comes back may be open, empty, or a little outside.
 * @param isPart it is one of the glyphs of a path: the device cuts those subpath by subpath
 */
Outline CutToPicture(const Outline& closed, const Box& picture, bool isPart);

} // namespace HNodeAnimationText
} // namespace Lw

#endif
