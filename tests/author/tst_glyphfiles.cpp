#include "testfolder.h"

#include "author/glyphfiles.h"
#include "validate/datafile.h"

#include <QPainterPath>
#include <QtTest>

#include <sys/stat.h>

using namespace AnimText;

namespace {

// Element count; type, x, y of each element; start of the last contour, fill rule.
const QByteArray triangle = QByteArray::fromHex(R"(00000004
    00000000 0000000000000000 0000000000000000
    00000001 4024000000000000 0000000000000000
    00000001 0000000000000000 c024800000000000
    00000001 0000000000000000 0000000000000000
    00000000 00000001)");
const QByteArray curve = QByteArray::fromHex(R"(00000004
    00000000 0000000000000000 0000000000000000
    00000002 3ff0000000000000 0000000000000000
    00000003 3ff0000000000000 3ff0000000000000
    00000003 0000000000000000 3ff0000000000000
    00000000 00000000)");

QByteArray Count(int count)
{
    return QByteArray::fromHex(QByteArray::number(quint32(count), 16).rightJustified(8, '0'));
}

QByteArray Wrapped(const QByteArray& content)
{
    const QByteArray text = content.toBase64();
    return Count(text.size()) + text;
}

/** @p bytes with @p patch in place of what stands at @p offset. */
QByteArray Patched(QByteArray bytes, int offset, const char* patch)
{
    const QByteArray hex = QByteArray::fromHex(patch);
    return bytes.replace(offset, hex.size(), hex);
}

} // namespace

class tst_glyphfiles : public QObject
{
    Q_OBJECT

private slots:
    void bytes()
    {
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        path.lineTo(10, 0);
        path.lineTo(0, -10.25);
        path.closeSubpath();
        QPainterPath bend;
        bend.cubicTo(1, 0, 1, 1, 0, 1);
        const QByteArray paths = PathFile({path, QPainterPath(), bend});
        QCOMPARE(paths, Wrapped(Count(3) + triangle + Count(0) + curve));
        for (int count = 0; count <= 3; ++count) {
            const QVector<QPainterPath> outlines =
                QVector<QPainterPath>{path, {}, bend}.mid(0, count);
            const int size = PathFile(outlines).size();
            QCOMPARE(OutlinesThatFit({path, {}, bend}, size), count);
            QCOMPARE(OutlinesThatFit(outlines, size - 4), qMax(0, count - 1));
        }
        const QByteArray descents = DescentFile({8, -1, 0});
        QCOMPARE(descents, Wrapped(QByteArray::fromHex("0000000300000008ffffffff00000000")));
        QCOMPARE(PathFile({}), Wrapped(Count(0)));

        const DataFile read = LookIntoPathFile(folder.Write("data", paths));
        QVERIFY2(read.fault.isEmpty() && read.badOutlines.isEmpty(), qPrintable(read.fault));
        QCOMPARE(read.entries, 3);
        QCOMPARE(read.isEmpty, (QVector<bool>{false, true, false}));
        QCOMPARE(LookIntoDescentFile(folder.Write("data", descents)).entries, 3);
    }

    void faults_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("readable"); // then the first of three outlines is the bad one

        const auto broken = [](const char* name, const QByteArray& file) {
            QTest::newRow(name) << file << false;
        };
        const QByteArray whole = Count(1) + triangle;
        broken("nothing", QByteArray());
        broken("null array", Count(-1) + "AAAA");
        broken("length beyond the end", Count(100) + "AAAA");
        broken("no Base64", Count(4) + "\x01\x02\x03\x04");
        broken("more entries than bytes", Wrapped(Count(5) + triangle.left(16)));
        broken("negative count", Wrapped(Count(-2) + triangle));
        broken("negative outline", Wrapped(Patched(whole, 4, "ffffffff")));
        broken("outline longer than the file", Wrapped(Patched(whole, 4, "00000005")));
        broken("ends within an outline", Wrapped(whole.chopped(1)));
        broken("second outline missing", Wrapped(Count(2) + triangle));

        const auto bad = [](const char* name, const QByteArray& outline) {
            QTest::newRow(name) << Wrapped(Count(3) + outline + curve + Count(0)) << true;
        };
        bad("unknown type", Patched(triangle, 24, "00000004"));
        bad("negative type", Patched(triangle, 24, "ffffffff"));
        bad("begins with a line", Patched(triangle, 4, "00000001"));
        bad("curve without its points", Patched(triangle, 44, "00000002"));
        bad("point without its curve", Patched(triangle, 44, "00000003"));
        bad("curve at the end", Patched(triangle, 64, "00000002"));
        bad("not a number", Patched(triangle, 28, "7ff8000000000000"));
        bad("a million and one", Patched(triangle, 36, "412e848200000000"));
        bad("start outside", Patched(triangle, 84, "00000004"));
        bad("unknown fill rule", Patched(triangle, 88, "00000002"));
        QByteArray vast = Count(65537) + triangle.mid(4, 20);
        for (int i = 1; i < 65537; ++i)
            vast += triangle.mid(24, 20);
        bad("too many elements", vast + triangle.right(8));
    }

    void faults()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, readable);
        const DataFile read = LookIntoPathFile(folder.Write("data", file));
        QCOMPARE(read.fault.isEmpty(), readable);
        QCOMPARE(read.entries, readable ? 3 : 0);
        QCOMPARE(read.badOutlines.size(), readable ? 1 : 0);
        if (readable)
            QCOMPARE(read.badOutlines[0].index, 0);
    }

    void notAFile()
    {
        const QString pipe = folder.Path("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!LookIntoPathFile(pipe).fault.isEmpty());
        QVERIFY(!LookIntoDescentFile(folder.Path(".")).fault.isEmpty());
        QVERIFY(QFile::resize(folder.Write("vast", ""), (qint64(256) << 20) + 1));
        QVERIFY(LookIntoDescentFile(folder.Path("vast")).fault.contains("more than"));
    }

private:
    TestFolder folder;
};

QTEST_GUILESS_MAIN(tst_glyphfiles)
#include "tst_glyphfiles.moc"
