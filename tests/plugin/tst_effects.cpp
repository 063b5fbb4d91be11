// Every effect: how many frames its pages take, where its glyphs stand, and how it hands pages
// over.
#include "enginefixture.h"

#include <cmath>

namespace {

// Rows of numbers in a string, so that a table stays a table: "2,12 27,26; 32,6 47,25".
QVector<QVector<double>> Numbers(const QString& corners)
{
    QVector<QVector<double>> glyphs;
    for (const QString& glyph : corners.split("; ", Qt::SkipEmptyParts)) {
        glyphs.append(QVector<double>());
        for (const QString& number : glyph.split(QRegExp("[ ,]")))
            glyphs.last().append(number.toDouble());
    }
    return glyphs;
}

bool Near(const QString& actual, const QString& expected)
{
    const auto a = Numbers(actual);
    const auto e = Numbers(expected);
    bool near = a.size() == e.size();
    for (int i = 0; near && i < a.size(); ++i)
        for (int k = 0; near && k < 4; ++k)
            near = std::fabs(a[i].value(k) - e[i].value(k)) < 0.015;
    return near;
}

// The same text on a single page.
RectangleText OnePage()
{
    return RectangleText({30, 20, 40}, {20, 25, 16}, {4, 5, 3}, QSize(100, 41));
}

} // namespace

class EffectsTest : public QObject
{
    Q_OBJECT

private slots:
    void pagesTakeTheirFrames_data();
    void pagesTakeTheirFrames();
    void glyphsStandInTheirPlaces_data();
    void glyphsStandInTheirPlaces();
    void trembleDrawsItsNumbersInOrder();
    void pagesAreHandedOver_data();
    void pagesAreHandedOver();
    void missingOutlinesLeaveTheMotionAlone_data();
    void missingOutlinesLeaveTheMotionAlone();
    void emptyAreasPaintNothing_data();
    void emptyAreasPaintNothing();
};

void EffectsTest::pagesTakeTheirFrames_data()
{
    QTest::addColumn<int>("effect");
    QTest::addColumn<int>("step");
    QTest::addColumn<QVector<int>>("frames"); // of the two pages in the first run and the second
    QTest::addColumn<int>("moveOffset");      // after a run
    QTest::addColumn<int>("charIndex");       // after a run that began with 7 in it

    const struct
    {
        int effect;
        int frames[3][2]; // at steps 1, 3 and 5
        bool takesCharIndex;
    } rows[] = {
        {0, {{92, 61}, {32, 21}, {20, 13}}, true},
        {1, {{22, 31}, {8, 11}, {6, 7}}, false},
        {2, {{69, 34}, {25, 12}, {15, 7}}, true},
        {3, {{60, 31}, {21, 11}, {13, 7}}, true},
        {4, {{3, 1}, {3, 1}, {3, 1}}, true},
        {5, {{106, 105}, {37, 36}, {23, 22}}, false},
        {6, {{361, 361}, {121, 121}, {73, 73}}, false},
        {7, {{360, 360}, {120, 120}, {72, 72}}, false},
        {8, {{61, 61}, {61, 61}, {61, 61}}, false},
        {9, {{92, 46}, {32, 16}, {20, 10}}, true},
        {10, {{92, 46}, {32, 16}, {20, 10}}, true},
        {11, {{361, 361}, {121, 121}, {73, 73}}, false},
        {12, {{61, 61}, {21, 21}, {13, 13}}, false},
        {13, {{361, 361}, {121, 121}, {73, 73}}, false},
        {14, {{182, 181}, {62, 61}, {38, 37}}, false},
        {15, {{201, 201}, {67, 67}, {41, 41}}, true},
        {16, {{30, 31}, {12, 11}, {8, 7}}, false},
        {17, {{62, 65}, {22, 23}, {14, 14}}, true},
        {18, {{21, 21}, {8, 8}, {5, 5}}, true},
        {21, {{41, 41}, {14, 14}, {9, 9}}, false},
        {22, {{63, 62}, {23, 22}, {15, 14}}, true},
        {23, {{101, 101}, {34, 34}, {21, 21}}, false},
        {24, {{86, 84}, {32, 30}, {22, 20}}, true},
        {25, {{42, 42}, {14, 14}, {9, 9}}, false},
        {26, {{121, 121}, {41, 41}, {25, 25}}, false},
        {27, {{361, 361}, {121, 121}, {73, 73}}, false},
        {28, {{241, 241}, {81, 81}, {49, 49}}, false},
        {29, {{361, 361}, {121, 121}, {73, 73}}, false},
        {reflection, {{201, 201}, {67, 67}, {41, 41}}, true},
    };
    for (const auto& row : rows) {
        for (int i = 0; i < 3; ++i) {
            const int step = 1 + 2 * i;
            const int* const pages = row.frames[i];
            // A vertical flight begins at the edge only the first time; later ones are a step in.
            const bool vertical = row.effect == 2 || row.effect == 3;
            QTest::addRow("%d, step %d", row.effect, step)
                << row.effect << step
                << QVector<int>{pages[0], pages[1], pages[0] - (vertical ? 1 : 0), pages[1]}
                << (vertical ? step : 0) << (row.takesCharIndex ? 0 : 7);
        }
    }
}

