// What is behind the text: the dazzle colours, and the frogs that bring the characters.
#include "enginefixture.h"
#include "renderfixture.h"
#include "table.h"

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

class TestBackgrounds : public QObject
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
        // Two places, and how many stops of the gradient they lie from its first one.
        // gradient: -1: none
        const Table<int, QPoint, double, QPoint, double> row("gradient", "first", "atFirst",
                                                             "later", "atLater");
        row("plain", -1, QPoint(0, 0), 0.0, QPoint(30, 0), 0.0);
        // 40 stops from the left edge to the right one, 60 pixels.
        row("linear", 0, QPoint(0, 0), 0.33, QPoint(30, 0), 20.33);
        // 30 from the middle at (30, 20) to 30 pixels from it.
        row("radial", 1, QPoint(30, 20), 0.71, QPoint(44, 20), 14.51);
        // 30 round the middle of the lower edge, from the right by the left.
        row("conical", 2, QPoint(59, 40), 0.08, QPoint(30, 0), 7.44);
    }

    void colorsTravel()
    {
        QFETCH(int, gradient);
        QFETCH(QPoint, first);
        QFETCH(double, atFirst);
        QFETCH(QPoint, later);
        QFETCH(double, atLater);
        EngineFixture play;
        play.Start({{"CheckColorGradient", gradient >= 0}, {"ColorGradient", gradient}});
        for (int frame : {0, 1, 7, 29, 30, 44}) {
            play.frameCount() = frame;
            play.engine.DrawDazzleBackground();
            QVERIFY(LiesAt(play.stayImage().pixelColor(first), frame + atFirst));
            const QColor color = play.stayImage().pixelColor(later);
            QVERIFY2(LiesAt(color, frame + atLater), qPrintable(color.name()));
            QCOMPARE(play.frameCount(), frame);
        }
    }

    // Light text is read against dark colours, dark text against pale ones; the edges stay pure.
    void colorsStepBackBehindTheText()
    {
        for (const int text : {0xFFFFFF, 0x606060, 0x5F5F5F, 0x000000}) {
            EngineFixture play;
            play.text.node->SetList("TextAttribute", {{{"Color", QString::number(text)}}});
            play.Start({});
            play.engine.DrawDazzleBackground();
            const QColor edge = play.stayImage().pixelColor(30, 0);
            const QColor middle = play.stayImage().pixelColor(30, 20);
            QVERIFY(edge.value() > 235 && edge.saturation() > 180);
            QCOMPARE(middle.value() > 80 && middle.value() < 100, text >= 0x606060);
            QCOMPARE(middle.saturation() > 40 && middle.saturation() < 60, text < 0x606060);
        }
    }

    // The rim is the neon's. Within it a frame of 3 pixels is cut from the fill picture, as long as
    // there is one.
    void dazzleKeepsToItsPlace()
    {
        EngineFixture play;
        play.text.node->SetSize(QSize(70, 64));
        QImage fill(4, 4, QImage::Format_RGB32);
        fill.fill(Qt::blue);
        QVERIFY(fill.save(play.text.File("fill.png")));
        for (const int neon : {0, 1}) {
            for (const bool filled : {true, false}) {
                play.text.node->SetFiles("FillImage", {play.text.File(filled ? "fill.png" : "no")});
                play.Start({{"CheckNeonBg", neon}, {"CheckPictureFills", 1}});
                play.engine.DrawDazzleBackground();
                const QImage& picture = play.stayImage();
                const int rim = 8 * neon; // an eighth of the height
                const int right = 69 - rim;
                const int bottom = 63 - rim;
                QCOMPARE(PaintedBox(picture), QRect(QPoint(rim, rim), QPoint(right, bottom)));
                for (const QPoint& at : {QPoint(rim, 20), QPoint(rim + 2, 20), QPoint(right, 20),
                                         QPoint(30, rim), QPoint(30, bottom)})
                    QCOMPARE(picture.pixelColor(at) == QColor(Qt::blue), filled);
                QVERIFY(picture.pixelColor(rim + 3, rim + 3) != QColor(Qt::blue));
            }
        }
    }

    void withoutDazzleNothingIsPaintedBehind()
    {
        RenderFixture play;
        play.Start({{"CheckDazzle", 0}});
        PassTicks(3);
        QCOMPARE(PaintedBox(play.Probe().Engine().stayImage()), QRect());
    }

    void everythingKeepsTheBeat()
    {
        RenderFixture play;
        const EngineProbe engine = play.Probe().Engine();
        const QList<const QTimer*> timers = {&play.Probe().drawTimer(), &engine.dazzleTimer(),
                                             engine.neonBg()->findChild<QTimer*>()};
        for (const QTimer* timer : timers)
            QCOMPARE(timer->timerType(), Qt::PreciseTimer); // a coarse one fires every 64 ms
    }

    void timersStartAndStop_data()
    {
        // Whether the neon and the dazzle timer run after each step.
        const Table<QString, QString, int, int, int> row("steps", "running", "neon", "dazzle",
                                                         "effect");
        row("both", "start tick pause pause stop start", "nd nd -- nd -- nd", 1, 1, 0);
        row("frogs stop the dazzle timer", "start tick pause pause", "nd n- -- n-", 1, 1, 20);
        row("resuming starts the neon unasked", "start pause pause stop", "-- -- n- --", 0, 0, 0);
        row("a start while paused", "pause start tick pause tick", "-- nd nd nd nd", 1, 1, 0);
        row("no session to release", "neon stop", "n- n-", 1, 1, 0);
        row("a refused session", "refuse start stop", "-- nd n-", 1, 1, 0);
        row("a session of the host's", "start tick init", "nd nd -d", 1, 1, 0);
    }

    void timersStartAndStop()
    {
        QFETCH(QString, steps);
        QFETCH(QString, running);
        QFETCH(int, neon);
        QFETCH(int, dazzle);
        QFETCH(int, effect);
        const FrogFolder none;
        RenderFixture play;
        const EngineProbe engine = play.Probe().Engine();
        Lw::DrawNeonBg* const animator = engine.neonBg();
        animator->InitNode(play.text.node.get());
        QStringList seen;
        for (const QString& step : steps.split(' ')) {
            QImage picture(60, 41, QImage::Format_ARGB32);
            if (step == "start")
                play.Start(
                    {{"CheckNeonBg", neon}, {"CheckDazzle", dazzle}, {"AnimationEffect", effect}});
            else if (step == "tick")
                PassTicks(1);
            else if (step == "pause")
                play.render->Pause();
            else if (step == "stop")
                play.render->Stop();
            else if (step == "neon")
                animator->StartTimerDraw(tickInterval);
            else if (step == "refuse")
                Torv::FailCall(Torv::OpCreatePictureSession, 1);
            else
                play.render->StartInit(picture);
            seen.append(QString(animator->findChild<QTimer*>()->isActive() ? "n" : "-") +
                        (engine.dazzleTimer().isActive() ? "d" : "-"));
        }
        QCOMPARE(seen.join(' '), running);
    }

    // What paints into the layers is gone before they are.
    void theEngineEndsBeforeItsSession()
    {
        RenderFixture play;
        play.Start({{"CheckNeonBg", 1}, {"EffectType", 1}});
        const Lw::DrawNeonBg* const animator = play.Probe().Engine().neonBg();
        QVERIFY(animator->pictureSession && animator->displayHandle && animator->layer);
        play.render->Stop();
        QVERIFY(!animator->pictureSession && !animator->displayHandle && !animator->layer);
        play.Start({});
        play.log.clear();
        bool first = false;
        connect(animator, &QObject::destroyed, [&] { first = play.log.isEmpty(); });
        play.render.reset();
        QVERIFY(first);
        QCOMPARE(play.ShortCalls(), QString("remove free"));
    }

    void aNeonPictureThatDoesNotFitIsRefusedAloud()
    {
        const Messages messages;
        RenderFixture play;
        play.render->Pause(); // before the first tick the animator is given a larger area
        play.Start({{"CheckNeonBg", 1}});
        Lw::HNeonNodeBase larger;
        larger.SetSize(QSize(61, 41));
        play.Probe().Engine().neonBg()->InitNode(&larger);
        play.render->Pause();
        PassTicks(3);
        QCOMPARE(Messages::Taken().filter("Neon picture does not fit").size(), 1);
        QCOMPARE(Torv::SwapCount(play.Probe().session(), 0), 0);
    }

    void aLineThatScrollsStepsPerTick_data()
    {
        QTest::addColumn<int>("style");
        QTest::newRow("left") << 0;
        QTest::newRow("right") << 1;
    }

    void aLineThatScrollsStepsPerTick()
    {
        QFETCH(int, style);
        RenderFixture play;
        for (int starts = 0; starts < 3; ++starts)
            play.Start({{"EffectType", 1}, {"ContinueStyle", style}, {"CheckDazzle", 1}});
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
        const QImage dazzle = Torv::FrontImage(play.Probe().session(), 1);
        QCOMPARE(PaintedBox(dazzle).size(), QSize(60, 41));
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
        const auto shape = [] { // rows of 24 bits need padding
            return RectangleText({30, 20, 40}, {20, 25, 16}, {4, 5, 3}, QSize(61, 41));
        };
        RenderFixture plain(shape());
        RenderFixture decked(shape());
        plain.Start({{"AnimationEffect", effect}});
        decked.Start({{"AnimationEffect", effect}, {"CheckDazzle", 1}, {"CheckNeonBg", 1}});
        for (int tick = 0; tick < 60; ++tick) {
            QCOMPARE(Torv::FrontImage(decked.Probe().session(), 1),
                     Torv::FrontImage(plain.Probe().session(), 0));
            PassTicks(1);
        }
    }
};

TEST_MAIN_ON_VIRTUAL_TIME(TestBackgrounds)
#include "tst_backgrounds.moc"
