#include "happconfig.h"

namespace Lw {

QColor HAppConfig::IntToColor(int value)
{
    return QColor(value >> 16 & 0xFF, value >> 8 & 0xFF, value & 0xFF);
}

} // namespace Lw