void EffectsTest::pagesTakeTheirFrames()
{
    QFETCH(int, effect);
    QFETCH(int, step);
    QFETCH(QVector<int>, frames);
    EngineFixture play;
    play.StartEffect(effect, step);
    QFETCH(int, charIndex);
    const bool isCursor = effect < 5 || effect == 9 || effect == 10 || effect == 24;
    if (!isCursor || effect == 1)
        play.charIndex() = 7;

    int drawn = 0;
    for (int i = 0; i < frames.size(); ++i) {
        const int page = i % 2 + 1;
        const int run = i / 2;
        for (int frame = 1; frame <= frames.at(i); ++frame) {
            QCOMPARE(play.pageIndex(), page);
            QCOMPARE(play.playCount(), run);
            play.DrawFrame();
            ++drawn;
        }
        QCOMPARE(play.stayPageIndex(), page);
        QCOMPARE(play.runEnded(), page == 2);
        if (effect != reflection)
            QCOMPARE(play.playFinished(), i >= 1); // one play is asked for
    }
    QCOMPARE(play.pageIndex(), 1);
    QCOMPARE(play.playCount(), 2);
    QCOMPARE(play.frameCount(), effect == 4 ? 2 * drawn : drawn);
    QTEST(play.moveOffset(), "moveOffset");
    QCOMPARE(play.moveOffset2(), 0);
    QCOMPARE(play.progressF(), 0.0f);
    QCOMPARE(play.charIndex(), charIndex);
    QCOMPARE(play.charCount(), 3);
}

