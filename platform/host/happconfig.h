/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here.
 */
#ifndef LW_HAPPCONFIG_H
#define LW_HAPPCONFIG_H

#include <QColor>
#include <QString>

/** Set where HAppConfig::DeviceFile() exists; the host's own class has no need of it. */
#define LW_DEVICE_FILES

namespace Lw {

class HAppConfig
{
public:
    /** The colour 0xRRGGBB, opaque. */
    static QColor IntToColor(int value);

    /**
     * Where a file of the device's lies on this desk: a picture of /root/Box/image/ in the folder
     * that the environment variable ANIMATIONTEXT_PICTURES names. Any other file, and every file
     * without that variable, where the device has it.
     */
    static QString DeviceFile(const QString& file);
};

} // namespace Lw

#endif
