#include "validate/datafile.h"

#include "text/glyphdata.h"
#include "text/limits.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

using namespace Lw::HNodeAnimationText;

namespace AnimText::validate {
namespace {

/** Why the sign reads nothing from @p file, whose outer or inner layer is empty. */
QString FaultOfOuterLayer(QFile* file)
{
    const quint32 nullArray = 0xFFFFFFFFu;
    const qint64 size = file->size();
    if (size > maxDataFileSize)
        return QStringLiteral("it has %1 bytes, more than %2").arg(size).arg(maxDataFileSize);
    file->seek(0);
    const QByteArray head = file->read(4);
    if (head.size() < 4)
        return "it has no length of 4 bytes at its beginning";
    const quint32 length = qFromBigEndian<quint32>(head.constData());
    if (length == nullArray)
        return "it holds a null array";
    if (length > size - 4)
        return QStringLiteral("it announces %1 bytes and has %2").arg(length).arg(size - 4);
    return "it holds no Base64 text";
}

/** The bytes inside both layers of the file, or a fault. */
QByteArray Unwrapped(const QString& path, QString* fault)
{
    QFile file(path);
    QByteArray bytes;
    if (!QFileInfo(path).isFile()) {
        *fault = "it is no regular file";
    } else if (!file.open(QIODevice::ReadOnly)) {
        *fault = QStringLiteral("it cannot be read: %1").arg(file.errorString());
    } else {
        bytes = ReadGlyphData(file);
        if (bytes.isEmpty())
            *fault = FaultOfOuterLayer(&file);
    }
    return bytes;
}

QString InWords(const GlyphDataFault& fault)
{
    using F = GlyphDataFault;
    const QString element = QStringLiteral("element %1").arg(fault.element);
    const QString number = QString::number(fault.number);
    const QString limit = QString::number(fault.limit);
    switch (fault.kind) {
    case F::Sound: break;
    case F::TooManyElements: return number + " elements, more than " + limit;
    case F::UnknownElement: return element + " has the unknown type " + number;
    case F::NoMoveFirst: return "it does not begin with a move";
    case F::BrokenCurve: return "the curve before " + element + " is broken";
    case F::FarOut: return element + QString::asprintf(" is at (%.9g, %.9g)", fault.x, fault.y);
    case F::StartOutside: return "its last contour begins at element " + number + " of " + limit;
    case F::UnknownFillRule: return "it has the unknown fill rule " + number;
    case F::CutOff:
        return QStringLiteral("it ends within outline %1 of %2").arg(fault.outline).arg(limit);
    case F::NoCount: return "it ends before the number of its entries";
    case F::CountTooLarge: return "it announces " + number + " entries and has room for " + limit;
    }
    return QString();
}

} // namespace

DataFile LookIntoPathFile(const QString& path)
{
    DataFile file;
    const QByteArray bytes = Unwrapped(path, &file.fault);
    if (!file.fault.isEmpty())
        return file;
    for (const QPainterPath& outline : OutlinesFrom(bytes)) {
        file.isEmpty.append(outline.isEmpty());
        file.ink.append(outline.boundingRect());
    }
    for (const GlyphDataFault& fault : OutlineFaults(bytes)) {
        if (fault.LeavesNothing()) {
            file.fault = InWords(fault);
            file.badOutlines.clear();
        } else {
            file.badOutlines.append({fault.outline, InWords(fault)});
            if (fault.outline < file.isEmpty.size())
                file.isEmpty[fault.outline] = false;
        }
    }
    return file;
}

DataFile LookIntoDescentFile(const QString& path)
{
    DataFile file;
    const QByteArray bytes = Unwrapped(path, &file.fault);
    if (file.fault.isEmpty()) {
        file.fault = InWords(DescentFault(bytes));
        file.descents = DescentsFrom(bytes);
    }
    return file;
}

} // namespace AnimText::validate
