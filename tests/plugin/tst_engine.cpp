// The frame loop, what text is painted with, and what an engine takes from its node.
#include "enginefixture.h"

#include <drawneonbg.h>
#include <hpluginmanager.h>

#include <QPainter>

using Lw::HPluginManager;

class EngineTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { HPluginManager::instance()->SetAlphaBlend(true); }
    void speedsPaceTheFrames_data();
    void speedsPaceTheFrames();
    void holdsLast_data();
    void holdsLast();
    void pausedOrEmptyNothingHappens();
    void unknownMotionsPaintNothing_data();
    void unknownMotionsPaintNothing();
    void canvasFollowsTheMode_data();
    void canvasFollowsTheMode();
    void textIsPlain_data();
    void textIsPlain();
    void hollowTextIsAnOutline();
    void fillPicturesAreLookedAtFirst();
    void absurdMetricsDoNoHarm_data();
    void absurdMetricsDoNoHarm();
    void theNodeMayGo();
};

void EngineTest::speedsPaceTheFrames_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("motion");
    QTest::addColumn<int>("speed");
    QTest::addColumn<int>("ticksPerFrame");
    QTest::addColumn<int>("step");
    const auto row = [](const char* name, int mode, int motion, int speed, int ticksPerFrame,
                        int step) {
        QTest::addRow("%s, speed %d", name, speed)
            << mode << motion << speed << ticksPerFrame << step;
    };
    for (int speed = 0; speed <= 9; ++speed) {
        const bool slow = speed < 5;
        row("waves", 0, 5, speed, slow ? 6 - speed : 1, slow ? 1 : speed - 4);
        row("word for word", 0, 4, speed, 10 - speed, 10 - speed);
        row("tremble", 0, 8, speed, 10 - speed, 10 - speed);
        row("up", 1, 2, speed, slow ? 6 - speed : 1, slow ? 1 : speed - 4);
        row("left", 1, 0, speed, 1, slow ? 1 : speed - 4);
    }
    row("word for word", 0, 4, 10, 1, 1);
    row("tremble", 0, 8, 30, 1, 1);
    row("waves", 0, 5, -3, 9, 1);
}

void EngineTest::speedsPaceTheFrames()
{
    QFETCH(int, mode);
    QFETCH(int, motion);
    QFETCH(int, speed);
    QFETCH(int, ticksPerFrame);
    EngineFixture play;
    play.Start({{"EffectType", mode},
                {"AnimationEffect", motion},
                {"ContinueStyle", motion},
                {"AnimationSpeed", mode == 0 ? speed : 5},
                {"ContinueSpeed", mode == 1 ? speed : 5}});
    for (int tick = 0; tick < 40; ++tick) {
        play.drawImage().fill(Qt::red);
        play.engine.PrepareImage();
        const bool drew = play.drawImage().pixelColor(0, 0) != QColor(Qt::red);
        QCOMPARE(drew, tick % ticksPerFrame == 0);
        QTEST(play.stepSize(), "step");
    }
}

void EngineTest::holdsLast_data()
{
    QTest::addColumn<int>("effect");
    QTest::addColumn<int>("speed");
    QTest::addColumn<int>("hold");            // units of 100 ms
    QTest::addColumn<QVector<int>>("visits"); // of the first hold, the second, the third
    const struct
    {
        int effect, speed, hold;
        QVector<int> visits;
    } rows[] = {
        {5, 9, 0, {0, 0, 0}},     {5, 9, -1, {0, 0, 0}},
        {5, 9, 1, {2, 2, 2}},                               // 100 ms are not over after 66
        {5, 5, 20, {31, 31, 31}}, {5, 5, 33, {50, 50, 50}}, // 3,300 ms to the millisecond
        {5, 4, 1, {1, 1, 1}},                               // a visit takes 132 ms
        {5, 4, 20, {16, 15, 15}}, {5, 3, 20, {11, 10, 10}},
        {5, 2, 20, {8, 7, 7}},    {5, 1, 20, {7, 6, 6}},
        {5, 0, 20, {6, 5, 5}},    {8, 9, 20, {31, 31, 31}},
        {8, 5, 20, {7, 7, 7}}, // a visit takes 330 ms
        {8, 0, 20, {4, 4, 4}},    {4, 4, 20, {6, 6, 6}},
        {5, 9, 100000000, {100}}, // longer than 32 bits of milliseconds, so never seen to end
    };
    for (const auto& row : rows)
        QTest::addRow("effect %d, speed %d, hold %d", row.effect, row.speed, row.hold)
            << row.effect << row.speed << row.hold << row.visits;
}

