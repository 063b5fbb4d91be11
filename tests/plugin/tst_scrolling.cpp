// Continuous scrolling: columns by their corners, lines by their pixels and bytes.
#include "enginefixture.h"

#include <hpluginmanager.h>

using Lw::HPluginManager;

namespace {

// The column of the tests: heights 10 and 20, in an area of 40 x 100, both 30 wide.
RectangleText Column()
{
    return RectangleText({30, 30}, {10, 20}, {2, 3}, QSize(40, 100));
}

// A line of @p widths whose glyphs fill their advance but for a pixel at the left; 20 high.
RectangleText Line(const QVector<int>& widths)
{
    RectangleText text(widths, QVector<int>(widths.size(), 20), {}, QSize(100, 20));
    QVector<QPainterPath> glyphs(widths.size());
    for (int i = 0; i < widths.size(); ++i)
        glyphs[i].addRect(1, -20, widths.at(i) - 2, 20);
    text.SetGlyphs(glyphs);
    text.node->SetList("TextAttribute", {{{"Color", "65280"}}}); // green
    return text;
}

} // namespace

class ScrollingTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { HPluginManager::instance()->SetAlphaBlend(true); }
    void columns_data();
    void columns();
    void columnsWrapAndCount_data();
    void columnsWrapAndCount();
    void columnsOfNothingEnd_data();
    void columnsOfNothingEnd();
    void linesAreOnePicture();
    void tailsBeginBeyondTheLimit_data();
    void tailsBeginBeyondTheLimit();
    void rowsEndInTheTailsBytes();
    void veryLongLinesAreWhole();
    void linesBeyondMemoryAreLeftOut();
};

void ScrollingTest::columns_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("corners");
    // Glyphs reach from (2, 4 - h) to (27, -2) and stand at x = 20 - 15. Rising, the second is
    // placed by its own height, 20 below the first one's top; the next first one 10 below that.
    QTest::newRow("up at the start") << 2 << 0 << "7,102 32,106";
    QTest::newRow("up, one less than the next") << 2 << 19 << "7,83 32,87";
    QTest::newRow("up, the next begins") << 2 << 20 << "7,82 32,86; 7,101 32,115";
    QTest::newRow("up, three") << 2 << 35 << "7,67 32,71; 7,86 32,100; 7,97 32,101";
    QTest::newRow("up, the first straddles")
        << 2 << 105
        << "7,-3 32,1; 7,16 32,30; 7,27 32,31; 7,46 32,60; 7,57 32,61; 7,76 32,90; 7,87 32,91";
    QTest::newRow("up, the first just there")
        << 2 << 110
        << "7,-8 32,-4; 7,11 32,25; 7,22 32,26; 7,41 32,55; 7,52 32,56; 7,71 32,85; 7,82 32,86; "
           "7,101 32,115";
    QTest::newRow("up, the first gone")
        << 2 << 111
        << "7,10 32,24; 7,21 32,25; 7,40 32,54; 7,51 32,55; 7,70 32,84; 7,81 32,85; 7,100 32,114";
    // Coming down, from the last character on, by baselines alone.
    QTest::newRow("down at the start") << 3 << 0 << "";
    QTest::newRow("down, one pixel") << 3 << 1 << "7,-15 32,-1";
    QTest::newRow("down, no more yet") << 3 << 10 << "7,-6 32,8";
    QTest::newRow("down, the next begins") << 3 << 11 << "7,-5 32,9; 7,-5 32,-1";
    QTest::newRow("down, the last straddles")
        << 3 << 119
        << "7,103 32,117; 7,103 32,107; 7,73 32,87; 7,73 32,77; 7,43 32,57; 7,43 32,47; "
           "7,13 32,27; 7,13 32,17";
    QTest::newRow("down, the last gone")
        << 3 << 120 << "7,74 32,88; 7,74 32,78; 7,44 32,58; 7,44 32,48; 7,14 32,28; 7,14 32,18";
}

void ScrollingTest::columns()
{
    QFETCH(int, style);
    QFETCH(int, position);
    EngineFixture play(Column());
    play.Start({{"EffectType", 1}, {"ContinueStyle", style}});
    play.charIndex() = position;
    play.DrawFrame();
    QTEST(Corners(play.textPath()), "corners");
}

void ScrollingTest::columnsWrapAndCount_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("outlines");
    for (int style : {2, 3})
        for (int step : {1, 4})
            for (int outlines : {2, 0})
                QTest::addRow("style %d, step %d, outlines %d", style, step, outlines)
                    << style << step << outlines;
}

void ScrollingTest::columnsWrapAndCount()
{
    QFETCH(int, style);
    QFETCH(int, step);
    QFETCH(int, outlines);
    EngineFixture play(Column());
    if (outlines == 0)
        play.text.SetGlyphs({});
    play.Start({{"EffectType", 1}, {"ContinueStyle", style}, {"ContinueSpeed", step + 4}}, 50);
    int position = 0, sinceRun = 0, runs = 0;
    for (int frame = 1; frame <= 400; ++frame) {
        play.Tick();
        position += step;
        if (position >= 130) // the area's height and the column's
            position = 100;
        sinceRun += step;
        const bool ended = sinceRun >= 30;
        runs += ended ? 1 : 0;
        sinceRun = ended ? 0 : sinceRun;
        QCOMPARE(play.charIndex(), position);
        QCOMPARE(play.runEnded(), ended);
        QCOMPARE(play.engine.GetDisplayTimes(), runs); // there are no holds
        QVERIFY(outlines > 0 || play.textPath().IsEmpty());
    }
    QCOMPARE(play.frameCount(), 400);
}