void EffectsTest::glyphsStandInTheirPlaces_data()
{
    QTest::addColumn<int>("effect");
    QTest::addColumn<int>("width"); // of the area: two pages in 60, one in 100
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("frame");
    QTest::addColumn<QString>("corners"); // of the glyphs in textPath
    QTest::addColumn<QRect>("painted");   // null: not looked at

    // Glyphs reach from (2, 4 - h) to (w - 3, -2) about the left end of their baseline; widths are
    // 30, 20, 40, heights 20, 25, 16, descents 4, 5, 3. At rest baselines stand at 28, 27, 29, and
    // half a pixel or a pixel lower where halves are exact.
    const struct
    {
        int effect, width, step, frame;
        const char* corners;
        QRect painted;
    } rows[] = {
        {0, 60, 1, 40, "", QRect(22, 12, 26, 15)},
        {0, 60, 1, 70, "2,12 27,26", QRect(2, 6, 58, 21)},
        {0, 60, 1, 102, "", QRect(52, 17, 8, 11)},
        {1, 60, 1, 10, "", QRect(12, 17, 36, 11)},
        {1, 60, 1, 21, "22,17 57,27", QRect(2, 6, 56, 22)},
        {1, 60, 1, 32, "", QRect(12, 12, 26, 15)},
        {2, 60, 1, 34, "", QRect(2, 12, 26, 15)},
        {2, 60, 1, 35, "2,12 27,26", QRect(2, 12, 46, 29)},
        {2, 60, 3, 12, "", QRect(2, 10, 26, 15)}, // two pixels past its slot
        {3, 60, 1, 30, "", QRect(2, 14, 26, 15)}, // likewise
        {3, 60, 1, 31, "2,12 27,26", QRect(2, 12, 26, 15)},
        {3, 60, 3, 5, "", QRect(2, 0, 26, 14)},
        {4, 60, 1, 0, "", QRect()},
        {4, 60, 1, 1, "2,12 27,26", QRect()},
        {4, 60, 1, 3, "2,17 37,27", QRect()},
        {5, 60, 1, 0, "2,15 27,29; 32,8 47,27", QRect()},
        {5, 60, 1, 40, "2,8 27,22; 32,3 47,22", QRect()},
        {5, 60, 5, 25, "2,27 37,37", QRect()},
        {5, 100, 3, 20, "2,10 27,24; 32,2 47,21; 52,11 87,21", QRect()},
        {6, 60, 1, 0, "2,12 27,26; 32,6 47,25", QRect()},
        {6, 60, 1, 31, "1,12 40,26; 26,6 60,25", QRect()},
        {6, 60, 3, 151, "-0.93,17 24.29,27", QRect()},
        {7, 60, 1, 90, "3,4 40.5,25; 33,-4.5 55.5,24", QRect()},
        {7, 60, 5, 80, "2.64,13.14 48.89,26.36", QRect()},
        {9, 60, 1, 15, "0.96,20.33 12.94,27.04", QRect()},
        {9, 60, 1, 60, "2,12 27,26; 30.9,17.55 37.65,26.1", QRect()},
        {9, 60, 5, 22, "0.65,25.07 12.11,28.35", QRect()},
        {10, 60, 1, 0, "4,-4 54,24", QRect()},
        {10, 60, 1, 60, "2,12 27,26; 33.79,-12.75 62.18,23.21", QRect()},
        {11, 60, 1, 90, "18.5,3.5 4.5,28.5; 48.5,7.5 29.5,22.5", QRect()},
        {11, 60, 3, 151, "19.5,-0.5 9.5,34.5", QRect()},
        {12, 60, 1, 0, "62,12 87,26", QRect()},
        {12, 60, 1, 31, "31,12 56,26; 61,6 76,25", QRect()}, // the angle has just begun anew
        {12, 60, 1, 35, "26.84,23.65 53.97,14.44; 53.33,14.76 77.49,16.32", QRect()},
        {12, 60, 3, 22, "60.09,28.34 94.28,15.86", QRect()},
        {13, 60, 1, 90, "31,15 17,40; 61,19 42,34", QRect()},
        {13, 60, 3, 131, "10.41,9.61 35.72,35.77", QRect()},
        {14, 60, 1, 0, "2,44 27,30", QRect()},
        {14, 60, 1, 120, "2,20 27,27; 32,16.82 47,26.03", QRect()},
        {14, 60, 1, 181, "2,12 27,26; 32,6 47,25", QRect()},
        {14, 100, 3, 1, "2,43.98 27,30; 32,48 47,29; 52,40.98 87,31", QRect()},
        {15, 60, 1, 0, "2,18.72 27,26.84", QRect()},
        {15, 100, 3, 10, "2,9.46 27,25.68; 32,3.77 47,24.79; 52,15.09 87,26.68", QRect()},
        {16, 100, 1, 0, "2,-16 27,-2", QRect()},
        {16, 100, 3, 1, "2,-13 27,1; 32,-21 47,-2; 52,-15 87,-5", QRect()},
        {16, 60, 1, 28, "2,12 27,26; 32,6 47,25", QRect()},
        {16, 60, 1, 60, "2,17 37,27", QRect()},
        {17, 100, 1, 0, "-9.9,-12.73 17.68,-20.51", QRect()},
        {17, 100, 1, 35, "-9.9,8.27 17.68,0.49; 16.56,3.74 40.61,6.56; 42.93,15.1 74.75,-2.58",
         QRect()},
        {17, 100, 1, 44, "-9.9,-0.73 17.68,-8.51; 16.56,-5.26 40.61,-2.44; 42.93,6.1 74.75,-11.58",
         QRect()},
        {17, 100, 1, 50, "2,0.4 27,14.4; 32,-4.4 47,14.6; 52,1.2 87,11.2", QRect()},
        {17, 100, 1, 64, "2,12 27,26; 32,6 47,25; 52,15.2 87,25.2", QRect()},
        {18, 100, 1, 0, "100,5 100,19", QRect()},
        {18, 100, 1, 11, "67.66,6 75.91,20; 77.64,-1 82.44,18; 84.62,11 95.47,21", QRect()},
        {18, 100, 3, 12, "2,8 27,22; 32,1 47,20; 52,14 87,24", QRect()},
        {18, 60, 1, 20, "2,8 27,22; 31.97,1 46.72,20", QRect()},
        {21, 60, 1, 0, "0,12 0,26; 30,6 30,25", QRect()},
        {21, 100, 1, 10, "0.67,12 9,26; 31,6 38.5,25; 50.5,17 59.25,27", QRect()},
        {21, 100, 1, 25, "1.67,12 22.5,26; 32,6 47,25; 51.25,17 73.13,27", QRect()},
        {21, 60, 3, 15, "0.15,17 2.78,27", QRect()},
        {22, 100, 1, 0, "102,5 127,19", QRect()},
        {22, 100, 1, 50, "52,7 77,21; 83,0 98,19; 104,12 139,22", QRect()},
        {22, 100, 3, 1, "99,5 124,19; 132,-1 147,18", QRect()},
        {22, 60, 1, 62, "2,9 27,23; 32,2 47,21", QRect()},
        {23, 100, 1, 0, "2,25 27,39; 32,14.75 47,33.75; 52,19.5 87,29.5", QRect()},
        {23, 100, 3, 1, "2,10 27,24; 32,-1 47,18; 52,29 87,39", QRect()},
        {23, 60, 1, 102, "2,19.5 37,29.5", QRect()},
        {24, 100, 1, 0, "0,28 0,28", QRect()},
        {24, 100, 1, 2, "0.1,27.2 1.35,27.9; 30.05,26.48 30.43,26.95; 50.05,28.7 50.92,28.95",
         QRect()},
        {24, 100, 1, 42, "2,12 27,26; 32,6 47,25; 52,17 87,27", QRect()},
        {24, 100, 1, 50, "0.3,25.6 4.05,27.7; 30.25,24.38 32.13,26.75; 50.25,27.5 54.63,28.75",
         QRect()},                                                              // the second time
        {24, 60, 1, 51, "0.4,24.8 5.4,27.6; 30.35,23.32 32.98,26.65", QRect()}, // no third one
        {25, 60, 1, 5, "12,21 37,28; 30,17.29 45,26.98", QRect()},
        {25, 60, 1, 11, "27,29 52,29; 27,27.58 42,27.96", QRect()},
        {25, 60, 1, 25, "12,16.4 27,27.8; 30,18.27 55,26.78", QRect()},
        {25, 60, 1, 41, "52,8 67,27; 22,12 47,26", QRect()},
        {25, 100, 5, 7, "65,24.2 100,28.2; 53,19.46 68,27.19; 45,23.39 70,29.17", QRect()},
        {26, 60, 1, 10, "-90,14 -69.17,40.5; 50,8 62.5,34.5", QRect()},
        {26, 60, 1, 60, "-50,14 -50,40.5; 40,8 40,34.5", QRect()},
        {26, 60, 1, 100, "-15.33,13.33 1.33,31.5; 34.67,7.33 44.67,28.83", QRect()},
        {27, 60, 1, 90, "-66,32 -52,7; 46.5,23.5 65.5,8.5", QRect()},
        {27, 60, 3, 131, "-70.92,27.54 -35.61,18.7", QRect()},
        {28, 60, 1, 0, "-25,0 -25,0; 5,0 5,0", QRect()},
        {28, 60, 1, 20, "-23.76,-9.89 -8.3,-1.24; 6.24,-12.99 15.51,-1.24", QRect(10, 21, 26, 8)},
        {28, 60, 3, 101, "-18.18,-10.91 13.64,-1.82", QRect(3, 20, 30, 9)},
        {29, 60, 1, 0, "2,12 27,26; 32,6 47,25", QRect()},
        {29, 60, 1, 20, "12.71,0.78 28.28,24.83; 43.88,0.03 48.28,23.83", QRect()},
        {29, 60, 3, 40, "-7.3,13.62 21.25,11.22; 19.9,8.48 42.96,15.82", QRect()},
        {reflection, 60, 1, 0,
         "2,18.72 27,26.84; 2,37.28 27,29.16; 32,15.83 47,25.94; 32,38.17 47,28.06", QRect()},
        {reflection, 60, 3, 10,
         "2,9.46 27,25.68; 2,46.54 27,30.32; 32,3.77 47,24.79; 32,50.23 47,29.21", QRect()},
    };
    for (const auto& row : rows)
        QTest::addRow("%d in %d, step %d, frame %d", row.effect, row.width, row.step, row.frame)
            << row.effect << row.width << row.step << row.frame << row.corners << row.painted;
}

