#include "studio/worker/messages.h"

namespace AnimText {

QDataStream& operator<<(QDataStream& stream, const LoadOrder& order)
{
    return stream << order.generation << order.scene << order.path << order.schedule << order.calls
                  << order.faults;
}

QDataStream& operator>>(QDataStream& stream, LoadOrder& order)
{
    return stream >> order.generation >> order.scene >> order.path >> order.schedule >>
           order.calls >> order.faults;
}

QDataStream& operator<<(QDataStream& stream, const TickPicture& picture)
{
    stream << picture.generation << picture.tick << picture.calls << picture.picture.size();
    if (!picture.picture.isNull())
        stream.writeRawData(reinterpret_cast<const char*>(picture.picture.constBits()),
                            int(picture.picture.sizeInBytes()));
    return stream;
}

QDataStream& operator>>(QDataStream& stream, TickPicture& picture)
{
    QSize size;
    stream >> picture.generation >> picture.tick >> picture.calls >> size;
    picture.picture = size.isEmpty() ? QImage() : QImage(size, QImage::Format_ARGB32);
    if (!picture.picture.isNull())
        stream.readRawData(reinterpret_cast<char*>(picture.picture.bits()),
                           int(picture.picture.sizeInBytes()));
    return stream;
}

bool TakeMessage(QByteArray* bytes, Message* kind, QByteArray* body)
{
    constexpr int lengthSize = 4;
    if (bytes->size() < lengthSize + 1)
        return false;
    quint32 length = 0;
    QDataStream(*bytes) >> length;
    if (bytes->size() < lengthSize + qint64(length))
        return false;
    *kind = Message(quint8(bytes->at(lengthSize)));
    *body = bytes->mid(lengthSize + 1, int(length) - 1);
    bytes->remove(0, lengthSize + int(length));
    return true;
}

} // namespace AnimText
