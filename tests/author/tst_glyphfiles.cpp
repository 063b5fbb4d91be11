#include "layout/glyphfiles.h"

#include <QPainterPath>
#include <QtTest>

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

} // namespace

class TestGlyphFiles : public QObject
{
    Q_OBJECT

private slots:
    void areWrittenAsTheSignReadsThem()
    {
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        path.lineTo(10, 0);
        path.lineTo(0, -10.25);
        path.closeSubpath();
        QPainterPath bend;
        bend.cubicTo(1, 0, 1, 1, 0, 1);
        const QByteArray paths = layout::PathFile({path, QPainterPath(), bend});
        QCOMPARE(paths, Wrapped(Count(3) + triangle + Count(0) + curve));
        for (int count = 0; count <= 3; ++count) {
            const QVector<QPainterPath> outlines =
                QVector<QPainterPath>{path, {}, bend}.mid(0, count);
            const int size = layout::PathFile(outlines).size();
            QCOMPARE(layout::OutlinesThatFit({path, {}, bend}, size), count);
            QCOMPARE(layout::OutlinesThatFit(outlines, size - 4), qMax(0, count - 1));
        }
        const QByteArray descents = layout::DescentFile({8, -1, 0});
        QCOMPARE(descents, Wrapped(QByteArray::fromHex("0000000300000008ffffffff00000000")));
        QCOMPARE(layout::PathFile({}), Wrapped(Count(0)));
    }
};

QTEST_GUILESS_MAIN(TestGlyphFiles)
#include "tst_glyphfiles.moc"
