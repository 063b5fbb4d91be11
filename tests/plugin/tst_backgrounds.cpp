// What is behind the text: the dazzle colours, and the frogs that bring the characters.
#include "enginefixture.h"
#include "renderfixture.h"

#include <cmath>

namespace {

/** Whether @p color lies @p steps of 12 degrees round the colour circle. */
bool LiesAt(const QColor& color, double steps)
{
    const double apart = std::fmod(std::fabs(color.hue() - 12 * steps), 360.0);
    return qMin(apart, 360 - apart) <= 4;
}

/** Frog pictures of 3 by 3 pixels, the n-th of hue 60 (n - 1); until then there are none. */
class FrogFolder
{
public:
    FrogFolder() { qputenv("ANIMATIONTEXT_PICTURES", QFile::encodeName(folder.path())); }
    ~FrogFolder() { qunsetenv("ANIMATIONTEXT_PICTURES"); }

    void Fill() const
    {
        for (int n = 1; n <= 5; ++n) {
            QImage frog(3, 3, QImage::Format_RGB32);
            frog.fill(QColor::fromHsv(60 * (n - 1), 255, 255));
            frog.save(folder.filePath(QString("Frog%1.png").arg(n)));
        }
    }
    void Clear() const
    {
        for (int n = 1; n <= 5; ++n)
            QFile::remove(folder.filePath(QString("Frog%1.png").arg(n)));
    }

private:
    QTemporaryDir folder;
};

} // namespace

class BackgroundsTest : public QObject
{
    Q_OBJECT

private slots:
    void frogsKeepTheTime_data()
    {
        QTest::addColumn<int>("effect");
        QTest::addColumn<int>("speed");
        for (int effect : {19, 20})
            for (int speed : {0, 5, 9})
                QTest::addRow("%d at %d", effect, speed) << effect << speed;
    }

    void frogsKeepTheTime()
    {
        QFETCH(int, effect);
        QFETCH(int, speed);
        const FrogFolder none;
        EngineFixture play;
        play.Start({{"AnimationEffect", effect}, {"AnimationSpeed", speed}});
        const int ticksPerFrame = 10 - speed;
        for (int tick = 0; play.playCount() == 0 && tick < 1000; ++tick) {
            QCOMPARE(play.Tick(), tick % ticksPerFrame == 0);
            const int frames = tick / ticksPerFrame + 1;
            QCOMPARE(play.charIndex(), frames / 5 % 3);
            QCOMPARE(play.pageIndex(), frames / 5 == 2 ? 2 : 1); // two characters, and one
        }
        QCOMPARE(play.frameCount(), 15);
        QVERIFY(play.runEnded());
        QCOMPARE(play.text.node->Duration(), 15 * ticksPerFrame * 66);
    }

    // The first character rests at 28 and is painted from 16 above its baseline to 2 above it.
    void frogsBringACharacter()
    {
        const FrogFolder none;
        EngineFixture appears;
        EngineFixture falls;
        appears.StartEffect(19);
        falls.StartEffect(20);
        const int baselines[] = {5, 11, 16, 22, 28};
        for (int frame = 0; frame < 5; ++frame) {
            appears.DrawFrame();
            falls.DrawFrame();
            const int y = baselines[frame];
            QCOMPARE(PaintedBox(falls.drawImage()),
                     QRect(QPoint(2, qMax(0, y - 16)), QPoint(27, y - 2)));
            const QRect box = PaintedBox(appears.drawImage());
            QCOMPARE(QRect(box.left(), box.top(), box.width(), 1), QRect(2, 12, 26, 1));
            QVERIFY(qAbs(box.height() - 14 * (frame + 1) / 5) <= 1);
        }
        QCOMPARE(PaintedBox(appears.drawImage()), PaintedBox(falls.drawImage()));
    }

    void frogsHopOverTheirCharacter()
    {
        const FrogFolder folder;
        folder.Fill();
        EngineFixture play;
        play.StartEffect(20);
        for (int frame = 0; frame < 15; ++frame) {
            play.DrawFrame();
            const int left = frame < 5 ? 0 : frame < 10 ? 30 : 0; // the third opens a page
            QCOMPARE(play.drawImage().pixelColor(left, 0).hue(), 60 * (frame % 5));
            if (frame == 4)
                folder.Clear(); // each picture is read once
        }
    }

    void missingFrogsAreToldOnce()
    {
        const FrogFolder none;
        const Messages messages;
        EngineFixture play;
        play.StartEffect(19);
        for (int frame = 0; frame < 30; ++frame)
            play.DrawFrame();
        QCOMPARE(Messages::Taken().filter("Frog").size(), 5);
    }

