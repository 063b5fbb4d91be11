#include "studio/worker/messages.h"

namespace AnimText::studio::worker {

QDataStream& operator<<(QDataStream& stream, const RawPicture& picture)
{
    stream << picture.size();
    stream.writeRawData(reinterpret_cast<const char*>(picture.constBits()),
                        int(picture.sizeInBytes()));
    return stream;
}

QDataStream& operator>>(QDataStream& stream, RawPicture& picture)
{
    QSize size;
    stream >> size;
    picture = size.isEmpty() ? QImage() : QImage(size, QImage::Format_ARGB32);
    stream.readRawData(reinterpret_cast<char*>(picture.bits()), int(picture.sizeInBytes()));
    return stream;
}

} // namespace AnimText::studio::worker
