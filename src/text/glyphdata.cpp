#include "text/glyphdata.h"

#include "text/limits.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

namespace {

typedef GlyphDataFault Fault;

// A stream of big-endian numbers, read without copying. Callers check Left() before they read.
class Bytes
{
public:
    explicit Bytes(const QByteArray& bytes)
        : at(reinterpret_cast<const uchar*>(bytes.constData()))
        , left(bytes.size())
    {
    }

    qint64 Left() const { return left; }

    void Skip(qint64 count)
    {
        at += count;
        left -= count;
    }

    qint32 Int()
    {
        const qint32 number = qFromBigEndian<qint32>(at);
        Skip(4);
        return number;
    }

    double Double()
    {
        const quint64 bits = qFromBigEndian<quint64>(at);
        Skip(8);
        double number;
        std::memcpy(&number, &bits, sizeof number);
        return number;
    }

private:
    const uchar* at;
    qint64 left;
};

const int elementBytes = 4 + 8 + 8; // type, x, y
const int outlineTailBytes = 4 + 4; // start of the open subpath, fill rule

bool IsDrawable(double coordinate)
{
    return coordinate >= -maxOutlineCoordinate && coordinate <= maxOutlineCoordinate;
}

// Checks the elements and the tail of an outline.
Fault FaultOfElements(Bytes bytes, qint32 size)
{
    int curveDataDue = 0;
    for (qint32 i = 0; i < size; ++i) {
        const qint32 type = bytes.Int();
        const double x = bytes.Double();
        const double y = bytes.Double();
        if (type < QPainterPath::MoveToElement || type > QPainterPath::CurveToDataElement)
            return Fault(Fault::UnknownElement, i, type);
        if (i == 0 && type != QPainterPath::MoveToElement)
            return Fault(Fault::NoMoveFirst, i, type);
        if ((type == QPainterPath::CurveToDataElement) != (curveDataDue > 0))
            return Fault(Fault::BrokenCurve, i);
        if (!IsDrawable(x) || !IsDrawable(y)) {
            Fault fault(Fault::FarOut, i);
            fault.x = x;
            fault.y = y;
            return fault;
        }
        if (type == QPainterPath::CurveToElement)
            curveDataDue = 2;
        else if (curveDataDue > 0)
            --curveDataDue;
    }
    if (curveDataDue > 0)
        return Fault(Fault::BrokenCurve, size);
    const qint32 start = bytes.Int();
    if (start < 0 || start >= size)
        return Fault(Fault::StartOutside, 0, start, size);
    const qint32 fillRule = bytes.Int();
    if (fillRule < Qt::OddEvenFill || fillRule > Qt::WindingFill)
        return Fault(Fault::UnknownFillRule, 0, fillRule);
    return Fault();
}

// Checks one outline and moves behind it, if its length is known.
Fault LookOver(Bytes& bytes)
{
    if (bytes.Left() < 4)
        return Fault(Fault::CutOff);
    const qint32 size = bytes.Int();
    if (size == 0)
        return Fault();
    if (size < 0 || size > (bytes.Left() - outlineTailBytes) / elementBytes)
        return Fault(Fault::CutOff);
    const Bytes elements = bytes;
    bytes.Skip(qint64(size) * elementBytes + outlineTailBytes);
    if (size > maxOutlineElements)
        return Fault(Fault::TooManyElements, 0, size, maxOutlineElements);
    return FaultOfElements(elements, size);
}

// Reads the number of entries, of at least four bytes each.
Fault ReadCount(Bytes& bytes, qint64* count)
{
    if (bytes.Left() < 4)
        return Fault(Fault::NoCount);
    *count = static_cast<quint32>(bytes.Int());
    const qint64 room = bytes.Left() / 4;
    return *count > room ? Fault(Fault::CountTooLarge, 0, *count, room) : Fault();
}

// The worst of all outlines in `bytes`, and how many there are. `faults`, unless null, takes
// every fault.
Fault::Kind LookOverAll(Bytes bytes, qint64* count, QVector<Fault>* faults)
{
    Fault fault = ReadCount(bytes, count);
    Fault::Kind worst = fault.kind;
    if (faults && fault.kind != Fault::Sound)
        faults->append(fault);
    for (qint64 i = 0; i < *count && !fault.LeavesNothing(); ++i) {
        fault = LookOver(bytes);
        worst = qMax(worst, fault.kind);
        if (faults && fault.kind != Fault::Sound) {
            fault.outline = static_cast<int>(i);
            if (fault.kind == Fault::CutOff)
                fault.limit = *count;
            faults->append(fault);
        }
    }
    return worst;
}

// Outline by outline, skipping the malformed ones.
QVector<QPainterPath> SoundOutlines(const QByteArray& bytes, int count)
{
    QVector<QPainterPath> outlines(count);
    Bytes rest(bytes);
    rest.Int();
    for (int i = 0; i < count; ++i) {
        const int begin = bytes.size() - static_cast<int>(rest.Left());
        if (LookOver(rest).kind != Fault::Sound)
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
    const Fault::Kind worst = LookOverAll(Bytes(bytes), &count, 0);
    if (worst == Fault::Sound) {
        QDataStream stream(bytes);
        stream.setVersion(QDataStream::Qt_4_8);
        stream >> outlines;
    } else if (!Fault(worst).LeavesNothing()) {
        outlines = SoundOutlines(bytes, static_cast<int>(count));
    }
    return outlines;
}

QVector<Fault> OutlineFaults(const QByteArray& bytes)
{
    QVector<Fault> faults;
    qint64 count = 0;
    LookOverAll(Bytes(bytes), &count, &faults);
    return faults;
}

QVector<int> DescentsFrom(const QByteArray& bytes)
{
    QVector<int> descents;
    if (DescentFault(bytes).kind != Fault::Sound)
        return descents;
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_4_8);
    stream >> descents;
    return descents;
}

Fault DescentFault(const QByteArray& bytes)
{
    Bytes rest(bytes);
    qint64 count = 0;
    return ReadCount(rest, &count);
}

} // namespace HNodeAnimationText
} // namespace Lw
