// Widths, heights, fonts and colors; how texts are cut into pages is in tests/golden.
#include "enginefixture.h"
#include "table.h"

class TestMetrics : public QObject
{
    Q_OBJECT

private slots:
    void rowsOfAnyKindAreAddedUp_data();
    void rowsOfAnyKindAreAddedUp();
    void fontsAndColorsHaveDefaults();
    void theNodeIsItsTypes();
};

void TestMetrics::rowsOfAnyKindAreAddedUp_data()
{
    // items: of both lists
    // singles: of the indices 0, 1, ...
    // sums: total width, largest width, height of the column
    const Table<QString, QStringList, QVector<int>, QVector<int>, QVector<int>> row(
        "text", "items", "singles", "running", "sums");
    row("no lists", "abc", {}, {0, 0}, {0, 0, 0}, {0, 0, 0});
    row("whole", "abc", {"7", "9", "8"}, {7, 9, 8, 0}, {0, 7, 16, 0, 0}, {24, 9, 24});
    row("more items than text", "a", {"7", "9", "8"}, {7, 9, 8, 0}, {0, 7, 16, 0}, {24, 9, 7});
    row("fewer items than text", "abcd", {"7", "9"}, {7, 9, 0}, {0, 7, 0, 0}, {16, 9, 16});
    row("no numbers", "abcde", {"x", "", "0x9", "4.5", " 8 "}, {0, 0, 0, 0, 8}, {0, 0, 0, 0, 0, 0},
        {8, 8, 8});
    row("below nought", "ab", {"-7", "-9"}, {-7, -9}, {0, -7, 0}, {-16, 0, -16});
    row("beyond 32 bits", "abc", {"2147483647", "2", "1"}, {2147483647, 2, 1},
        {0, 2147483647, -2147483647}, {-2147483646, 2147483647, -2147483646});
}

void TestMetrics::rowsOfAnyKindAreAddedUp()
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

void TestMetrics::fontsAndColorsHaveDefaults()
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

void TestMetrics::theNodeIsItsTypes()
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

QTEST_MAIN(TestMetrics)
#include "tst_metrics.moc"