void EffectsTest::glyphsStandInTheirPlaces()
{
    QFETCH(int, effect);
    QFETCH(int, width);
    QFETCH(int, step);
    QFETCH(int, frame);
    QFETCH(QString, corners);
    QFETCH(QRect, painted);
    EngineFixture play(width == 100 ? OnePage() : RectangleText::TwoPages());
    play.StartEffect(effect, step);
    for (int i = 0; i <= frame; ++i)
        play.DrawFrame();

    const QString actual = Corners(play.textPath());
    QVERIFY2(Near(actual, corners), qPrintable(actual + " instead of " + corners));
    if (!painted.isNull())
        QCOMPARE(PaintedBox(play.drawImage()), painted);
}

void EffectsTest::trembleDrawsItsNumbersInOrder()
{
    EngineFixture play;
    play.StartEffect(8);
    qsrand(4);
    play.DrawFrame();
    const QString actual = Corners(play.textPath());

    qsrand(4);
    QStringList corners;
    const QRectF atRest[] = {QRectF(2, 12, 25, 14), QRectF(32, 6, 15, 19)};
    for (const QRectF& glyph : atRest) {
        int draws[4];
        for (int& draw : draws)
            draw = qrand();
        const double x = glyph.x() + draws[0] % 5 * std::sin(draws[1] % 8);
        const double y = glyph.y() + draws[2] % 5 * std::sin(draws[3] % 8);
        corners.append(
            QString("%1,%2 %3,%4").arg(x).arg(y).arg(x + glyph.width()).arg(y + glyph.height()));
    }
    QVERIFY2(Near(actual, corners.join("; ")), qPrintable(actual));
}

