#include "hneonnodebase.h"

namespace Lw {

HNeonNodeBase::HNeonNodeBase(QObject* parent)
    : HEffectNode(parent)
{
}

HNeonNodeBase::~HNeonNodeBase() {}

int HNeonNodeBase::GetNeonEffect() const
{
    return neonEffect;
}

void HNeonNodeBase::SetNeonEffect(int effect)
{
    neonEffect = effect;
}

} // namespace Lw
