#include "hostile.h"

#include "layout/glyphfiles.h"
#include "support/malformedglyphs.h"

#include <QFile>
#include <QImage>

#include <cmath>
#include <limits>

#include <sys/stat.h>

namespace {

using Glyphs::Element, Glyphs::File, Glyphs::Outline;

/** A triangle that reaches as far as @p x, as a data file would have it. */
QByteArray Triangle(double x)
{
    return Outline(Element(0, 0, 0) + Element(1, x, 0) + Element(1, x, -9));
}

/** Lines to and fro. */
QByteArray Zigzag(int size, double reach)
{
    QByteArray elements = Element(0, 0, 0);
    for (int i = 1; i < size; ++i)
        elements += Element(1, i % 2 ? reach : -reach, i % 7 - 20);
    return Outline(elements);
}

class Folder
{
public:
    Folder(const QDir& folder, const char* kind)
        : folder(folder)
        , kind(QLatin1String(kind))
    {
    }

    void Add(const QByteArray& name, const QByteArray& content, Weight weight = Weight::Light)
    {
        const QString path = NextPath();
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s cannot be written", qPrintable(path));
        files.append({name, path, weight});
    }

    /** A file of @p size that begins with @p head and has holes behind it. */
    void AddSparse(const char* name, const QByteArray& head, qint64 size)
    {
        Add(name, head, Weight::Slow);
        QFile(files.last().path).resize(size);
    }

    void AddPath(const char* name, const QString& path, Weight weight = Weight::Light)
    {
        files.append({name, path, weight});
    }

    /** Things that exist but are not readable files. */
    void AddImpossible()
    {
        AddPath("missing", folder.filePath(QStringLiteral("none")));
        AddPath("no name", QString());
        AddPath("a folder", folder.path());
        AddPath("endless zeros", QStringLiteral("/dev/zero"));
        AddPath("the null device", QStringLiteral("/dev/null"));
        AddPath("a very long name", QString(5000, QLatin1Char('x')));
        AddPath("a pipe", NextPath());
        mkfifo(QFile::encodeName(files.last().path).constData(), 0600);
        AddPath("a link to itself", NextPath());
        QFile::link(files.last().path, files.last().path);
        Add("empty", QByteArray());
    }

    QList<HostileFile> files;

private:
    QString NextPath() { return folder.filePath(kind + QString::number(files.size())); }

    QDir folder;
    QString kind;
};

/** What can be wrong about the outer layer of either data file, around @p inner. */
void AddOuterLayers(Folder* folder, const QByteArray& inner)
{
    const QByteArray sound = File(inner);
    folder->AddImpossible();
    for (const Glyphs::Sample& sample : Glyphs::FileSamples())
        folder->Add(sample.name, sample.bytes);
    folder->Add("cut in half", sound.left(sound.size() / 2));
    folder->Add("with bytes behind", sound + QByteArray(1000, '\0'));
    folder->AddSparse("too large a file", Serialized(quint32(300 << 20)), 300LL << 20);
    folder->AddSparse("24 MiB of nothing", Serialized(quint32((24 << 20) - 4)), 24LL << 20);
    folder->Add("inner count huge", File(Serialized(qint32(0x10000000)) + inner.mid(4)));
    folder->Add("inner count 2^30 and no bytes", File(Serialized(qint32(1 << 30))));
}

quint32 Crc(const QByteArray& bytes)
{
    quint32 crc = 0xFFFFFFFF;
    for (char byte : bytes) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? crc >> 1 ^ 0xEDB88320u : crc >> 1;
    }
    return ~crc;
}

QByteArray Chunk(const QByteArray& type, const QByteArray& data)
{
    return Serialized(quint32(data.size())) + type + data + Serialized(Crc(type + data));
}

/** A PNG that claims a size and has no pixels to show for it. */
QByteArray PngClaiming(quint32 width, quint32 height)
{
    return QByteArray("\x89PNG\r\n\x1A\n") +
           Chunk("IHDR", Serialized(width, height) + QByteArray("\x08\x06\0\0\0", 5)) +
           Chunk("IDAT", QByteArray::fromHex("789c63000000010001")) + Chunk("IEND", "");
}

