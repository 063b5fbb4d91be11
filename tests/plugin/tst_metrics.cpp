// Widths, heights, fonts and colours, and the division of a text into pages.
#include "enginefixture.h"

#include <random>

using Lw::HNodeAnimationText::NodeProbe;

namespace {

// Pages by the letter: every width is looked up, every sum is added up again from the beginning.
struct SlowDivision
{
    SlowDivision(const QVector<int>& widths, int areaWidth)
        : widths(widths)
        , areaWidth(areaWidth)
    {
    }

    // What comes before character `count`, but 0 for the whole line.
    int CountWith(int count) const
    {
        int sum = 0;
        for (int i = 0; i < count && count < widths.size(); ++i)
            sum += widths.at(i);
        return sum;
    }

    void Cut(int at)
    {
        breaks.append(at);
        offsets.append(CountWith(at));
    }

    bool Fits(int first, int last) const
    {
        return std::accumulate(widths.begin() + first, widths.begin() + last + 1, 0) <= areaWidth;
    }

    void Forward()
    {
        const int n = widths.size();
        Cut(0);
        while (breaks.last() < n) {
            const int first = breaks.last();
            int past = first + 1;
            while (past < n && Fits(first, past))
                ++past;
            Cut(past);
        }
        // The end has the whole line before it, unless the last character was cut off as too wide.
        if (n > 0 && (breaks.at(breaks.size() - 2) < n - 1 || Fits(n - 1, n - 1)))
            offsets.last() = std::accumulate(widths.begin(), widths.end(), 0);
    }

    void Backward()
    {
        for (int last = widths.size() - 1; last >= 0;) {
            Cut(last);
            int first = last;
            while (first > 0 && Fits(first - 1, last))
                --first;
            last = first - 1;
        }
        if (widths.isEmpty())
            return;
        Cut(-1);
    }

    QVector<int> widths;
    int areaWidth;
    QList<int> breaks;
    QList<int> offsets;
};

} // namespace

class MetricsTest : public QObject
{
    Q_OBJECT

private slots:
    void numbers_data();
    void numbers();
    void fontsAndColours();
    void statedDivisions_data();
    void statedDivisions();
    void randomDivisions_data();
    void randomDivisions();
    void theNodeIsItsTypes();
};

void MetricsTest::numbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("items");    // of both lists
    QTest::addColumn<QVector<int>>("singles"); // of the indices 0, 1, ...
    QTest::addColumn<QVector<int>>("running");
    QTest::addColumn<QVector<int>>("sums"); // total width, largest width, height of the column
    QTest::newRow("no lists") << "abc" << QStringList() << QVector<int>{0, 0}
                              << QVector<int>{0, 0, 0} << QVector<int>{0, 0, 0};
    QTest::newRow("whole") << "abc" << QStringList{"7", "9", "8"} << QVector<int>{7, 9, 8, 0}
                           << QVector<int>{0, 7, 16, 0, 0} << QVector<int>{24, 9, 24};
    QTest::newRow("more items than text")
        << "a" << QStringList{"7", "9", "8"} << QVector<int>{7, 9, 8, 0}
        << QVector<int>{0, 7, 16, 0} << QVector<int>{24, 9, 7};
    QTest::newRow("fewer items than text")
        << "abcd" << QStringList{"7", "9"} << QVector<int>{7, 9, 0} << QVector<int>{0, 7, 0, 0}
        << QVector<int>{16, 9, 16};
    QTest::newRow("no numbers") << "abcde" << QStringList{"x", "", "0x9", "4.5", " 8 "}
                                << QVector<int>{0, 0, 0, 0, 8} << QVector<int>{0, 0, 0, 0, 0, 0}
                                << QVector<int>{8, 8, 8};
    QTest::newRow("below nought") << "ab" << QStringList{"-7", "-9"} << QVector<int>{-7, -9}
                                  << QVector<int>{0, -7, 0} << QVector<int>{-16, 0, -16};
    QTest::newRow("beyond 32 bits")
        << "abc" << QStringList{"2147483647", "2", "1"} << QVector<int>{2147483647, 2, 1}
        << QVector<int>{0, 2147483647, -2147483647}
        << QVector<int>{-2147483646, 2147483647, -2147483646};
}

