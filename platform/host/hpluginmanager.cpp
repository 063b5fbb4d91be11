#include "hpluginmanager.h"

namespace Lw {

HPluginManager* HPluginManager::instance()
{
    static HPluginManager manager;
    return &manager;
}

bool HPluginManager::SuportAlphaBlend(HNode*) const
{
    return alphaBlend;
}

void HPluginManager::SetAlphaBlend(bool blend)
{
    alphaBlend = blend;
}

} // namespace Lw
