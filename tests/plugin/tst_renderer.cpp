// A renderer's life: its states, its runs, and its end in every order of calls.
#include "renderfixture.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

// What a host does: start, stop, pause, remove, let time pass, delete the node, the renderer.
const char* const operations = "SOPRTnd";

} // namespace

class RendererTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { Torv::ResetAccounts(); }
    void states_data();
    void states();
    void runsAreCounted_data();
    void runsAreCounted();
    void onlyLaterTicksLookAtTheRuns();
    void pausesFreezeAndResume();
    void aStartWhilePausedWaits();
    void everyStartBeginsAnew();
    void attributesAreReadAtEachTick();
    void shownFramesArePainted_data();
    void shownFramesArePainted();
    void anyOrderEndsWell_data();
    void anyOrderEndsWell();
};

void RendererTest::states_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("zeroHandle");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("state");
    QTest::newRow("effect") << "abc" << false << 0 << 0 << 1;
    QTest::newRow("left") << "abc" << false << 1 << 0 << 0;
    QTest::newRow("right") << "abc" << false << 1 << 1 << 0;
    QTest::newRow("up") << "abc" << false << 1 << 2 << 1;
    QTest::newRow("down") << "abc" << false << 1 << 3 << 1;
    QTest::newRow("static") << "abc" << false << 2 << 0 << 1;
    QTest::newRow("no display") << "abc" << true << 0 << 0 << 2;
    QTest::newRow("no text") << "" << false << 0 << 0 << 2;
    QTest::newRow("blanks") << " \t\n " << false << 1 << 0 << 2;
}

void RendererTest::states()
{
    QFETCH(QString, text);
    QFETCH(bool, zeroHandle);
    QFETCH(int, mode);
    QFETCH(int, style);
    QFETCH(int, state);
    RenderFixture play;
    QCOMPARE(play.render->renderState(), 1);
    QVERIFY(!play.Probe().drawTimer().isActive());

    play.Start({{"EffectType", 1}});
    const PicSession before = play.Probe().session();
    play.text.Set({{"EffectType", mode}, {"ContinueStyle", style}, {"PlayTimes", 5}});
    play.text.node->SetAttribute("Text", text);
    play.render->Start(zeroHandle ? 0 : play.display.Handle());
    QCOMPARE(play.render->renderState(), state);
    // Without a display what runs goes on; with a blank text it has been stopped.
    const bool stopped = state == 2 && !zeroHandle;
    QCOMPARE(play.Probe().drawTimer().isActive(), !stopped);
    QCOMPARE(play.Probe().drawTimer().interval(), tickInterval);
    QCOMPARE(play.Probe().session() == before, zeroHandle);
    QCOMPARE(Torv::Accounts().liveSessions, stopped ? 0 : 1);

    PassTicks(5);
    play.render->PlayNext();
    play.render->Pause();
    play.render->Stop();
    play.render->Stop();
    play.render->Remove();
    QCOMPARE(play.render->renderState(), state);
    QCOMPARE(Torv::Accounts().liveSessions, 0);
    QCOMPARE(Torv::Accounts().calls[Torv::OpFreePictureSession],
             Torv::Accounts().calls[Torv::OpCreatePictureSession]);
    QCOMPARE(Torv::Accounts().Misuses(), qint64(0));
}

void RendererTest::runsAreCounted_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("speed");
    QTest::addColumn<int>("hold"); // units of 100 ms
    QTest::addColumn<int>("plays");
    for (int mode : {0, 1})
        for (int speed = 0; speed <= 9; ++speed)
            for (int hold : {0, 3, 20})
                for (int plays : {0, 1, 3})
                    QTest::addRow("mode %d, speed %d, hold %d, plays %d", mode, speed, hold, plays)
                        << mode << speed << hold << plays;
}

void RendererTest::runsAreCounted()
{
    QFETCH(int, mode);
    QFETCH(int, speed);
    QFETCH(int, hold);
    QFETCH(int, plays);
    // A page that turns about itself in 42 steps, or a column of 61 pixels that never holds.
    const int steps = mode == 0 ? 42 : 61;
    const int ticksPerFrame = speed < 5 ? 6 - speed : 1;
    const int step = speed < 5 ? 1 : speed - 4;
    const int frames = (steps + step - 1) / step;
    const int visit = 66 * ticksPerFrame; // ms
    const int first = mode == 1 || hold == 0 ? 0 : (100 * hold + visit - 1) / visit;
    const int later = speed < 5 && first > 1 ? first - 1 : first;
    // The last of these frames and visits ends the play; with nothing to play the first tick does.
    const int frame = plays * frames + first + (plays - 1) * later - 1;
    const int lastTick = plays == 0 ? 1 : frame * ticksPerFrame;

    RenderFixture play(RectangleText({30, 20, 40}, {20, 25, 16}, {4, 5, 3}, QSize(100, 41)));
    play.text.node->SetHoldTime(hold);
    play.Start({{"EffectType", mode},
                {"AnimationEffect", 25},
                {"ContinueStyle", 2},
                {"AnimationSpeed", speed},
                {"ContinueSpeed", speed},
                {"PlayTimes", plays}});
    for (int tick = 1; tick < lastTick; ++tick) {
        PassTicks(1);
        QCOMPARE(play.render->renderState(), 1);
    }
    if (lastTick > 0)
        PassTicks(1);
    QCOMPARE(play.render->renderState(), 0);

    // It stays finished, and goes on.
    const int painted = play.Probe().Engine().frameCount();
    PassTicks(200);
    QCOMPARE(play.render->renderState(), 0);
    QVERIFY(play.Probe().Engine().frameCount() > painted);
    QCOMPARE(Torv::Accounts().Misuses(), qint64(0));
}