void EffectsTest::pagesAreHandedOver_data()
{
    QTest::addColumn<int>("effect");
    QTest::addColumn<int>("hold"); // units of 100 ms
    QTest::addColumn<int>("speed");
    QTest::addColumn<QVector<int>>("visits"); // of the holds of the first page, the second, ...
    for (int effect : EffectNumbers()) {
        const bool slowFamily = effect == 4 || effect == 8;
        QTest::addRow("%d, no hold", effect) << effect << 0 << 9 << QVector<int>{0, 0, 0, 0};
        // 700 ms are 11 ticks; in the slow family a visit takes 10 - 9 ticks.
        QTest::addRow("%d, fast", effect) << effect << 7 << 9 << QVector<int>{11, 11, 11, 11};
        // At speed 4 a visit takes 2 ticks, or 6 in the slow family; later holds are one shorter.
        QTest::addRow("%d, slow", effect)
            << effect << 7 << 4
            << (slowFamily ? QVector<int>{2, 2, 2, 2} : QVector<int>{6, 5, 5, 5});
    }
}

void EffectsTest::pagesAreHandedOver()
{
    QFETCH(int, effect);
    QFETCH(int, hold);
    QFETCH(int, speed);
    QFETCH(QVector<int>, visits);
    EngineFixture play;
    play.Start({{"AnimationEffect", effect}, {"AnimationSpeed", speed}}, hold);

    for (int i = 0; i < visits.size(); ++i) {
        const int page = i % 2 + 1;
        const int runs = (i + 1) / 2;
        for (int ticks = 0; play.pageIndex() == page && play.playCount() == i / 2; ++ticks) {
            QVERIFY(ticks < 5000);
            QVERIFY(play.isDrawing());
            QCOMPARE(play.engine.GetDisplayTimes(), i / 2);
            play.Tick();
        }
        QCOMPARE(play.stayPageIndex(), page);
        QCOMPARE(play.pageIndex(), page % 2 + 1);
        QCOMPARE(play.playCount(), runs);

        int visited = 0;
        while (!play.isDrawing()) {
            QCOMPARE(play.engine.GetDisplayTimes(), 0);
            if (!play.Tick())
                continue;
            ++visited;
            QVERIFY(visited < 100);
            // At rest, from the left edge; pages that fill from their end, at the right edge.
            const QString pages[] = {"2,12 27,26; 32,6 47,25", "2,17 37,27"};
            const QString pagesFromEnd[] = {"22,17 57,27; 2,6 17,25", "32,12 57,26"};
            QCOMPARE(Corners(play.textPath()), (effect == 1 ? pagesFromEnd : pages)[page - 1]);
        }
        QCOMPARE(visited, visits.at(i));
        QCOMPARE(play.engine.GetDisplayTimes(), runs);
    }
}

