#include "validate/datafile.h"

#include "text/glyphdata.h"
#include "text/limits.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

using namespace Lw::HNodeAnimationText;

namespace AnimText {
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
        return QStringLiteral("it has no length of 4 bytes at its beginning");
    const quint32 length = qFromBigEndian<quint32>(head.constData());
    if (length == nullArray)
        return QStringLiteral("it holds a null array");
    if (length > size - 4)
        return QStringLiteral("it announces %1 bytes and has %2").arg(length).arg(size - 4);
    return QStringLiteral("it holds no Base64 text");
}

/** The bytes inside both layers of the file, or a fault. */
QByteArray Unwrapped(const QString& path, QString* fault)
{
    QFile file(path);
    QByteArray bytes;
    if (!QFileInfo(path).isFile()) {
        *fault = QStringLiteral("it is no regular file");
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
    switch (fault.kind) {
    case GlyphDataFault::Sound: break;
    case GlyphDataFault::TooManyElements:
        return QStringLiteral("%1 elements, more than %2").arg(fault.number).arg(fault.limit);
    case GlyphDataFault::UnknownElement:
        return QStringLiteral("element %1 has the unknown type %2")
            .arg(fault.element)
            .arg(fault.number);
    case GlyphDataFault::NoMoveFirst: return QStringLiteral("it does not begin with a move");
    case GlyphDataFault::BrokenCurve:
        return QStringLiteral("the curve before element %1 is broken").arg(fault.element);
    case GlyphDataFault::FarOut:
        return QStringLiteral("element %1 is at (%2, %3)")
            .arg(fault.element)
            .arg(fault.x, 0, 'g', 9)
            .arg(fault.y, 0, 'g', 9);
    case GlyphDataFault::StartOutside:
        return QStringLiteral("its last contour begins at element %1 of %2")
            .arg(fault.number)
            .arg(fault.limit);
    case GlyphDataFault::UnknownFillRule:
        return QStringLiteral("it has the unknown fill rule %1").arg(fault.number);
    case GlyphDataFault::CutOff:
        return QStringLiteral("it ends within outline %1 of %2")
            .arg(fault.outline)
            .arg(fault.limit);
    case GlyphDataFault::NoCount: return QStringLiteral("it ends before the number of its entries");
    case GlyphDataFault::CountTooLarge:
        return QStringLiteral("it announces %1 entries and has room for %2")
            .arg(fault.number)
            .arg(fault.limit);
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
    file.entries = file.isEmpty.size();
    for (const GlyphDataFault& fault : OutlineFaults(bytes)) {
        if (fault.LeavesNothing()) {
            file.fault = InWords(fault);
            file.badOutlines.clear();
        } else {
            file.badOutlines.append({fault.outline, InWords(fault)});
            if (fault.outline < file.entries)
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
        file.entries = file.descents.size();
    }
    return file;
}

} // namespace AnimText