void RendererTest::onlyLaterTicksLookAtTheRuns()
{
    RenderFixture play;
    play.Start({{"AnimationEffect", 6}, {"PlayTimes", 0}});
    QCOMPARE(play.render->renderState(), 1);
    PassTicks(1);
    QCOMPARE(play.render->renderState(), 0);
    play.Start({{"EffectType", 2}, {"PlayTimes", 0}});
    PassTicks(500);
    QCOMPARE(play.render->renderState(), 1); // a static text never ends
}

void RendererTest::pausesFreezeAndResume()
{
    RenderFixture play;
    play.Start({{"AnimationEffect", 6}, {"PlayTimes", 9}, {"CheckNeonBg", 1}, {"CheckDazzle", 1}});
    PassTicks(4);
    const EngineProbe engine = play.Probe().Engine();
    QCOMPARE(engine.frameCount(), 5);
    play.log.clear();
    play.render->Pause();
    PassTicks(50);
    QCOMPARE(play.log, QStringList()); // no background paints either
    QVERIFY(!play.Probe().drawTimer().isActive());
    play.render->Pause();
    QCOMPARE(play.Probe().drawTimer().interval(), tickInterval);
    PassTicks(4);
    QCOMPARE(engine.frameCount(), 9);
    QVERIFY(play.ShortCalls().contains("swap0")); // the neon background, too
    QVERIFY(engine.dazzleTimer().isActive());
    QCOMPARE(play.render->renderState(), 1);
    play.render->Stop();
    QVERIFY(!engine.dazzleTimer().isActive());
}

void RendererTest::aStartWhilePausedWaits()
{
    RenderFixture play;
    play.render->Pause();
    play.Start({{"AnimationEffect", 6}, {"PlayTimes", 9}});
    PassTicks(10);
    QCOMPARE(play.log, QStringList());
    play.render->Pause();
    PassTicks(1);
    QVERIFY(play.ShortCalls().startsWith("create"));
    PassTicks(9); // the session's set-up has not stopped the timer
    QCOMPARE(play.Probe().Engine().frameCount(), 10);
}

void RendererTest::everyStartBeginsAnew()
{
    RenderFixture play;
    for (int mode : {0, 1, 0, 0, 1, 1, 2, 1, 0}) {
        play.Start(
            {{"EffectType", mode}, {"AnimationEffect", 6}, {"CheckNeonBg", 1}, {"CheckDazzle", 1}});
        const bool released = play.ShortCalls().startsWith("remove free ");
        QCOMPARE(released, Torv::Accounts().calls[Torv::OpCreatePictureSession] > 1);
        const EngineProbe engine = play.Probe().Engine();
        // The line as it was painted, or the first frame.
        const QImage text = Torv::FrontImage(play.Probe().session(), engine.sessionLayer());
        const QRect boxes[] = {QRect(2, 6, 46, 21), QRect(2, 6, 86, 22), QRect()};
        QCOMPARE(PaintedBox(text), boxes[mode]);
        const int swaps = play.ShortCalls().count(QString(" swap%1").arg(engine.sessionLayer()));
        PassTicks(7);
        QCOMPARE(play.ShortCalls().count(QString(" swap%1").arg(engine.sessionLayer())) - swaps,
                 mode == 0 ? 7 : 0);
    }
    QCOMPARE(Torv::Accounts().liveSessions, 1);
    QCOMPARE(Torv::Accounts().Misuses(), qint64(0));
}

void RendererTest::attributesAreReadAtEachTick()
{
    RenderFixture play;
    play.Start({{"AnimationEffect", 6}, {"PlayTimes", 9}});
    PassTicks(1);
    play.text.node->SetAttribute("Text", "");
    PassTicks(5);
    QCOMPARE(play.Probe().Engine().frameCount(), 2);
    play.text.node->SetAttribute("Text", "abc");
    play.text.Set({{"PlayTimes", 0}});
    PassTicks(1);
    QCOMPARE(play.Probe().Engine().frameCount(), 3);
    QCOMPARE(play.render->renderState(), 0);
    play.text.Set({{"EffectType", 3}});
    PassTicks(5);
    QCOMPARE(play.Probe().Engine().frameCount(), 3);
}

