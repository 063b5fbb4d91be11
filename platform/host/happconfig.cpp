#include "happconfig.h"

#include <QDir>
#include <QFile>

namespace Lw {

QColor HAppConfig::IntToColor(int value)
{
    return QColor(value >> 16 & 0xFF, value >> 8 & 0xFF, value & 0xFF);
}

QString HAppConfig::DeviceFile(const QString& file)
{
    const QString devicePictures = QString::fromLatin1("/root/Box/image/");
    const QByteArray folder = qgetenv("ANIMATIONTEXT_PICTURES");
    if (folder.isEmpty() || !file.startsWith(devicePictures))
        return file;
    return QDir(QFile::decodeName(folder)).filePath(file.mid(devicePictures.size()));
}

} // namespace Lw
