/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here.
 */
#ifndef LW_HAPPCONFIG_H
#define LW_HAPPCONFIG_H

#include <QColor>
#include <QString>

/** Set where HAppConfig::DeviceFile() exists; the host's own class does not have it. */
#define LW_DEVICE_FILES

namespace Lw {

class HAppConfig
{
public:
    /** The color 0xRRGGBB, opaque. */
    static QColor IntToColor(int value);

    /**
     * The path on a desktop of a file of the device. A picture in /root/Box/image/ is in the folder
     * that the environment variable ANIMATIONTEXT_PICTURES names. Any other file, and every file
     * without that variable, keeps its path.
     */
    static QString DeviceFile(const QString& file);
};

} // namespace Lw

#endif
