// The frog effects.
#include "effects/frame.h"

namespace Lw {
namespace HNodeAnimationText {

void animationRealization::EffectTopWithFrogAppearsVerbatim() {}

void animationRealization::EffectTopWithFrog() {}

} // namespace HNodeAnimationText
} // namespace Lw