void MetricsTest::numbers()
{
    QFETCH(QString, text);
    QFETCH(QStringList, items);
    QFETCH(QVector<int>, singles);
    QFETCH(QVector<int>, running);
    HAnimationTextNode node;
    node.SetAttribute("Text", text);
    QList<QHash<QString, QString>> rows;
    for (const QString& item : items)
        rows.append({{"text_width", item}, {"text_height", item}});
    if (!rows.isEmpty()) {
        node.SetList("TextWidth", rows);
        node.SetList("TextHeight", rows);
    }

    for (int i = 0; i < singles.size(); ++i) {
        QCOMPARE(node.GetTextWidth(i), singles.at(i));
        QCOMPARE(node.GetTextHeight(i), singles.at(i));
    }
    for (int i = 0; i < running.size(); ++i)
        QCOMPARE(node.GetTextCountWith(i), running.at(i));
    QCOMPARE(node.GetTextCountWith(-1), 0);
    QCOMPARE(node.MaxTextHeight(), node.MaxTextWidth());
    QTEST((QVector<int>{node.GetTotalTextWith(), node.MaxTextWidth(), node.CountTotalHeight()}),
          "sums");
}

void MetricsTest::fontsAndColours()
{
    HAnimationTextNode node;
    QCOMPARE(node.GetTextColor(0), QColor(255, 0, 0, 255));
    QCOMPARE(node.GetTextFont(0), QFont());

    node.SetList("TextAttribute", {{{"fontName", "Foo Sans"},
                                    {"fontSize", "24"},
                                    {"bold", "2"},
                                    {"italic", "1"},
                                    {"underline", "-1"},
                                    {"Color", "16744480"}},
                                   {}});
    QFont styled("Foo Sans", 24, QFont::Bold, true);
    styled.setUnderline(true);
    styled.setStyleStrategy(QFont::NoAntialias);
    QCOMPARE(node.GetTextFont(0), styled);
    QCOMPARE(node.GetTextColor(0), QColor(0xFF, 0x80, 0x20));
    QCOMPARE(node.GetTextFont(1).weight(), int(QFont::Normal));
    QCOMPARE(node.GetTextFont(1).underline(), false);
    QCOMPARE(node.GetTextFont(1).styleStrategy(), QFont::NoAntialias);
    QCOMPARE(node.GetTextColor(1), QColor(0, 0, 0));
    QCOMPARE(node.GetTextColor(2), QColor(255, 0, 0));
    QCOMPARE(node.GetTextFont(2), QFont());
}

void MetricsTest::statedDivisions_data()
{
    QTest::addColumn<QVector<int>>("widths");
    QTest::addColumn<int>("length");
    QTest::addColumn<QList<int>>("breaks");
    QTest::addColumn<QList<int>>("offsets");
    QTest::addColumn<QList<int>>("engineOffsets");
    QTest::addColumn<QList<int>>("breaksFromEnd");
    QTest::addColumn<QList<int>>("offsetsFromEnd");
    typedef QList<int> L;
    // In an area of 50.
    QTest::newRow("no text") << QVector<int>() << 0 << L{0} << L{0} << L{0} << L{-1} << L{0};
    QTest::newRow("no widths") << QVector<int>() << 3 << L{0, 3} << L{0, 0} << L{0, 0} << L{2, -1}
                               << L{0, 0};
    QTest::newRow("one page") << QVector<int>{20, 30} << 2 << L{0, 2} << L{0, 50} << L{0, 50}
                              << L{1, -1} << L{20, 0};
    QTest::newRow("one pixel more") << QVector<int>{20, 31} << 2 << L{0, 1, 2} << L{0, 20, 51}
                                    << L{0, 20, 51} << L{1, 0, -1} << L{20, 0, 0};
    QTest::newRow("wide first") << QVector<int>{60, 20, 20} << 3 << L{0, 1, 3} << L{0, 60, 100}
                                << L{0, 60, 100} << L{2, 0, -1} << L{80, 0, 0};
    QTest::newRow("wide middle") << QVector<int>{20, 60, 20} << 3 << L{0, 1, 2, 3}
                                 << L{0, 20, 80, 100} << L{0, 20, 80, 100} << L{2, 1, 0, -1}
                                 << L{80, 20, 0, 0};
    // The cut behind it has no running width; the engine puts the total there.
    QTest::newRow("wide last") << QVector<int>{20, 60} << 2 << L{0, 1, 2} << L{0, 20, 0}
                               << L{0, 20, 80} << L{1, 0, -1} << L{20, 0, 0};
    QTest::newRow("wide alone") << QVector<int>{60} << 1 << L{0, 1} << L{0, 0} << L{0, 60}
                                << L{0, -1} << L{0, 0};
    QTest::newRow("fewer widths than text")
        << QVector<int>{40, 20} << 4 << L{0, 1, 4} << L{0, 40, 60} << L{0, 40, 60} << L{3, 0, -1}
        << L{0, 0, 0};
}