/** A GIF of two pictures of one pixel in black and white that claims a size. */
QByteArray Gif(const QByteArray& size)
{
    const QByteArray picture = QByteArray::fromHex("21f904000000000000"
                                                   "2c000000000100010000"
                                                   "0202440100");
    return "GIF89a" + size + QByteArray::fromHex("800000000000ffffff") + picture + picture + ';';
}

} // namespace

QList<HostileFile> HostilePathFiles(const QDir& where)
{
    Folder folder(where, "path");
    const auto add = [&](const QByteArray& name, const QByteArray& outline,
                         Weight weight = Weight::Light) {
        // Between two sound ones, which keep their places.
        folder.Add(name, File(Serialized(qint32(3)) + Triangle(9) + outline + Triangle(7)), weight);
    };

    AddOuterLayers(&folder, Serialized(qint32(2)) + Triangle(9) + Triangle(8));
    folder.Add("descents instead", AnimText::layout::DescentFile({1, 2, 3, 4, 5, 6}));
    folder.Add("one outline", File(Serialized(qint32(1)) + Triangle(5)));
    folder.Add("100,000 outlines without a line",
               File(Serialized(qint32(100000)) + QByteArray(400000, '\0')));
    folder.Add("more outlines than characters",
               File(Serialized(qint32(500)) + Triangle(5).repeated(500)));
    for (const Glyphs::Sample& sample : Glyphs::OutlineSamples())
        folder.Add(sample.name, File(sample.bytes),
                   sample.bytes.size() < 1 << 20 ? Weight::Light : Weight::Slow);
    for (double x : {1e300, -1e300, 5e-324})
        add("coordinate " + QByteArray::number(x), Triangle(x));
    add("as far as may be", Triangle(1e6));
    add("as far as may be, to the left", Triangle(-1e6));
    add("as many elements as may be", Zigzag(65536, 30), Weight::Slow);
    add("many elements, and far", Zigzag(16384, 1e6), Weight::Slow);
    return folder.files;
}

QList<HostileFile> HostileDescentFiles(const QDir& where)
{
    Folder folder(where, "descent");
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    AddOuterLayers(&folder, Serialized(qint32(3), qint32(4), qint32(5), qint32(6)));
    for (const Glyphs::Sample& sample : Glyphs::DescentSamples())
        folder.Add(sample.name, File(sample.bytes));
    folder.Add("least", AnimText::layout::DescentFile(QVector<int>(20, least)));
    folder.Add("most", AnimText::layout::DescentFile(QVector<int>(20, most)));
    folder.Add("least and most",
               AnimText::layout::DescentFile({least, most, 0, -1, least, most, 1, 0}));
    folder.Add("only one", AnimText::layout::DescentFile({3}));
    folder.Add("100,000 of them", AnimText::layout::DescentFile(QVector<int>(100000, 3)));
    return folder.files;
}

QList<HostileFile> HostilePictures(const QDir& where)
{
    Folder folder(where, "picture");
    folder.AddImpossible();
    folder.Add("text", "This is no picture.\n");
    folder.Add("60,000 x 60,000 pixels", PngClaiming(60000, 60000));
    folder.Add("2^31 - 1 pixels wide", PngClaiming(0x7FFFFFFF, 1));
    folder.Add("no pixels", PngClaiming(0, 0));
    folder.Add("pixels missing", PngClaiming(300, 200));
    folder.Add("a film of 65,535 x 65,535 pixels", Gif("\xFF\xFF\xFF\xFF"));
    folder.Add("a film without delays", Gif(QByteArray("\x01\x00\x01\x00", 4)));
    folder.Add("a film cut off", Gif(QByteArray("\x01\x00\x01\x00", 4)).left(40));
    QImage large(5000, 4000, QImage::Format_Grayscale8);
    large.fill(90);
    folder.AddPath("20 megapixels", where.filePath(QStringLiteral("large.png")), Weight::Slow);
    large.save(folder.files.last().path);
    return folder.files;
}
