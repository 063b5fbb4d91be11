#include "author/glyphfiles.h"

#include <QDataStream>

namespace AnimText {
namespace {

template <typename T>
QByteArray Serialised(const T& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_8);
    stream << value;
    return bytes;
}

} // namespace

QByteArray PathFile(const QVector<QPainterPath>& outlines)
{
    return Serialised(Serialised(outlines).toBase64());
}

QByteArray DescentFile(const QVector<int>& descents)
{
    return Serialised(Serialised(descents).toBase64());
}

} // namespace AnimText
