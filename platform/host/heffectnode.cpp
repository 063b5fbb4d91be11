#include "heffectnode.h"

namespace Lw {

HEffectNode::HEffectNode(QObject* parent)
    : HContentNode(parent)
{
}

int HEffectNode::GetHoldTime() const
{
    return holdTime;
}

void HEffectNode::SetHoldTime(int hold)
{
    holdTime = hold;
}

} // namespace Lw
