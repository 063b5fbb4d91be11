#include "layout/glyphfiles.h"

#include <QDataStream>
#include <QIODevice>

namespace AnimText::layout {
namespace {

template <typename T>
QByteArray Serialized(const T& value)
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
    return Serialized(Serialized(outlines).toBase64());
}

int OutlinesThatFit(const QVector<QPainterPath>& outlines, qint64 bytes)
{
    // A length, then Base64, which has four characters for three bytes. An empty outline is only
    // its size.
    const qint64 room = (bytes - 4) / 4 * 3;
    qint64 taken = 4;
    int fitting = 0;
    for (const QPainterPath& outline : outlines) {
        const qint64 elements = outline.elementCount();
        taken += elements == 0 ? 4 : 4 + 20 * elements + 8;
        if (taken > room)
            break;
        ++fitting;
    }
    return fitting;
}

QByteArray DescentFile(const QVector<int>& descents)
{
    return Serialized(Serialized(descents).toBase64());
}

} // namespace AnimText::layout
