#include "text/glyphdata.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

namespace {

// A stream of big-endian bytes, read without copying. Reading past the end answers 0 and is
// remembered.
class Bytes
{
public:
    explicit Bytes(const QByteArray& bytes)
        : at(reinterpret_cast<const uchar*>(bytes.constData()))
        , left(bytes.size())
    {
    }

    qint64 Left() const { return left; }

    qint32 Int()
    {
        const uchar* const value = Take(4);
        return value ? qFromBigEndian<qint32>(value) : 0;
    }

    double Double()
    {
        const uchar* const value = Take(8);
        const quint64 bits = value ? qFromBigEndian<quint64>(value) : 0;
        double number;
        std::memcpy(&number, &bits, sizeof number);
        return number;
    }

private:
    const uchar* Take(int count)
    {
        if (left < count) {
            left = 0;
            return 0;
        }
        const uchar* const taken = at;
        at += count;
        left -= count;
        return taken;
    }

    const uchar* at;
    qint64 left;
};

const int elementBytes = 4 + 8 + 8; // type, x, y
const int outlineTailBytes = 4 + 4; // start of the open subpath, fill rule

enum Framing { Sound, Malformed, Broken };

bool IsDrawable(double coordinate)
{
    return coordinate >= -maxOutlineCoordinate && coordinate <= maxOutlineCoordinate;
}

// Looks one outline over. Broken: where it ends cannot be known.
Framing LookOver(Bytes& bytes)
{
    if (bytes.Left() < 4)
        return Broken;
    const qint32 size = bytes.Int();
    if (size == 0)
        return Sound;
    if (size < 0 || size > (bytes.Left() - outlineTailBytes) / elementBytes)
        return Broken;

    bool sound = size <= maxOutlineElements;
    int curveDataDue = 0;
    for (qint32 i = 0; i < size; ++i) {
        const qint32 type = bytes.Int();
        const double x = bytes.Double();
        const double y = bytes.Double();
        const bool isCurveData = type == QPainterPath::CurveToDataElement;
        sound = sound && type >= QPainterPath::MoveToElement &&
                type <= QPainterPath::CurveToDataElement &&
                (i > 0 || type == QPainterPath::MoveToElement) &&
                isCurveData == (curveDataDue > 0) && IsDrawable(x) && IsDrawable(y);
        if (type == QPainterPath::CurveToElement)
            curveDataDue = 2;
        else if (curveDataDue > 0)
            --curveDataDue;
    }
    const qint32 start = bytes.Int();
    const qint32 fillRule = bytes.Int();
    sound = sound && curveDataDue == 0 && start >= 0 && start < size &&
            fillRule >= Qt::OddEvenFill && fillRule <= Qt::WindingFill;
    return sound ? Sound : Malformed;
}

// The worst of all outlines in `bytes`, and how many there are.
Framing LookOverAll(Bytes bytes, qint64* count)
{
    if (bytes.Left() < 4)
        return Broken;
    *count = static_cast<quint32>(bytes.Int());
    if (*count > bytes.Left() / 4)
        return Broken;
    Framing worst = Sound;
    for (qint64 i = 0; i < *count && worst != Broken; ++i)
        worst = qMax(worst, LookOver(bytes));
    return worst;
}

// Outline by outline, passing over the malformed ones.
QVector<QPainterPath> SoundOutlines(const QByteArray& bytes, int count)
{
    QVector<QPainterPath> outlines(count);
    Bytes rest(bytes);
    rest.Int();
    for (int i = 0; i < count; ++i) {
        const int begin = bytes.size() - static_cast<int>(rest.Left());
        if (LookOver(rest) != Sound)
            continue;
        const int end = bytes.size() - static_cast<int>(rest.Left());
        QDataStream stream(QByteArray::fromRawData(bytes.constData() + begin, end - begin));
        stream.setVersion(QDataStream::Qt_4_8);
        stream >> outlines[i];
    }
    return outlines;
}

} // namespace

QByteArray ReadGlyphData(QIODevice& file)
{
    QByteArray text;
    if (file.size() > maxDataFileSize)
        return text;
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_4_8);
    stream >> text;
    return QByteArray::fromBase64(text);
}

QVector<QPainterPath> OutlinesFrom(const QByteArray& bytes)
{
    QVector<QPainterPath> outlines;
    qint64 count = 0;
    switch (LookOverAll(Bytes(bytes), &count)) {
    case Sound: {
        QDataStream stream(bytes);
        stream.setVersion(QDataStream::Qt_4_8);
        stream >> outlines;
        break;
    }
    case Malformed: outlines = SoundOutlines(bytes, static_cast<int>(count)); break;
    case Broken: break;
    }
    return outlines;
}

QVector<int> DescentsFrom(const QByteArray& bytes)
{
    QVector<int> descents;
    Bytes rest(bytes);
    if (rest.Left() < 4)
        return descents;
    const qint64 count = static_cast<quint32>(rest.Int());
    if (count > rest.Left() / 4)
        return descents;
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_4_8);
    stream >> descents;
    return descents;
}

} // namespace HNodeAnimationText
} // namespace Lw
