// What is behind the text: the dazzle colors, and the frogs that bring the characters.
#include "enginefixture.h"
#include "renderfixture.h"
#include "table.h"

#include <QCryptographicHash>
#include <QPainter>

#include <cmath>

namespace {

/** Whether @p color is @p steps of 12 degrees around the color circle. */
bool LiesAt(const QColor& color, double steps)
{
    const double apart = std::fmod(std::fabs(color.hue() - 12 * steps), 360.0);
    return qMin(apart, 360 - apart) <= 4;
}

int Difference(QRgb a, QRgb b)
{
    return qMax(qMax(qAbs(qRed(a) - qRed(b)), qAbs(qGreen(a) - qGreen(b))),
                qMax(qAbs(qBlue(a) - qBlue(b)), qAbs(qAlpha(a) - qAlpha(b))));
}

/** A dazzle background in one of its variations. */
struct Backdrop
{
    int gradient; // -1: none
    QSize size;
    int neon;
    bool alpha;
    int text; // 0xRRGGBB
    int frame;

    QImage Paint() const
    {
        HPluginManager::instance()->SetAlphaBlend(alpha);
        EngineFixture play;
        play.text.node->SetSize(size);
        play.text.node->SetList("TextAttribute", {{{"Color", QString::number(text)}}});
        play.Start({{"CheckColorGradient", gradient >= 0},
                    {"ColorGradient", gradient},
                    {"CheckNeonBg", neon}});
        play.frameCount() = frame;
        play.engine.DrawDazzleBackground();
        HPluginManager::instance()->SetAlphaBlend(true);
        return play.stayImage().copy();
    }

    QImage PaintWithQt() const
    {
        QImage picture(size, QImage::Format_ARGB32);
        picture.fill(alpha ? Qt::transparent : Qt::black);
        const int rim = neon ? qMax(2, qMin(size.width(), size.height()) / 8) : 0;
        const QRect within = picture.rect().adjusted(rim, rim, -rim, -rim);
        const QPointF middle(size.width() / 2, size.height() / 2);
        QLinearGradient linear(0, 0, size.width(), 0);
        QRadialGradient radial(middle, size.width() / 2, middle);
        QConicalGradient conical(QPointF(size.width() / 2, size.height()), 0);
        QGradient* const gradients[] = {&linear, &radial, &conical};
        const auto color = [this](int i) {
            return QColor::fromHsv(12 * ((frame + i) % 30), 207, 255);
        };
        const int stops = gradient == 0 ? 40 : 30;
        for (int i = 0; gradient >= 0 && i < stops; ++i)
            gradients[gradient]->setColorAt(double(i) / stops, color(i));
        const bool light = text >= 0x606060;
        QLinearGradient scrim(0, within.top(), 0, within.top() + within.height());
        for (const double edge : {0.0, 1.0})
            scrim.setColorAt(edge, light ? QColor(0, 0, 0, 0) : QColor(255, 255, 255, 0));
        for (const double inside : {0.22, 0.78})
            scrim.setColorAt(inside, light ? QColor(0, 0, 0, 165) : QColor(255, 255, 255, 190));
        QPainter painter(&picture);
        painter.fillRect(within, gradient < 0 ? QBrush(color(0)) : QBrush(*gradients[gradient]));
        painter.fillRect(within, scrim);
        return picture;
    }
};

/** Eight of them. */
QVector<Backdrop> Backdrops(int gradient, QSize size)
{
    QVector<Backdrop> backdrops;
    for (const int neon : {0, 1})
        for (const bool alpha : {true, false})
            for (const int text : {0x606060, 0x5F5F5F})
                backdrops.append({gradient, size, neon, alpha, text, 11 * int(backdrops.size())});
    return backdrops;
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

    void dazzleIsWhatGradientsPaint_data()
    {
        QTest::addColumn<int>("gradient"); // -1: none
        QTest::addColumn<QSize>("size");
        for (const int gradient : {-1, 0, 1, 2})
            for (const QSize size :
                 {QSize(60, 41), QSize(61, 40), QSize(480, 96), QSize(9, 200), QSize(1920, 16)})
                QTest::addRow("%d %dx%d", gradient, size.width(), size.height())
                    << gradient << size;
    }

    // Colors travel, and step back behind light and dark text. Rows of 24 bits need padding.
    void dazzleIsWhatGradientsPaint()
    {
        QFETCH(int, gradient);
        QFETCH(QSize, size);
        for (const Backdrop& backdrop : Backdrops(gradient, size)) {
            const QImage painted = backdrop.Paint().convertToFormat(QImage::Format_ARGB32);
            const QImage expected = backdrop.PaintWithQt();
            qint64 sum = 0;
            for (int i = 0; i < size.width() * size.height(); ++i) {
                const QPoint at(i % size.width(), i / size.width());
                const int differs = Difference(painted.pixel(at), expected.pixel(at));
                QVERIFY2(differs <= 3, qPrintable(QString("%1, %2").arg(at.x()).arg(at.y())));
                sum += differs;
            }
            QVERIFY(sum < qint64(size.width()) * size.height());
        }
    }

    // Recorded once: every compiler, processor and Qt paints these bytes.
    void dazzleIsTheSameEverywhere()
    {
        QByteArrayList digests;
        for (const int gradient : {-1, 0, 1, 2}) {
            QCryptographicHash hash(QCryptographicHash::Sha1);
            for (const Backdrop& backdrop : Backdrops(gradient, QSize(301, 72))) {
                const QImage picture = backdrop.Paint();
                for (int y = 0; y < picture.height(); ++y)
                    hash.addData(QByteArray(reinterpret_cast<const char*>(picture.constScanLine(y)),
                                            picture.width() * picture.depth() / 8));
            }
            digests.append(hash.result().toHex().left(16));
        }
        QCOMPARE(digests.join(' '),
                 QByteArray("fdcb4bdbf8bea0ed f5a34a954625e406 f4fbebbeb10c9248 f5f78310cbaab661"));
    }

    // A sign that shows the same colors for several ticks is left alone, unless it is another one.
    void dazzleIsPaintedOnlyWhenItChanges()
    {
        EngineFixture play;
        play.Start({{"CheckColorGradient", 1}});
        play.frameCount() = 7;
        play.engine.DrawDazzleBackground();
        const QImage painted = play.stayImage().copy();
        QVERIFY(PaintedBox(painted).contains(30, 20));
        play.stayImage().fill(0);
        play.engine.DrawDazzleBackground();
        QCOMPARE(PaintedBox(play.stayImage()), QRect());
        play.frameCount() = 37; // once around
        play.engine.DrawDazzleBackground();
        QCOMPARE(PaintedBox(play.stayImage()), QRect());
        for (const int frame : {8, 7}) {
            play.frameCount() = frame;
            play.engine.DrawDazzleBackground();
        }
        QCOMPARE(play.stayImage(), painted);
        play.Start({});
        play.frameCount() = 7;
        play.engine.DrawDazzleBackground();
        QCOMPARE(play.stayImage(), painted);
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
