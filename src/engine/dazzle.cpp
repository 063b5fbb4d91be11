#include "engine/animationrealization.h"

namespace Lw {
namespace HNodeAnimationText {

void animationRealization::DrawDazzleBackground() {}

} // namespace HNodeAnimationText
} // namespace Lw
