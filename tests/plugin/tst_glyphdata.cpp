// The data files of a node: broken in every way, missing, swapped, and whole. What the node does
// not read, validating finds fault with.
#include "rectangletext.h"

#include "support/malformedglyphs.h"
#include "text/pagedivision.h"
#include "validate/datafile.h"

#include <sys/stat.h>

using AnimText::validate::DataFile;

Q_DECLARE_METATYPE(Glyphs::Sample)

namespace {

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

class TestGlyphData : public QObject
{
    Q_OBJECT

private slots:
    void malformedOutlinesAreEmptyAndTold_data() { AddRows(Glyphs::OutlineSamples()); }
    void malformedOutlinesAreEmptyAndTold();
    void wrongCountsLeaveNoDescents_data() { AddRows(Glyphs::DescentSamples()); }
    void wrongCountsLeaveNoDescents();
    void brokenFilesLeaveNothing_data() { AddRows(Glyphs::FileSamples()); }
    void brokenFilesLeaveNothing();
    void absentAndOddFilesLeaveNothing_data();
    void absentAndOddFilesLeaveNothing();
    void soundDataStaysAsItIs();
    void everyReadIsFresh();
    void pageStartsAreWhereTheCutsAre();

private:
    static void AddRows(const QVector<Glyphs::Sample>& samples)
    {
        QTest::addColumn<Glyphs::Sample>("sample");
        for (const Glyphs::Sample& sample : samples)
            QTest::newRow(sample.name) << sample;
    }
};

void TestGlyphData::malformedOutlinesAreEmptyAndTold()
{
    QFETCH(Glyphs::Sample, sample);
    RectangleText text = RectangleText::TwoPages();
    WriteFile(text.File("paths"), Glyphs::File(sample.bytes));
    const Messages messages;
    QCOMPARE(ElementCounts(text.node->GetPainterPaths()), sample.read);
    QCOMPARE(text.node->GetDescentData(), (QVector<int>{4, 5, 3}));
    QCOMPARE(messages.Taken(), QStringList());

    const DataFile look = AnimText::validate::LookIntoPathFile(text.File("paths"));
    QCOMPARE(look.isEmpty.size(), sample.read.size());
    const bool oneIsBad = !sample.read.isEmpty() && !sample.fault.isEmpty();
    QCOMPARE(look.badOutlines.size(), oneIsBad ? 1 : 0);
    QCOMPARE(oneIsBad ? look.badOutlines[0].fault : look.fault, sample.fault);
    for (int i = 0; i < look.isEmpty.size(); ++i) {
        const bool isBad = oneIsBad && i == look.badOutlines[0].index;
        QCOMPARE(isBad, oneIsBad && i == 1);
        QCOMPARE(look.isEmpty[i], !isBad && sample.read[i] < 2);
    }
}

void TestGlyphData::wrongCountsLeaveNoDescents()
{
    QFETCH(Glyphs::Sample, sample);
    RectangleText text = RectangleText::TwoPages();
    WriteFile(text.File("descents"), Glyphs::File(sample.bytes));
    QCOMPARE(text.node->GetDescentData(), sample.read);
    QCOMPARE(text.node->GetPainterPaths().size(), 3);
    const DataFile look = AnimText::validate::LookIntoDescentFile(text.File("descents"));
    QCOMPARE(look.fault, sample.fault);
    QCOMPARE(look.descents, sample.read);
}

void TestGlyphData::brokenFilesLeaveNothing()
{
    QFETCH(Glyphs::Sample, sample);
    RectangleText text = RectangleText::TwoPages();
    WriteFile(text.File("paths"), sample.bytes);
    WriteFile(text.File("descents"), sample.bytes);
    text.node->InitPainterPath();
    QCOMPARE(text.node->GetPainterPaths().size(), 0);
    QCOMPARE(text.node->GetDescentData().size(), 0);
    QCOMPARE(AnimText::validate::LookIntoPathFile(text.File("paths")).fault, sample.fault);
    QCOMPARE(AnimText::validate::LookIntoDescentFile(text.File("descents")).fault, sample.fault);
}

void TestGlyphData::absentAndOddFilesLeaveNothing_data()
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
        {"enormous", "enormous", 0, 0, {}},
    };
    for (const auto& row : rows)
        QTest::addRow("paths '%s', descents '%s'", row.paths, row.descents)
            << row.paths << row.descents << row.outlineCount << row.descentCount << row.messages;
}

void TestGlyphData::absentAndOddFilesLeaveNothing()
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
        if (how == "enormous") {
            QFile file(path);
            QVERIFY(file.resize((256 << 20) + 1));
        }
        const QHash<QString, QString> faults{
            {"folder", "it is no regular file"},
            {"pipe", "it is no regular file"},
            {"enormous", "it has 268435457 bytes, more than 268435456"}};
        if (faults.contains(how))
            QCOMPARE(AnimText::validate::LookIntoPathFile(path).fault, faults.value(how));
    };
    spoil(paths, "PathData", "paths");
    spoil(descents, "DescentVector", "descents");

    const Messages messages;
    text.node->InitPainterPath();
    QTEST(messages.Taken(), "messages");
    QTEST(int(text.node->GetPainterPaths().size()), "outlineCount");
    QTEST(int(text.node->GetDescentData().size()), "descentCount");
}

void TestGlyphData::soundDataStaysAsItIs()
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
    QCOMPARE(Serialized(text.node->GetPainterPaths()), Serialized(outlines));
}

void TestGlyphData::everyReadIsFresh()
{
    RectangleText text = RectangleText::TwoPages();
    const QVector<QPainterPath>& outlines = text.node->GetPainterPaths();
    QCOMPARE(outlines.size(), 3);
    text.SetGlyphs(outlines.mid(0, 1));
    WriteGlyphData(text.File("descents"), Serialized(QVector<int>{8, 9}));
    QCOMPARE(text.node->GetDescentData(), (QVector<int>{8, 9}));
    QCOMPARE(outlines.size(), 1); // read along
    QFile::remove(text.File("descents"));
    QCOMPARE(text.node->GetDescentData(), QVector<int>());
    QFile::remove(text.File("paths"));
    QCOMPARE(text.node->GetPainterPaths().size(), 0);
}

void TestGlyphData::pageStartsAreWhereTheCutsAre()
{
    using namespace Lw::HNodeAnimationText;
    const struct
    {
        QVector<int> widths, forward, backward;
    } lines[] = {{{}, {0}, {0}},
                 {{60, 30, 60}, {0, 2, 3}, {0, 1, 3}},
                 {{101, 10, 101}, {0, 1, 2, 3}, {0, 1, 2, 3}}};
    for (const auto& line : lines) {
        QCOMPARE(PageStartsForward(line.widths, 100), line.forward);
        QCOMPARE(PageStartsBackward(line.widths, 100), line.backward);
    }
}

QTEST_MAIN(TestGlyphData)
#include "tst_glyphdata.moc"
