// How long a node says that it plays: the model's own rows by value, the others against a run.
#include "enginefixture.h"

#include <random>

namespace {

const int tick = 66; // ms

// Ticks until the engine has counted @p runs runs.
QVector<int> TicksOfRuns(EngineFixture& play, int runs)
{
    QVector<int> ticks;
    for (int run = 1; run <= runs; ++run) {
        int passed = 0;
        for (; play.playCount() < run && passed < 200000; ++passed)
            play.engine.PrepareImage();
        ticks.append(passed);
    }
    return ticks;
}

RectangleText RandomText(unsigned seed)
{
    std::mt19937 random(seed);
    const auto between = [&random](int least, int most) {
        return least + int(random() % unsigned(most - least + 1));
    };
    QVector<int> widths(between(1, 9)), heights(widths.size()), descents(widths.size());
    for (int i = 0; i < widths.size(); ++i) {
        widths[i] = between(5, 60);
        heights[i] = between(8, 40);
        descents[i] = between(0, 9);
    }
    return RectangleText(widths, heights, descents, QSize(between(40, 130), between(20, 70)));
}

} // namespace

class DurationTest : public QObject
{
    Q_OBJECT

private slots:
    void statedRows_data();
    void statedRows();
    void openRowsAreWhatIsRun_data();
    void openRowsAreWhatIsRun();
};

void DurationTest::statedRows_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("motion"); // effect or direction
    QTest::addColumn<int>("speed");
    QTest::addColumn<int>("hold");
    QTest::addColumn<int>("plays");
    QTest::addColumn<int>("duration");

    // Three characters of widths 30, 20, 40 on two pages of an area of 60 x 41, heights 61 in all.
    const struct
    {
        int mode;
        QVector<int> motions;
        int speed, hold, plays, duration;
    } rows[] = {
        {0, {0, 1}, 3, 3, 2, 2 * (15840 + 600)},
        {0, {0, 1}, 7, 3, 2, 2 * (1716 + 600)}, // 30 / 3 and 50 / 3 ticks
        {0, {4}, 3, 3, 2, 2 * (1386 + 600)},
        {0, {4}, 9, 3, 2, 2 * (198 + 600)},
        {0, {6, 7, 11, 13, 27, 29}, 0, 3, 2, 2 * (285120 + 600)},
        {0, {6, 7, 11, 13, 27, 29}, 4, 3, 2, 2 * (95040 + 600)},
        {0, {6, 7, 11, 13, 27, 29}, 5, 3, 2, 2 * (47520 + 600)},
        {0, {6, 7, 11, 13, 27, 29}, 7, 3, 2, 2 * (15840 + 600)},
        {0, {9, 10}, 3, 3, 2, 2 * (26730 + 600)},
        {0, {9, 10}, 8, 3, 2, 2 * (2178 + 600)}, // 45 / 4 ticks
        {0, {12}, 3, 3, 2, 2 * (23760 + 600)},
        {0, {12}, 7, 3, 2, 2 * (2640 + 600)},
        {0, {19, 20}, 3, 3, 2, 2 * (6930 + 600)},
        {0, {19, 20}, 9, 3, 2, 2 * (990 + 600)},
        {0, {21}, 3, 3, 2, 2 * (15840 + 600)},
        {0, {21}, 7, 3, 2, 2 * (1716 + 600)}, // 40 / 3 ticks
        {0, {6}, 5, 3, 0, 0},
        {0, {-1, 30}, 5, 3, 2, 6000},
        {2, {0, 6}, 5, 3, 0, 6000},
        {-1, {6}, 5, 3, 2, 6000},
        {1, {-1, 4}, 5, 3, 0, 6000},
        {1, {0, 1}, 3, 3, 2, 2 * (60 + 90) * 66 * 3},
        {1, {0, 1}, 8, 3, 2, 2 * (15 * 66 + 1485)}, // 60 / 4 and 90 / 4 ticks
        {1, {2, 3}, 3, 3, 2, 24156},
        {1, {2, 3}, 5, 3, 2, 8052},
        {1, {2, 3}, 8, 3, 2, 2013},
        // Products wrap at 32 bits.
        {0, {6}, 5, 3, 100000, 517032704},      // 100,000 x 48,120
        {0, {6}, 5, 20000000, 1, -294919776},   // 47,520 + 2 x 2,000,000,000
        {1, {2, 3}, 0, 3, 200000, 536232704},   // 6 x 61 x 66 x 200,000
        {1, {2, 3}, 5, 3, 1000000, 2147483647}, // in floating point, as long as an int can be
    };
    for (const auto& row : rows)
        for (int motion : row.motions)
            QTest::addRow("mode %d, motion %d, speed %d, hold %d, plays %d", row.mode, motion,
                          row.speed, row.hold, row.plays)
                << row.mode << motion << row.speed << row.hold << row.plays << row.duration;
}

void DurationTest::statedRows()
{
    QFETCH(int, mode);
    QFETCH(int, motion);
    QFETCH(int, speed);
    QFETCH(int, hold);
    QFETCH(int, plays);
    RectangleText text = RectangleText::TwoPages();
    text.node->SetHoldTime(hold);
    text.Set({{"EffectType", mode},
              {"AnimationEffect", motion},
              {"ContinueStyle", motion},
              {mode == 0 ? "AnimationSpeed" : "ContinueSpeed", speed},
              {"PlayTimes", plays}});
    QTEST(text.node->Duration(), "duration");
    QTEST(text.node->Duration(), "duration"); // the pages do not add up
}

void DurationTest::openRowsAreWhatIsRun_data()
{
    QTest::addColumn<int>("effect");
    for (int effect : {2, 3, 5, 8, 14, 15, 16, 17, 18, 22, 23, 24, 25, 26, 28})
        QTest::addRow("%d", effect) << effect;
}

void DurationTest::openRowsAreWhatIsRun()
{
    QFETCH(int, effect);
    for (int speed = 0; speed <= 9; ++speed) {
        for (unsigned seed = 1; seed <= 5; ++seed) {
            EngineFixture play(RandomText(seed));
            play.Start({{"AnimationEffect", effect}, {"AnimationSpeed", speed}});
            const QVector<int> ticks = TicksOfRuns(play, 3);
            const int duration = play.text.node->Duration();
            const QByteArray what = "speed " + QByteArray::number(speed) + ", seed " +
                                    QByteArray::number(seed) + ": " +
                                    QByteArray::number(duration / double(tick)) + " for " +
                                    QByteArray::number(ticks.at(1));
            QVERIFY2(duration == ticks.at(1) * tick, what);
            QCOMPARE(ticks.at(2), ticks.at(1));
            // The first tick draws, so the first run takes what comes before its last frame less;
            // a vertical flight's very first character begins at the edge, a frame further off.
            const int ticksPerFrame = effect == 8 ? 10 - speed : speed < 5 ? 6 - speed : 1;
            const int furtherOff = effect == 2 || effect == 3 ? ticksPerFrame : 0;
            QCOMPARE(ticks.at(0), ticks.at(1) - (ticksPerFrame - 1) + furtherOff);
        }
    }
}

QTEST_MAIN(DurationTest)
#include "tst_duration.moc"