    void colorsTravel_data()
    {
        QTest::addColumn<bool>("gradient");
        QTest::addColumn<int>("kind");
        QTest::newRow("plain") << false << 0;
        QTest::newRow("linear") << true << 0;
        QTest::newRow("radial") << true << 1;
    }

    void colorsTravel()
    {
        QFETCH(bool, gradient);
        QFETCH(int, kind);
        EngineFixture play;
        play.Start({{"CheckColorGradient", gradient}, {"ColorGradient", kind}});
        // Two places and how many stops they lie from the first one: from the left edge 40 to the
        // width of 60, from the middle at (30, 20) 30 to the radius of 30.
        const QPoint first = kind == 0 ? QPoint(0, 0) : QPoint(30, 20);
        const QPoint later = kind == 0 ? QPoint(30, 0) : QPoint(44, 20);
        const double atFirst = !gradient ? 0 : kind == 0 ? 0.33 : 0.71;
        const double atLater = !gradient ? 0 : kind == 0 ? 20.33 : 14.51;
        for (int frame : {0, 1, 7, 29, 30, 44}) {
            play.frameCount() = frame;
            play.engine.DrawDazzleBackground();
            QVERIFY(LiesAt(play.stayImage().pixelColor(first), frame + atFirst));
            const QColor color = play.stayImage().pixelColor(later);
            QVERIFY2(LiesAt(color, frame + atLater), qPrintable(color.name()));
            QCOMPARE(play.frameCount(), frame);
        }
    }

    void aLineThatScrollsStepsPerTick()
    {
        RenderFixture play;
        for (int starts = 0; starts < 3; ++starts)
            play.Start({{"EffectType", 1}, {"CheckDazzle", 1}});
        const EngineProbe engine = play.Probe().Engine();
        QCOMPARE(engine.dazzleColorIndex(), 0);
        PassTicks(7);
        QCOMPARE(engine.dazzleColorIndex(), 7); // one connection, however many starts
        play.render->Pause();
        PassTicks(7);
        QCOMPARE(engine.dazzleColorIndex(), 7);
        play.render->Pause();
        PassTicks(25);
        QCOMPARE(engine.dazzleColorIndex(), 2);
        play.render->Stop();
        PassTicks(7);
        QCOMPARE(engine.dazzleColorIndex(), 2);
    }

    void frogsDrawTheirOwnDazzle()
    {
        const FrogFolder none;
        RenderFixture play;
        play.text.node->SetHoldTime(20);
        play.Start({{"AnimationEffect", 20}, {"AnimationSpeed", 9}, {"CheckDazzle", 1}});
        const EngineProbe engine = play.Probe().Engine();
        bool held = false;
        for (int tick = 1; tick < 40; ++tick) { // two characters, their hold, and one more
            const int drawnFor = engine.frameCount();
            PassTicks(1);
            QVERIFY(!engine.dazzleTimer().isActive());
            QVERIFY(LiesAt(engine.stayImage().pixelColor(0, 0), drawnFor));
            held = held || !engine.isDrawing();
        }
        QVERIFY(held);
        // Its layer is fetched once and never swapped.
        QCOMPARE(play.ShortCalls().count("get1"), 1);
        QVERIFY(!play.ShortCalls().contains("swap1"));
    }

    void textStaysAsItIs_data()
    {
        QTest::addColumn<bool>("alpha");
        QTest::addColumn<int>("effect");
        for (bool alpha : {true, false})
            for (int effect : {1, 9, 20, 28})
                QTest::addRow("%d, %s", effect, alpha ? "alpha" : "key") << alpha << effect;
    }

    void textStaysAsItIs()
    {
        QFETCH(bool, alpha);
        QFETCH(int, effect);
        const FrogFolder none;
        HPluginManager::instance()->SetAlphaBlend(alpha);
        RenderFixture plain;
        HPluginManager::instance()->SetAlphaBlend(alpha);
        RenderFixture decked;
        plain.Start({{"AnimationEffect", effect}});
        decked.Start({{"AnimationEffect", effect}, {"CheckDazzle", 1}, {"CheckNeonBg", 1}});
        for (int tick = 0; tick < 60; ++tick) {
            QCOMPARE(Torv::FrontImage(decked.Probe().session(), 1),
                     Torv::FrontImage(plain.Probe().session(), 0));
            PassTicks(1);
        }
    }
};

TEST_MAIN_ON_VIRTUAL_TIME(BackgroundsTest)
#include "tst_backgrounds.moc"
