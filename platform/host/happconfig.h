/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here.
 */
#ifndef LW_HAPPCONFIG_H
#define LW_HAPPCONFIG_H

#include <QColor>

namespace Lw {

class HAppConfig
{
public:
    /** The colour 0xRRGGBB, opaque. */
    static QColor IntToColor(int value);
};

} // namespace Lw

#endif