void EngineTest::holdsLast()
{
    QFETCH(int, effect);
    QFETCH(int, speed);
    QFETCH(int, hold);
    EngineFixture play;
    play.Start({{"AnimationEffect", effect}, {"AnimationSpeed", speed}}, hold);
    QFETCH(QVector<int>, visits);
    for (int expected : visits) {
        const int page = play.pageIndex();
        for (int ticks = 0; play.pageIndex() == page; ++ticks) {
            QVERIFY(ticks < 2000);
            play.Tick();
        }
        int visited = 0;
        while (!play.isDrawing() && visited < 100)
            visited += play.Tick() ? 1 : 0;
        QCOMPARE(visited, expected);
    }
}

void EngineTest::pausedOrEmptyNothingHappens()
{
    EngineFixture play;
    play.Start({{"AnimationEffect", 6}});
    play.Tick();
    play.engine.Pause(true);
    const QImage before = play.drawImage().copy();
    for (int i = 0; i < 3; ++i)
        QVERIFY(!play.Tick());
    QCOMPARE(play.drawImage(), before);
    play.engine.Pause(false);
    QVERIFY(play.Tick());
    QCOMPARE(play.frameCount(), 2);

    play.text.node->SetAttribute("Text", "");
    play.Start({});
    QVERIFY(!play.Tick());
    play.engine.DrawAndUpdateImage();
    QCOMPARE(play.frameCount(), 0);
}

void EngineTest::unknownMotionsPaintNothing_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("motion");
    QTest::newRow("effect 30") << 0 << 30;
    QTest::newRow("effect below 0") << 0 << -1;
    QTest::newRow("direction 4") << 1 << 4;
    QTest::newRow("mode 2") << 2 << 0;
}

void EngineTest::unknownMotionsPaintNothing()
{
    QFETCH(int, mode);
    QFETCH(int, motion);
    EngineFixture play;
    play.Start({{"EffectType", mode}, {"AnimationEffect", motion}, {"ContinueStyle", motion}});
    const QImage before = play.drawImage().copy();
    QCOMPARE(before.pixelColor(3, 3), QColor(1, 2, 1));
    for (int i = 0; i < 5; ++i)
        play.Tick();
    QCOMPARE(play.drawImage(), before);
    QCOMPARE(play.frameCount(), 0);
    QCOMPARE(play.playCount(), 0);
}

void EngineTest::canvasFollowsTheMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("neon");
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<QSize>("layer");
    const QSize area(60, 41), line(90, 41);
    QTest::newRow("effect") << 0 << 0 << 0 << area << area;
    QTest::newRow("left") << 1 << 0 << 0 << line << line;
    QTest::newRow("right") << 1 << 1 << 2 << line << line;
    QTest::newRow("right over neon") << 1 << 1 << 1 << line << area;
    QTest::newRow("up") << 1 << 2 << 0 << area << area;
    QTest::newRow("static") << 7 << 0 << 0 << area << area;
}

void EngineTest::canvasFollowsTheMode()
{
    QFETCH(int, mode);
    QFETCH(int, style);
    QFETCH(int, neon);
    for (bool blend : {true, false}) {
        HPluginManager::instance()->SetAlphaBlend(blend);
        EngineFixture play;
        play.Start({{"EffectType", mode}, {"ContinueStyle", style}, {"CheckNeonBg", neon}});
        QTEST(play.engine.CountSize(true), "canvas");
        QTEST(play.engine.CountSize(false), "layer");
        QTEST(play.drawImage().size(), "canvas");
        QCOMPARE(play.drawImage().format(), blend ? QImage::Format_ARGB32 : QImage::Format_RGB888);
    }
}

void EngineTest::textIsPlain_data()
{
    QTest::addColumn<QString>("flag");
    for (const char* flag : {"CheckColorGradient", "Stroke", "CheckPictureFills",
                             "CheckShadowEffect", "CheckDazzle", "CheckNeonBg"})
        QTest::newRow(flag) << flag;
}

// Neither flag nor the colours of later characters change a pixel of the text.
void EngineTest::textIsPlain()
{
    QFETCH(QString, flag);
    QImage frames[2];
    for (int on = 0; on < 2; ++on) {
        EngineFixture play;
        play.text.node->SetList("TextAttribute", {{{"Color", "255"}},
                                                  {{"Color", on ? "65280" : "255"}},
                                                  {{"Color", on ? "65280" : "255"}}});
        QImage picture(3, 3, QImage::Format_RGB32);
        picture.fill(Qt::yellow);
        QVERIFY(picture.save(play.text.File("fill.png")));
        play.text.node->SetFiles("FillImage", {play.text.File("fill.png")});
        play.text.node->SetAttribute(flag, on);
        play.Start({{"AnimationEffect", 6}, {"StrokeColor", 0xFFFFFF}, {"TextShadowBox", 3}});
        for (int i = 0; i < 5; ++i)
            play.DrawFrame();
        frames[on] = play.drawImage().copy();
    }
    QCOMPARE(frames[1], frames[0]);
    QCOMPARE(frames[0].pixelColor(15, 20), QColor(0, 0, 255));
}

