/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here.
 */
#ifndef LW_HPLUGINMANAGER_H
#define LW_HPLUGINMANAGER_H

namespace Lw {

class HNode;

/** What the host knows of the device that its plugins run on. */
class HPluginManager
{
public:
    /** The one manager of the process. */
    static HPluginManager* instance();

    /** True: layers of 32 bits blended by alpha; false: layers of 24 bits with a color key. */
    bool SuportAlphaBlend(HNode* node) const;

    /** What SuportAlphaBlend() answers for every node; true by default. */
    void SetAlphaBlend(bool blend);

private:
    HPluginManager() {}

    bool alphaBlend = true;
};

} // namespace Lw

#endif