void RendererTest::shownFramesArePainted_data()
{
    QTest::addColumn<bool>("blend");
    QTest::addColumn<int>("neon");
    for (bool blend : {true, false})
        for (int neon : {0, 1})
            QTest::addRow("blend %d, neon %d", blend, neon) << blend << neon;
}

// Every frame is painted in the buffer that is not shown and then shown, whole.
void RendererTest::shownFramesArePainted()
{
    QFETCH(bool, blend);
    QFETCH(int, neon);
    HPluginManager::instance()->SetAlphaBlend(blend);
    Torv::GuardShownBuffers(true);
    RenderFixture play;
    play.text.node->SetHoldTime(2);
    play.Start({{"AnimationEffect", 4}, {"AnimationSpeed", 9}, {"CheckNeonBg", neon}});
    // A frame a tick: nothing, a, ab; the page held for four visits but painted once; c.
    const QRect none, a(2, 12, 26, 15), ab(2, 6, 46, 21), c(2, 17, 36, 11);
    const QRect boxes[] = {none, a, ab, ab, ab, ab, ab, c, c, c, c, c, none, a};
    const int swapped[] = {1, 2, 3, 4, 4, 4, 4, 5, 6, 6, 6, 6, 7, 8};
    const int layer = neon;
    for (int tick = 0; tick < 14; ++tick) {
        const QImage shown = Torv::FrontImage(play.Probe().session(), layer);
        QCOMPARE(PaintedBox(shown), boxes[tick]);
        QCOMPARE(Torv::SwapCount(play.Probe().session(), layer), qint64(swapped[tick]));
        PassTicks(1);
    }
    Torv::GuardShownBuffers(false);
}

void RendererTest::anyOrderEndsWell_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("backgrounds");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("length");
    for (int mode : {0, 1})
        for (int backgrounds : {0, 1}) {
            QTest::addRow("mode %d, backgrounds %d", mode, backgrounds)
                << mode << backgrounds << "" << 3;
            QTest::addRow("mode %d, backgrounds %d, started", mode, backgrounds)
                << mode << backgrounds << "S" << 4;
        }
}

// Every sequence of operations: no call with a dead session, no write to a freed layer, and
// nothing left at the end. While there is no session, time passes without a call.
void RendererTest::anyOrderEndsWell()
{
    QFETCH(int, mode);
    QFETCH(int, backgrounds);
    QFETCH(QString, before);
    QFETCH(int, length);
    RectangleText text = RectangleText::TwoPages();
    text.Set({{"EffectType", mode},
              {"AnimationEffect", 25},
              {"AnimationSpeed", 9},
              {"PlayTimes", 1},
              {"CheckNeonBg", backgrounds},
              {"CheckDazzle", backgrounds}});
    const Torv::Display display(QSize(200, 100));
    Torv::GuardShownBuffers(true);
    const QRegularExpression idle("n.*n|d.*[SOPRd]"); // says the same as a shorter one
    const int count = int(std::strlen(operations));
    for (int number = 0; number < std::pow(count, length); ++number) {
        QString order = before;
        for (int rest = number, i = 0; i < length; ++i, rest /= count)
            order.append(operations[rest % count]);
        if (order.contains(idle))
            continue;

        std::unique_ptr<HAnimationTextNode> node(new HAnimationTextNode);
        node->ReloadAtrrbute(text.node.get());
        node->SetSize(QSize(60, 41));
        node->SetHoldTime(1);
        std::unique_ptr<HAnimationTextRender> render(new HAnimationTextRender(node.get()));
        for (QChar operation : order) {
            if (operation == 'n')
                node.reset();
            if (operation == 'd')
                render.reset();
            if (operation == 'T') {
                const Torv::Accounting accounts = Torv::Accounts();
                PassTicks(4);
                if (accounts.liveSessions == 0 && Torv::Accounts().liveSessions == 0)
                    QVERIFY2(std::equal(accounts.calls, accounts.calls + Torv::OperationCount,
                                        Torv::Accounts().calls),
                             qPrintable(order));
            }
            if (!render)
                continue;
            switch (operation.toLatin1()) {
            case 'S': render->Start(display.Handle()); break;
            case 'O': render->Stop(); break;
            case 'P': render->Pause(); break;
            case 'R': render->Remove(); break;
            default: break;
            }
        }
        render.reset();
        QVERIFY2(Torv::Accounts().Misuses() == 0,
                 qPrintable(order + "\n" + Torv::AccountsReport()));
        QVERIFY2(Torv::Accounts().liveSessions == 0, qPrintable(order));
    }
    Torv::GuardShownBuffers(false);
}

TEST_MAIN_ON_VIRTUAL_TIME(RendererTest)
#include "tst_renderer.moc"