void EngineTest::hollowTextIsAnOutline()
{
    for (int hollow : {0, 1, 2}) {
        EngineFixture play;
        play.Start({{"AnimationEffect", 6}, {"Hollow", hollow}});
        play.DrawFrame();
        const QImage& picture = play.drawImage(); // a glyph from (2, 12) to (27, 26), red
        QCOMPARE(picture.pixelColor(2, 12), QColor(255, 0, 0));
        QCOMPARE(picture.pixelColor(27, 26), QColor(255, 0, 0));
        QCOMPARE(picture.pixelColor(15, 20), hollow == 1 ? QColor(0, 0, 0, 0) : QColor(255, 0, 0));
        QCOMPARE(picture.pixelColor(3, 13), picture.pixelColor(15, 20)); // a pen of one pixel
        QCOMPARE(picture.pixelColor(28, 20), QColor(0, 0, 0, 0));
    }
}

void EngineTest::fillPicturesAreLookedAtFirst()
{
    EngineFixture play;
    // 20,000 x 20,000 pixels in a few bytes: a picture whose header is all there is.
    WriteFile(play.text.File("huge.pbm"), "P4\n20000 20000\n");
    for (const char* name : {"huge.pbm", "paths", "missing"}) {
        play.text.node->SetFiles("FillImage", {play.text.File(name)});
        play.Start({{"CheckPictureFills", 1}, {"AnimationEffect", 6}});
        play.DrawFrame();
        QCOMPARE(PaintedBox(play.drawImage()), QRect(2, 6, 46, 21));
    }
}

void EngineTest::absurdMetricsDoNoHarm_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("motion");
    for (int effect : EffectNumbers())
        QTest::addRow("effect %d", effect) << 0 << effect;
    for (int style = 0; style < 4; ++style)
        QTest::addRow("scroll %d", style) << 1 << style;
}

// Nothing overflows, divides by nothing or loops for ever: the sanitizers look on.
void EngineTest::absurdMetricsDoNoHarm()
{
    QFETCH(int, mode);
    QFETCH(int, motion);
    const int huge = 2147483647;
    const QVector<int> numbers[] = {
        {0, 0, 0},
        {-30, 20, -40},
        {huge, huge, huge},
        {huge, -huge, huge},
        {-huge - 1, 5, -huge - 1},
        {},
    };
    const QVector<QPainterPath> glyphs = RectangleGlyphs({30, 20, 40}, {20, 25, 16});
    const Messages messages;
    for (const QVector<int>& widths : numbers) {
        for (const QVector<int>& others : numbers) {
            RectangleText text(widths, others, others, QSize(60, 41));
            text.SetGlyphs(glyphs);
            text.node->SetAttribute("Text", "abc");
            EngineFixture play(std::move(text));
            for (int speed : {0, 7, huge, -huge - 1}) {
                play.Start({{"EffectType", mode},
                            {"AnimationEffect", motion},
                            {"ContinueStyle", motion},
                            {"AnimationSpeed", speed},
                            {"ContinueSpeed", speed}},
                           speed == 7 ? 1 : huge);
                for (int i = 0; i < 12; ++i)
                    play.Tick();
                play.text.node->Duration();
            }
        }
    }
    for (const QString& message : messages.Taken())
        QVERIFY2(message.startsWith("Text picture is too large"), qPrintable(message));
}

void EngineTest::theNodeMayGo()
{
    EngineFixture play;
    play.Start({{"AnimationEffect", 6}, {"CheckDazzle", 1}, {"CheckNeonBg", 1}}, 5);
    play.Tick();
    play.text.node.reset();
    for (int i = 0; i < 500; ++i)
        QVERIFY(play.Tick());
    play.engine.UpdateDazzleBackground();
    play.engine.UpdateStayImage();
    play.engine.Pause(true);
    play.engine.Pause(false);
    QCOMPARE(play.engine.Init(nullptr), 0);
    play.engine.Start();
    play.engine.PrepareImage();
}

QTEST_MAIN(EngineTest)
#include "tst_engine.moc"
