// The data files of a node: broken in every way, missing, swapped, and whole.
#include "rectangletext.h"

#include <limits>
#include <sys/stat.h>

namespace {

// An outline in a stream, element by element, as no QPainterPath would hold it.
struct RawOutline
{
    struct Element
    {
        qint32 type;
        double x, y;
    };
    QVector<Element> elements{{0, 1, 2}, {1, 3, 4}, {1, 5, 6}};
    qint32 start = 0;
    qint32 fillRule = 0;
    qint32 size = -2; // claimed; -2: the true one
};

QDataStream& operator<<(QDataStream& stream, const RawOutline& outline)
{
    stream << (outline.size == -2 ? outline.elements.size() : outline.size);
    for (const RawOutline::Element& element : outline.elements)
        stream << element.type << element.x << element.y;
    return stream << outline.start << outline.fillRule;
}

RawOutline Outline(const QVector<RawOutline::Element>& elements, qint32 start = 0,
                   qint32 fillRule = 0)
{
    RawOutline outline;
    outline.elements = elements;
    outline.start = start;
    outline.fillRule = fillRule;
    return outline;
}

RawOutline Sized(qint32 size)
{
    RawOutline outline;
    outline.size = size;
    return outline;
}

RawOutline Polyline(int elements)
{
    RawOutline outline;
    outline.elements.fill({1, 7, 8}, elements);
    outline.elements[0].type = 0;
    return outline;
}

// @p outline between two sound ones of three elements each.
QByteArray Between(const RawOutline& outline)
{
    return Serialised(QVector<RawOutline>{RawOutline(), outline, RawOutline()});
}

QVector<int> ElementCounts(const QVector<QPainterPath>& outlines)
{
    QVector<int> counts;
    for (const QPainterPath& outline : outlines)
        counts.append(outline.elementCount());
    return counts;
}

const QString noPaths = ">>PathData File is not exist!!<< ";
const QString noDescents = ">>DescentVector File is not exist!!<< ";

} // namespace

class GlyphDataTest : public QObject
{
    Q_OBJECT

private slots:
    void outlines_data();
    void outlines();
    void descents_data();
    void descents();
    void files_data();
    void files();
    void soundDataStaysAsItIs();
    void everyReadIsFresh();
};