void MetricsTest::statedDivisions()
{
    QFETCH(QVector<int>, widths);
    QFETCH(int, length);
    EngineFixture play(RectangleText(widths, {}, {}, QSize(50, 20)));
    play.text.node->SetAttribute("Text", Letters(length));
    NodeProbe pages(*play.text.node);

    play.text.node->SelectPath(1);
    QTEST(pages.pageBreaks(), "breaks");
    QTEST(pages.pageOffsets(), "offsets");
    play.Start({});
    QTEST(play.pageBreaks(), "breaks");
    QTEST(play.pageOffsets(), "engineOffsets");

    pages.pageBreaks().clear();
    pages.pageOffsets().clear();
    play.text.node->SelectPath(0);
    QTEST(pages.pageBreaks(), "breaksFromEnd");
    QTEST(pages.pageOffsets(), "offsetsFromEnd");
    play.Start({{"AnimationEffect", 1}});
    QTEST(play.pageBreaks(), "breaksFromEnd");
    QTEST(play.pageOffsets(), "offsetsFromEnd");

    // The node's lists are appended to; a duration begins them anew.
    play.text.node->SelectPath(1);
    QVERIFY(pages.pageBreaks().size() > play.pageBreaks().size());
    play.text.node->Duration();
    QTEST(pages.pageBreaks(), "breaks");
}

void MetricsTest::randomDivisions_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 60; ++seed)
        QTest::addRow("seed %d", seed) << seed;
}

void MetricsTest::randomDivisions()
{
    QFETCH(int, seed);
    std::mt19937 random(static_cast<unsigned>(seed));
    const auto upTo = [&random](unsigned most) { return int(random() % (most + 1)); };
    const int areaWidth = 1 + upTo(200);
    QVector<int> widths(1 + upTo(60));
    for (int& width : widths)
        width = upTo(unsigned(upTo(3) == 0 ? areaWidth * 2 : areaWidth / 3)); // some over-wide

    HAnimationTextNode node;
    node.SetAttribute("Text", Letters(widths.size()));
    node.SetSize(QSize(areaWidth, 20));
    SetList(node, "TextWidth", "text_width", widths);
    NodeProbe pages(node);
    node.SelectPath(1);
    SlowDivision forward(widths, areaWidth);
    forward.Forward();
    QCOMPARE(pages.pageBreaks(), forward.breaks);
    QCOMPARE(pages.pageOffsets(), forward.offsets);
    QCOMPARE(pages.pageBreaks().first(), 0);
    QCOMPARE(pages.pageBreaks().last(), widths.size());
    for (int p = 1; p < forward.breaks.size(); ++p) {
        const int first = forward.breaks.at(p - 1);
        const int last = forward.breaks.at(p) - 1;
        QVERIFY(last >= first && (last == first || forward.Fits(first, last)));
    }

    pages.pageBreaks().clear();
    pages.pageOffsets().clear();
    node.SelectPath(0);
    SlowDivision backward(widths, areaWidth);
    backward.Backward();
    QCOMPARE(pages.pageBreaks(), backward.breaks);
    QCOMPARE(pages.pageOffsets(), backward.offsets);
    QCOMPARE(pages.pageBreaks().size(), forward.breaks.size());
}

void MetricsTest::theNodeIsItsTypes()
{
    HAnimationTextNode node;
    QVERIFY(QDir(QCoreApplication::applicationDirPath() + "/outputpath/AnimationText").exists());
    QCOMPARE(node.qt_metacast("Lw::HNodeAnimationText::HAnimationTextNode"), &node);
    QCOMPARE(node.qt_metacast("Lw::HEffectNode"), static_cast<Lw::HEffectNode*>(&node));
    QVERIFY(!node.qt_metacast(nullptr) && !node.qt_metacast("HAnimationTextNode"));
    QCOMPARE(node.metaObject()->superClass(), &Lw::HEffectNode::staticMetaObject);
    QSignalSpy spy(&node, SIGNAL(ReDrawImage()));
    QVERIFY(QMetaObject::invokeMethod(&node, "ReDrawImage"));
    QCOMPARE(spy.size(), 1);
}

QTEST_MAIN(MetricsTest)
#include "tst_metrics.moc"
