#include "studio/worker/messages.h"

namespace AnimText {
namespace {

constexpr int lengthSize = 4;

QByteArray WithLength(const QByteArray& body)
{
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    stream << body;
    return message;
}

/** The content of the first message as long as @p bytes stay; null if it is not complete. */
QByteArray FirstBody(const QByteArray& bytes)
{
    quint32 length = 0;
    QDataStream stream(bytes);
    stream >> length;
    if (stream.status() != QDataStream::Ok || bytes.size() - lengthSize < qint64(length))
        return {};
    return QByteArray::fromRawData(bytes.constData() + lengthSize, int(length));
}

} // namespace

QByteArray Packed(const Order& order)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream << order;
    return WithLength(body);
}

/** Pictures are sent as they are: to compress them would take longer. */
QByteArray Packed(const Answer& answer)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream << answer << answer.picture.size();
    body.append(reinterpret_cast<const char*>(answer.picture.constBits()),
                int(answer.picture.sizeInBytes()));
    return WithLength(body);
}

bool Take(QByteArray* bytes, Order* order)
{
    const QByteArray body = FirstBody(*bytes);
    if (body.isNull())
        return false;
    QDataStream stream(body);
    stream >> *order;
    bytes->remove(0, lengthSize + body.size());
    return true;
}

bool Take(QByteArray* bytes, Answer* answer)
{
    const QByteArray body = FirstBody(*bytes);
    if (body.isNull())
        return false;
    QSize size;
    QDataStream stream(body);
    stream >> *answer >> size;
    answer->picture = size.isEmpty() ? QImage() : QImage(size, QImage::Format_ARGB32);
    stream.readRawData(reinterpret_cast<char*>(answer->picture.bits()),
                       int(answer->picture.sizeInBytes()));
    bytes->remove(0, lengthSize + body.size());
    return true;
}

} // namespace AnimText