void GlyphDataTest::outlines_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVector<int>>("elements"); // of each outline
    const auto row = [](const char* name, const QByteArray& bytes, const QVector<int>& elements) {
        QTest::newRow(name) << bytes << elements;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    const QByteArray sound = Between(RawOutline());

    row("sound", sound, {3, 3, 3});
    row("bytes behind", sound + "more", {3, 3, 3});
    row("curve", Between(Outline({{0, 1, 2}, {2, 3, 4}, {3, 5, 6}, {3, 7, 8}})), {3, 4, 3});
    row("winding", Between(Outline({{0, 1, 2}, {1, 3, 4}}, 1, 1)), {3, 2, 3});
    row("far out", Between(Outline({{0, -1e6, 1e6}, {1, 3, 4}})), {3, 2, 3});
    row("as many elements as there may be", Between(Polyline(65536)), {3, 65536, 3});

    // Where an outline ends cannot be known: nothing is read.
    row("nothing", "", {});
    row("half a count", sound.left(3), {});
    row("more outlines than bytes", QByteArray("\x7f\xff\xff\xff", 4) + sound.mid(4), {});
    row("as many outlines as there can be", QByteArray(4, '\xff') + sound.mid(4), {});
    row("one outline more than there are", QByteArray("\0\0\0\4", 4) + sound.mid(4), {});
    row("cut in an element", sound.left(100), {});
    row("cut in the last fill rule", sound.chopped(1), {});
    row("size below nought", Between(Sized(-1)), {});
    row("size beyond the bytes", Between(Sized(8)), {});
    row("size beyond everything", Between(Sized(0x7fffffff)), {});

    // An outline that is wrong in itself is empty and the others keep their places.
    row("type above all", Between(Outline({{0, 1, 2}, {4, 3, 4}})), {3, 0, 3});
    row("type below all", Between(Outline({{0, 1, 2}, {-1, 3, 4}})), {3, 0, 3});
    row("begins with a line", Between(Outline({{1, 1, 2}, {1, 3, 4}})), {3, 0, 3});
    row("begins with a curve", Between(Outline({{2, 1, 2}, {3, 3, 4}, {3, 5, 6}})), {3, 0, 3});
    row("curve with one point", Between(Outline({{0, 1, 2}, {2, 3, 4}, {3, 5, 6}})), {3, 0, 3});
    row("curve with a line inside", Between(Outline({{0, 1, 2}, {2, 3, 4}, {3, 5, 6}, {1, 7, 8}})),
        {3, 0, 3});
    row("curve in a curve", Between(Outline({{0, 1, 2}, {2, 3, 4}, {2, 5, 6}, {3, 7, 8}})),
        {3, 0, 3});
    row("points without a curve", Between(Outline({{0, 1, 2}, {3, 3, 4}, {3, 5, 6}})), {3, 0, 3});
    row("starts before itself", Between(Outline({{0, 1, 2}, {1, 3, 4}}, -1)), {3, 0, 3});
    row("starts behind itself", Between(Outline({{0, 1, 2}, {1, 3, 4}}, 2)), {3, 0, 3});
    row("fill rule above all", Between(Outline({{0, 1, 2}, {1, 3, 4}}, 0, 2)), {3, 0, 3});
    row("fill rule below all", Between(Outline({{0, 1, 2}, {1, 3, 4}}, 0, -1)), {3, 0, 3});
    row("not a number", Between(Outline({{0, 1, 2}, {1, nan, 4}})), {3, 0, 3});
    row("infinite", Between(Outline({{0, 1, 2}, {1, 3, -infinite}})), {3, 0, 3});
    row("too far out", Between(Outline({{0, 1000001, 2}, {1, 3, 4}})), {3, 0, 3});
    row("too many elements", Between(Polyline(65537)), {3, 0, 3});
}

void GlyphDataTest::outlines()
{
    QFETCH(QByteArray, bytes);
    RectangleText text = RectangleText::TwoPages();
    WriteGlyphData(text.File("paths"), bytes);
    const Messages messages;
    QTEST(ElementCounts(text.node->GetPainterPaths()), "elements");
    QCOMPARE(text.node->GetDescentData(), (QVector<int>{4, 5, 3}));
    QCOMPARE(messages.Taken(), QStringList());
}

void GlyphDataTest::descents_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVector<int>>("descents");
    const QByteArray sound = Serialised(QVector<int>{4, -5});
    QTest::newRow("sound") << sound << QVector<int>{4, -5};
    QTest::newRow("bytes behind") << sound + "more" << QVector<int>{4, -5};
    QTest::newRow("nothing") << QByteArray() << QVector<int>();
    QTest::newRow("half a count") << sound.left(2) << QVector<int>();
    QTest::newRow("cut") << sound.chopped(1) << QVector<int>();
    QTest::newRow("more than there are")
        << QByteArray("\0\0\0\3", 4) + sound.mid(4) << QVector<int>();
    QTest::newRow("as many as there can be")
        << QByteArray(4, '\xff') + sound.mid(4) << QVector<int>();
}

void GlyphDataTest::descents()
{
    QFETCH(QByteArray, bytes);
    RectangleText text = RectangleText::TwoPages();
    WriteGlyphData(text.File("descents"), bytes);
    QTEST(text.node->GetDescentData(), "descents");
    QCOMPARE(text.node->GetPainterPaths().size(), 3);
}