void EffectsTest::missingOutlinesLeaveTheMotionAlone_data()
{
    QTest::addColumn<int>("effect");
    for (int effect : EffectNumbers({reflection}))
        QTest::addRow("%d", effect) << effect;
}

void EffectsTest::missingOutlinesLeaveTheMotionAlone()
{
    QFETCH(int, effect);
    const auto framesOfARun = [effect](int outlines) {
        RectangleText text = RectangleText::TwoPages();
        text.SetGlyphs(RectangleGlyphs({30, 20, 40}, {20, 25, 16}).mid(0, outlines));
        EngineFixture play(std::move(text));
        play.StartEffect(effect, 5);
        int frames = 0;
        for (; play.playCount() == 0 && frames < 1000; ++frames) {
            play.DrawFrame();
            if (int(play.textPath().Size()) > 5 * outlines * (effect == reflection ? 2 : 1))
                return -1;
        }
        return frames;
    };
    const int all = framesOfARun(3);
    QVERIFY(all > 0 && all < 1000);
    QCOMPARE(framesOfARun(1), all);
    QCOMPARE(framesOfARun(0), all);
}

void EffectsTest::emptyAreasPaintNothing_data()
{
    missingOutlinesLeaveTheMotionAlone_data();
}

// Runs to the end, or nowhere, but neither crashes nor complains: no warning of the painter.
void EffectsTest::emptyAreasPaintNothing()
{
    QFETCH(int, effect);
    for (QSize area : {QSize(), QSize(0, 0), QSize(0, 41), QSize(60, 0), QSize(-5, 41)}) {
        EngineFixture play(RectangleText({0, 20, 0}, {0, 0, 0}, {4, 5, 3}, area));
        const Messages messages;
        play.StartEffect(effect, 5);
        for (int i = 0; i < 300; ++i)
            play.DrawFrame();
        QCOMPARE(messages.Taken(), QStringList());
        QCOMPARE(int(play.textPath().Size()), 0);
        QVERIFY(play.frameCount() >= 300);
    }
}

QTEST_GUILESS_MAIN(EffectsTest)
#include "tst_effects.moc"
