// Every call of the device fails once, at every motion and background: a picture may be missing,
// nothing else happens, and the next start is whole again.
#include "samples.h"
#include "testsign.h"

namespace {

constexpr int ticks = 26; // of a play: a page enters, is held, and another one begins
constexpr int hurry = 30; // beyond the usual speeds, so that every motion gets that far

/** What is seen of a play. */
struct Play
{
    QVector<uint> pictures; // by tick
    QVector<int> states;
    Torv::Accounting accounts;
};

/** What may be wrong about later calls once a call has failed. */
qint64 Excused(Torv::Operation failed, const Torv::Accounting& accounts)
{
    switch (failed) {
    case Torv::OpCreatePictureSession: return accounts.zeroHandle;
    case Torv::OpAddPictureSession: return accounts.wrongDisplay;
    case Torv::OpPicAppendImageLayer: return accounts.badLayer;
    default: return 0;
    }
}

/** A buffer that is missed once is there again for the next picture. */
bool IsBuffer(Torv::Operation operation)
{
    return operation == Torv::OpGetPicImageLayerPtr || operation == Torv::OpSwapPicImageLayerPtr;
}

} // namespace

class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSign::KeepComplaints(); }
    void eachCallMayFailOnce_data();
    void eachCallMayFailOnce();

private:
    /** A renderer's first play, with a fault, and its second one. */
    QVector<Play> PlayTwice(const AnimText::scene::SceneNode& scene, Torv::Operation fault,
                            int nth);

    Sample sample{QStringLiteral("Wow up"), QSize(64, 20)};
    Torv::Display display{QSize(64, 20)};
};

QVector<Play> TestFaults::PlayTwice(const AnimText::scene::SceneNode& scene, Torv::Operation fault,
                                    int nth)
{
    const auto node = TestSign::NewNode(scene);
    const auto render = TestSign::NewRender(node.get());
    QVector<Play> plays(2);
    for (Play& play : plays) {
        Torv::ResetAccounts();
        if (&play == &plays.first())
            Torv::FailCall(fault, nth);
        qsrand(1);
        render->Start(display.Handle());
        for (int tick = 0; tick <= ticks; ++tick) {
            play.pictures.append(Shown(display));
            play.states.append(render->renderState());
            TestSign::Tick();
        }
        render->Stop();
        play.accounts = Torv::Accounts();
        Torv::ClearFaults();
    }
    return plays;
}

void TestFaults::eachCallMayFailOnce_data()
{
    QTest::addColumn<int>("motion");
    QTest::addColumn<int>("background");
    for (int motion = 0; motion < motionCount; ++motion) {
        for (int background = 0; background < BackgroundCount; ++background)
            QTest::addRow("%s", RowName(motion, background).constData()) << motion << background;
    }
}

void TestFaults::eachCallMayFailOnce()
{
    QFETCH(int, motion);
    QFETCH(int, background);
    const AnimText::scene::SceneNode scene = sample.Node(motion, background, hurry);
    const QVector<Play> sound = PlayTwice(scene, Torv::OpCreatePictureSession, 0);
    QCOMPARE(sound[0].accounts.Misuses(), qint64(0));
    QVERIFY(QSet<uint>(sound[1].pictures.begin(), sound[1].pictures.end()).size() > 1);

    for (int i = 0; i < Torv::OperationCount; ++i) {
        const auto operation = Torv::Operation(i);
        const int calls = int(sound[0].accounts.calls[operation]);
        const QSet<int> tries{1, 2, calls / 2, calls};
        for (int nth : tries) {
            if (nth < 1 || nth > calls)
                continue;
            const QVector<Play> faulty = PlayTwice(scene, operation, nth);
            const QByteArray what =
                QByteArray(Torv::OperationName(operation)) + ", call " + QByteArray::number(nth);
            const Torv::Accounting& accounts = faulty[0].accounts;
            QVERIFY2(accounts.injectedFaults == 1, what.constData());
            QVERIFY2(accounts.Misuses() == Excused(operation, accounts), what.constData());
            QVERIFY2(accounts.liveSessions == 0 && accounts.liveLayers == 0, what.constData());
            QVERIFY2(faulty[0].states == sound[0].states, what.constData());
            QVERIFY2(!IsBuffer(operation) || nth > calls / 2 ||
                         faulty[0].pictures.last() == sound[0].pictures.last(),
                     what.constData());
            QVERIFY2(faulty[1].pictures == sound[1].pictures, what.constData());
            QVERIFY2(faulty[1].accounts.Misuses() == 0, what.constData());
        }
    }
    QCOMPARE(TestSign::Dispatcher()->LiveTimers(), 0);
    QCOMPARE(TestSign::TakeComplaints(), QStringList());
}

int main(int argc, char** argv)
{
    return RunOnTestSign<TestFaults>(argc, argv);
}

#include "tst_faults.moc"
