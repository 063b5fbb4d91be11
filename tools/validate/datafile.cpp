#include "validate/datafile.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <cmath>
#include <cstring>

namespace AnimText {
namespace {

const qint64 largestFile = qint64(256) << 20;
const quint32 nullArray = 0xFFFFFFFFu;
const int bytesPerElement = 20;   // type, x, y
const int bytesAfterElements = 8; // start of the last contour, fill rule
const int largestOutline = 65536; // elements
const double farthestPoint = 1e6; // pixels

enum ElementType { Move = 0, Line = 1, Curve = 2, CurveData = 3 };

/** Reads big-endian numbers; the caller looks at Left() first. */
class Numbers
{
public:
    explicit Numbers(const QByteArray& bytes)
        : bytes(bytes)
    {
    }

    qint64 Left() const { return bytes.size() - place; }
    qint32 Int() { return Next<qint32>(); }
    double Double()
    {
        const quint64 bits = Next<quint64>();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

private:
    template <typename T>
    T Next()
    {
        const T value = qFromBigEndian<T>(bytes.constData() + place);
        place += int(sizeof(T));
        return value;
    }

    const QByteArray bytes;
    int place = 0;
};

/** The bytes inside both layers of the file, or a fault. */
QByteArray Unwrapped(const QString& path, QString* fault)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile()) {
        *fault = QStringLiteral("it is no regular file");
    } else if (info.size() > largestFile) {
        *fault = QStringLiteral("it has %1 bytes, more than %2").arg(info.size()).arg(largestFile);
    } else if (!file.open(QIODevice::ReadOnly)) {
        *fault = QStringLiteral("it cannot be read: %1").arg(file.errorString());
    }
    if (!fault->isEmpty())
        return QByteArray();

    const QByteArray head = file.read(4);
    const quint32 length = head.size() == 4 ? qFromBigEndian<quint32>(head.constData()) : 0;
    if (head.size() < 4) {
        *fault = QStringLiteral("it has no length of 4 bytes at its beginning");
    } else if (length == nullArray) {
        *fault = QStringLiteral("it holds a null array");
    } else if (length > info.size() - 4) {
        *fault =
            QStringLiteral("it announces %1 bytes and has %2").arg(length).arg(info.size() - 4);
    }
    if (!fault->isEmpty())
        return QByteArray();
    return QByteArray::fromBase64(file.read(length));
}

/** The number of entries at the beginning, each of which takes four bytes or more; or a fault. */
int EntryCount(Numbers* numbers, QString* fault)
{
    if (numbers->Left() < 4) {
        *fault = QStringLiteral("it ends before the number of its entries");
        return 0;
    }
    const int count = numbers->Int();
    if (count < 0 || count > numbers->Left() / 4) {
        *fault = QStringLiteral("it announces %1 entries and has room for %2")
                     .arg(quint32(count))
                     .arg(numbers->Left() / 4);
        return 0;
    }
    return count;
}

/** Reads the @p size elements of an outline and what follows them. @return what is wrong, or empty
 */
QString FaultOfOutline(Numbers* numbers, int size)
{
    QString fault;
    const auto complain = [&fault](const QString& text) {
        if (fault.isEmpty())
            fault = text;
    };
    if (size > largestOutline)
        complain(QStringLiteral("%1 elements, more than %2").arg(size).arg(largestOutline));
    int dataDue = 0; // control points that the last curve still lacks
    for (int i = 0; i < size; ++i) {
        const int type = numbers->Int();
        const double x = numbers->Double();
        const double y = numbers->Double();
        if (type < Move || type > CurveData)
            complain(QStringLiteral("element %1 has the unknown type %2").arg(i).arg(type));
        else if (i == 0 && type != Move)
            complain(QStringLiteral("it does not begin with a move"));
        else if ((dataDue > 0) != (type == CurveData))
            complain(QStringLiteral("the curve before element %1 is broken").arg(i));
        dataDue = type == Curve ? 2 : qMax(0, dataDue - 1);
        if (!(std::fabs(x) <= farthestPoint && std::fabs(y) <= farthestPoint))
            complain(QStringLiteral("element %1 is at (%2, %3)").arg(i).arg(x).arg(y));
    }
    if (dataDue > 0)
        complain(QStringLiteral("its last curve is broken"));
    const int start = numbers->Int();
    const int rule = numbers->Int();
    if (start < 0 || start >= size)
        complain(
            QStringLiteral("its last contour begins at element %1 of %2").arg(start).arg(size));
    if (rule != 0 && rule != 1)
        complain(QStringLiteral("it has the unknown fill rule %1").arg(rule));
    return fault;
}

} // namespace

DataFile LookIntoPathFile(const QString& path)
{
    DataFile file;
    Numbers numbers(Unwrapped(path, &file.fault));
    if (!file.fault.isEmpty())
        return file;
    const int count = EntryCount(&numbers, &file.fault);
    for (int i = 0; i < count; ++i) {
        const qint64 left = numbers.Left();
        const int size = left < 4 ? -1 : numbers.Int();
        const bool whole = size == 0 || (size > 0 && size <= (numbers.Left() - bytesAfterElements) /
                                                                 bytesPerElement);
        if (!whole) {
            file = DataFile();
            file.fault = QStringLiteral("it ends within outline %1 of %2").arg(i).arg(count);
            return file;
        }
        const QString fault = size == 0 ? QString() : FaultOfOutline(&numbers, size);
        if (!fault.isEmpty())
            file.badOutlines.append({i, fault});
        file.isEmpty.append(size <= 1);
    }
    file.entries = count;
    return file;
}

DataFile LookIntoDescentFile(const QString& path)
{
    DataFile file;
    Numbers numbers(Unwrapped(path, &file.fault));
    if (file.fault.isEmpty())
        file.entries = EntryCount(&numbers, &file.fault);
    for (int i = 0; i < file.entries; ++i)
        file.descents.append(numbers.Int());
    return file;
}

} // namespace AnimText
