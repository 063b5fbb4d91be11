// How long a node says that it plays, beside how long it does.
#include "enginefixture.h"

namespace {

const int tick = 66; // ms

/** Effects whose duration is a model of their motion; the others tell just what they run. */
const int models[] = {0, 1, 4, 6, 7, 9, 10, 11, 12, 13, 19, 20, 21, 27, 29};

/** The ticks of the first run and of the second one, without their holds. */
QPair<int, int> Runs(EngineFixture& play)
{
    int ticks[2] = {0, 0};
    for (int& run : ticks)
        for (const int before = play.playCount(); play.playCount() == before; ++run)
            play.engine.PrepareImage();
    return {ticks[0], ticks[1]};
}

} // namespace

class TestDuration : public QObject
{
    Q_OBJECT

private slots:
    void toldIsPlayed_data()
    {
        QTest::addColumn<int>("effect");
        QTest::addColumn<QVector<int>>("widths");
        const QVector<int> texts[] = {{30}, {30, 20, 40}, {70, 5, 31, 30, 30}};
        for (int effect = 0; effect <= Lw::HNodeAnimationText::Entrance::Last; ++effect)
            for (const QVector<int>& widths : texts)
                QTest::addRow("effect %d, %d characters from %d", effect, int(widths.size()),
                              widths[0])
                    << effect << widths;
    }

    void toldIsPlayed()
    {
        QFETCH(int, effect);
        QFETCH(QVector<int>, widths);
        EngineFixture play(RectangleText(widths, {20, 25, 16, 9}, {4, 5, 3, 0, 9}, QSize(60, 41)));
        play.text.SetGlyphs({}); // they would only take time
        const Messages none;     // no frogs here
        for (int speed = 0; speed <= 9; ++speed) {
            play.Start({{"AnimationEffect", effect}, {"AnimationSpeed", speed}});
            const auto [first, second] = Runs(play);
            const int told = play.text.node->Duration();
            const int pages = play.pageOffsets().size() - 1;
            const bool slowFamily = effect == 4 || effect == 8 || effect == 19 || effect == 20;
            const int ticksPerFrame = slowFamily ? 10 - speed : speed < 5 ? 6 - speed : 1;
            const QByteArray what = QByteArray::number(told / double(tick)) + " for " +
                                    QByteArray::number(second) + " at " + QByteArray::number(speed);
            // How many frames a model leaves out: those of the last step of a page, of a character
            // (9 and 10), or of the empty frame of a run (4). Flights from the side (0 and 1) are
            // told by the widths before the characters and are something else.
            const int units = effect == 9 || effect == 10 ? widths.size() : effect == 4 ? 1 : pages;
            const bool model = std::count(std::begin(models), std::end(models), effect) > 0;
            if (!model || slowFamily) {
                QVERIFY2(told == (second - (effect == 4 ? ticksPerFrame : 0)) * tick, what);
            } else if (effect > 1) {
                const int cycle = told / tick / ticksPerFrame / units; // as told
                QVERIFY2(second >= told / tick && second <= told / tick + units * ticksPerFrame,
                         what);
                QVERIFY2(told == cycle * units * ticksPerFrame * tick, what);
            }
            // The first tick draws, so the first run takes what comes before its last frame less; a
            // vertical flight's very first character begins at the edge, a frame further off.
            const int furtherOff = effect == 2 || effect == 3 ? ticksPerFrame : 0;
            QVERIFY2(first == second - (ticksPerFrame - 1) + furtherOff || effect == 1, what);

            // Holds and plays come on top.
            play.text.node->SetHoldTime(7);
            play.text.Set({{"PlayTimes", 3}});
            QCOMPARE(play.text.node->Duration(), 3 * (told + pages * 700));
            play.text.Set({{"PlayTimes", 1}});
        }
    }
};

QTEST_MAIN(TestDuration)
#include "tst_duration.moc"