void ScrollingTest::columnsOfNothingEnd_data()
{
    QTest::addColumn<QVector<int>>("heights");
    QTest::newRow("flat") << QVector<int>{0, 0};
    QTest::newRow("negative") << QVector<int>{-10, -20};
    QTest::newRow("cancelling") << QVector<int>{10, -10};
}

void ScrollingTest::columnsOfNothingEnd()
{
    QFETCH(QVector<int>, heights);
    for (int style : {2, 3}) {
        RectangleText text = Column();
        SetList(*text.node, "TextHeight", "text_height", heights);
        EngineFixture play(std::move(text));
        play.Start({{"EffectType", 1}, {"ContinueStyle", style}});
        for (int i = 1; i <= 50; ++i) {
            play.Tick();
            QCOMPARE(play.playCount(), i);
            QVERIFY(int(play.textPath().Size()) <= 2 * 5);
        }
    }
}

void ScrollingTest::linesAreOnePicture()
{
    EngineFixture left(Line({30, 20, 40}));
    left.Start({{"EffectType", 1}, {"ContinueStyle", 0}});
    EngineFixture right(Line({30, 20, 40}));
    right.Start({{"EffectType", 1}, {"ContinueStyle", 1}});
    for (EngineFixture* play : {&left, &right}) {
        play->DrawFrame();
        QCOMPARE(play->drawImage().size(), QSize(90, 20));
        QCOMPARE(Corners(play->textPath()), QString("1,0 29,20; 31,0 49,20; 51,0 89,20"));
        QCOMPARE(play->frameCount(), 0);
        QCOMPARE(play->playCount(), 0);
        QVERIFY(!play->runEnded());
    }
    QCOMPARE(left.drawImage(), right.drawImage());

    left.text.SetGlyphs({});
    left.Start({});
    left.DrawFrame();
    QCOMPARE(PaintedBox(left.drawImage()), QRect());
}

void ScrollingTest::tailsBeginBeyondTheLimit_data()
{
    QTest::addColumn<int>("firstWidth");
    QTest::addColumn<QString>("colours"); // of the characters: g is the text's green, w white
    QTest::newRow("31,998") << 31998 << "gggw";
    QTest::newRow("31,999") << 31999 << "ggww";
    QTest::newRow("32,000") << 32000 << "gwww";
}

// Each character has rows and a column of its own, so that none hides another.
void ScrollingTest::tailsBeginBeyondTheLimit()
{
    QFETCH(int, firstWidth);
    EngineFixture play(Line({firstWidth, 1, 40, 30}));
    QVector<QPainterPath> glyphs(4);
    for (int i = 0; i < 4; ++i)
        glyphs[i].addRect(0, -20 + 5 * i, 1, 3);
    play.text.SetGlyphs(glyphs);
    play.Start({{"EffectType", 1}, {"ContinueStyle", 0}});
    play.DrawFrame();
    QString colours;
    for (int i = 0; i < 4; ++i) {
        const QColor colour = play.drawImage().pixelColor(play.charPositions().at(i), 5 * i + 1);
        colours += colour == QColor(0, 255, 0) ? 'g' : colour == QColor(Qt::white) ? 'w' : '?';
    }
    QTEST(colours, "colours");
}

void ScrollingTest::rowsEndInTheTailsBytes()
{
    for (bool blend : {true, false}) {
        HPluginManager::instance()->SetAlphaBlend(blend);
        // The tail begins at 32,001 and is 50 wide. In rows of 3 bytes a pixel, 96,153 are padded
        // to 96,156 and the tail's 150 to 152, so it ends at the row's end and not at its pixel.
        EngineFixture play(Line({31999, 2, 20, 30}));
        play.Start({{"EffectType", 1}, {"ContinueStyle", 1}});
        play.DrawFrame();
        const QImage& picture = play.drawImage();
        const int bytes = blend ? 4 : 3;
        const int tailBegin = blend ? 32001 * 4 : 96156 - 152;
        QCOMPARE(picture.bytesPerLine(), blend ? 32051 * 4 : 96156);
        for (int y = 0; y < 20; ++y) {
            const uchar* const row = picture.constScanLine(y);
            // White from 1 to 19 and from 21 to 49 of the tail, nothing between and around.
            for (int i = 0; i < 50 * bytes; ++i) {
                const int x = i / bytes;
                const bool white = (x >= 1 && x <= 19) || (x >= 21 && x <= 49);
                QCOMPARE(int(row[tailBegin + i]), white ? 255 : 0);
            }
            const uchar* const text = row + 5 * bytes;
            QCOMPARE(int(text[1]), 255); // green in either format
            QCOMPARE(int(text[0]), 0);
        }
    }
}

void ScrollingTest::veryLongLinesAreWhole()
{
    const int width = 1000, count = 150;
    EngineFixture play(Line(QVector<int>(count, width)));
    play.Start({{"EffectType", 1}, {"ContinueStyle", 0}});
    play.DrawFrame();
    QCOMPARE(play.drawImage().width(), count * width);
    for (int i = 0; i < count; ++i) {
        for (int x : {1, 500, 999})
            QCOMPARE(play.drawImage().pixelColor(i * width + x, 10),
                     i * width <= 31999 ? QColor(0, 255, 0) : QColor(Qt::white));
        QCOMPARE(play.drawImage().pixelColor(i * width, 10), QColor(0, 0, 0, 0));
    }
}

void ScrollingTest::linesBeyondMemoryAreLeftOut()
{
    EngineFixture play(Line({4000000, 20}));
    Messages messages;
    play.Start({{"EffectType", 1}, {"ContinueStyle", 0}});
    play.DrawFrame();
    QVERIFY(play.drawImage().isNull());
    QCOMPARE(messages.Taken().size(), 1);
}

QTEST_MAIN(ScrollingTest)
#include "tst_scrolling.moc"