void GlyphDataTest::files_data()
{
    QTest::addColumn<QString>("paths"); // how the file is; "" as it should be
    QTest::addColumn<QString>("descents");
    QTest::addColumn<int>("outlineCount");
    QTest::addColumn<int>("descentCount");
    QTest::addColumn<QStringList>("messages");
    const struct
    {
        const char* paths;
        const char* descents;
        int outlineCount, descentCount;
        QStringList messages;
    } rows[] = {
        {"", "", 3, 3, {}},
        {"missing", "", 0, 0, {noPaths}},
        {"missing", "missing", 0, 0, {noPaths}}, // the other file is not looked at
        {"none", "", 0, 0, {noPaths}},
        {"", "missing", 3, 0, {noDescents}},
        {"", "none", 3, 0, {noDescents}},
        {"folder", "", 0, 0, {}},
        {"", "folder", 3, 0, {}},
        {"pipe", "", 0, 0, {}},
        {"", "pipe", 3, 0, {}},
        {"empty", "", 0, 3, {}},
        {"", "empty", 3, 0, {}},
        {"null", "null", 0, 0, {}},
        {"no base64", "no base64", 0, 0, {}},
        {"lying", "lying", 0, 0, {}},
        {"enormous", "enormous", 0, 0, {}},
    };
    for (const auto& row : rows)
        QTest::addRow("paths '%s', descents '%s'", row.paths, row.descents)
            << row.paths << row.descents << row.outlineCount << row.descentCount << row.messages;
}

void GlyphDataTest::files()
{
    QFETCH(QString, paths);
    QFETCH(QString, descents);
    RectangleText text = RectangleText::TwoPages();
    const auto spoil = [&text](const QString& how, const char* key, const char* name) {
        const QString path = text.File(name);
        if (how == "missing" || how == "folder" || how == "pipe")
            QFile::remove(path);
        if (how == "none")
            text.node->RemoveKey(key);
        if (how == "folder")
            QDir().mkdir(path);
        if (how == "pipe")
            mkfifo(QFile::encodeName(path).constData(), 0600);
        if (how == "empty")
            WriteFile(path, "");
        if (how == "null")
            WriteFile(path, QByteArray(4, '\xff'));
        if (how == "no base64")
            WriteFile(path, Serialised(QByteArray("  !?\n ")));
        if (how == "lying")
            WriteFile(path, QByteArray("\x7f\xff\xff\xff"
                                       "AAAA",
                                       8));
        if (how == "enormous") {
            QFile file(path);
            QVERIFY(file.resize((256 << 20) + 1));
        }
    };
    spoil(paths, "PathData", "paths");
    spoil(descents, "DescentVector", "descents");

    const Messages messages;
    text.node->InitPainterPath();
    QTEST(messages.Taken(), "messages");
    QTEST(text.node->GetPainterPaths().size(), "outlineCount");
    QTEST(text.node->GetDescentData().size(), "descentCount");
}

void GlyphDataTest::soundDataStaysAsItIs()
{
    QVector<QPainterPath> outlines(3);
    outlines[0].addEllipse(QPointF(0.1, -0.2), 1e5, 3);
    outlines[0].addText(0, 0, QFont(), "");
    outlines[2].addRect(1, 2, 3, 4);
    outlines[2].moveTo(9, 9);
    outlines[2].lineTo(10, 1e-300);
    outlines[2].setFillRule(Qt::WindingFill);
    RectangleText text = RectangleText::TwoPages();
    text.SetGlyphs(outlines);
    QCOMPARE(text.node->GetPainterPaths(), outlines);
    QCOMPARE(Serialised(text.node->GetPainterPaths()), Serialised(outlines));
}

void GlyphDataTest::everyReadIsFresh()
{
    RectangleText text = RectangleText::TwoPages();
    const QVector<QPainterPath>& outlines = text.node->GetPainterPaths();
    QCOMPARE(outlines.size(), 3);
    text.SetGlyphs(outlines.mid(0, 1));
    WriteGlyphData(text.File("descents"), Serialised(QVector<int>{8, 9}));
    QCOMPARE(text.node->GetDescentData(), (QVector<int>{8, 9}));
    QCOMPARE(outlines.size(), 1); // read along
    QFile::remove(text.File("descents"));
    QCOMPARE(text.node->GetDescentData(), QVector<int>());
    QFile::remove(text.File("paths"));
    QCOMPARE(text.node->GetPainterPaths().size(), 0);
}

QTEST_MAIN(GlyphDataTest)
#include "tst_glyphdata.moc"
