// The device's calls: handles, layers and their buffers; mistakes, faults on demand and the log.

#include "testsession.h"

#include <QtTest>

#include <csignal>
#include <cstring>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QRect Area(0, 0, 8, 4);
const QImage Gray = SolidImage(3, Area.size(), 0xFF808080);

/** Whether the memory refuses a write, which another process tries. */
bool IsGuarded(char* buffer)
{
    const pid_t child = fork();
    if (child == 0) {
        signal(SIGSEGV, SIG_DFL);
        *buffer = 1;
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status);
}

/** Whether the device carries out @p operation. */
bool Succeeds(int operation, PicDisplay display, PicSession session, int layer = 0)
{
    switch (operation) {
    case Torv::OpCreatePictureSession: return FreePictureSession(Create(3, Gray, Area)) == 0;
    case Torv::OpAddPictureSession: return AddPictureSession(display, session, 0) == 0;
    case Torv::OpPicAppendImageLayer:
        return PicAppendImageLayer(display, session, 8, 4, 32, KeyWord) > 0;
    case Torv::OpGetPicImageLayerPtr: return GetPicImageLayerPtr(display, session, layer, 5);
    case Torv::OpSwapPicImageLayerPtr: return SwapPicImageLayerPtr(display, session, layer);
    case Torv::OpSetPicLayerBlend: return SetPicLayerBlend(display, session, layer, 1) == 0;
    case Torv::OpRemovePictureSession: return RemovePictureSession(display, session) == 0;
    case Torv::OpFreePictureSession: return FreePictureSession(session) == 0;
    default: return GeteffectDuration(8, 4, 26, 4) > 0;
    }
}

} // namespace

class TestSessions : public QObject
{
    Q_OBJECT

private slots:
    void init() { Torv::ResetAccounts(); }

    void cleanup()
    {
        Torv::ClearFaults();
        Torv::SetCallLog(nullptr, nullptr);
        Torv::GuardShownBuffers(false);
        QCOMPARE(Torv::Accounts().liveSessions, 0);
        QCOMPARE(Torv::Accounts().liveLayers, 0);
        QCOMPARE(Torv::Accounts().liveBytes, 0);
    }

    void swapsShowWhatWasPainted()
    {
        for (const int type : {3, 5}) {
            TestSession test(type, QSize(5, 3)); // rows of 15 bytes need padding
            const QImage red = SolidImage(type, QSize(5, 3), 0xFFFF0000);
            const size_t bytes = size_t(red.sizeInBytes());
            char* const first = test.Back(0);
            QVERIFY(memcmp(first, test.image.constBits(), bytes) == 0);
            char* const second = test.Swap(0);
            QVERIFY(second != first && memcmp(second, test.image.constBits(), bytes) == 0);
            test.Paint(0, red);
            QCOMPARE(test.Back(0), second);
            QCOMPARE(test.Front(0), test.image);
            QCOMPARE(test.Swap(0), first);
            QCOMPARE(test.Front(0), red);
            QCOMPARE(Torv::SwapCount(test.session, 0), 2);
        }
    }

    void appendedLayerIsZeroAndShownAsItIsPainted()
    {
        TestSession test;
        QCOMPARE(test.Append(3, 2), 1);
        QCOMPARE(test.Append(4, 2), 2);
        const QImage green = SolidImage(3, QSize(3, 2), 0xFF00FF00);
        test.Paint(1, green);
        QCOMPARE(test.Front(1), green);
        QCOMPARE(test.Front(2), SolidImage(3, QSize(4, 2), 0));
        test.Swap(1);
        QCOMPARE(test.Front(1), green);
        QCOMPARE(Torv::Accounts().liveBytes, 2 * 4 * (8 * 4 + 3 * 2 + 4 * 2));
    }

    void pictureWithoutPixelsMakesEmptyLayer()
    {
        TestSession test(QSize(4, 4), 3, QImage(), {0, 0, -3, 4});
        QVERIFY(!test.Back(0) && !test.Swap(0) && test.Front(0).isNull());
        QCOMPARE(test.Append(0, 0), 1);
        QCOMPARE(test.display.Compose(0), SolidImage(3, QSize(4, 4), 0));
    }

    void tooMuchIsRefused()
    {
        TestSession test;
        QCOMPARE(test.Append(1 << 20, 65), -1);
        while (test.Append() > 0) {
        }
        QCOMPARE(Torv::LayerCount(test.session), 16);
        QCOMPARE(Torv::Accounts().refused, 2);
        QCOMPARE(Torv::Accounts().Misuses(), 0);
    }

    void freedLayersCannotBeTouched()
    {
        auto test = std::make_unique<TestSession>();
        test->Append();
        char* const buffers[] = {test->Back(0), test->Swap(0), test->Back(1), test->Swap(1)};
        for (char* const buffer : buffers)
            QVERIFY(!IsGuarded(buffer));
        test.reset();
        const TestSession next; // must not take the place of the freed one
        for (char* const buffer : buffers)
            QVERIFY(IsGuarded(buffer));
    }

    void shownBufferCanBeGuarded()
    {
        TestSession test;
        char* const painted = test.Back(0);
        Torv::GuardShownBuffers(true);
        QVERIFY(!IsGuarded(test.Swap(0)) && IsGuarded(painted));
        test.Swap(0);
        QVERIFY(!IsGuarded(painted));
    }

    void wrongHandlesAndFaultsChangeNothing_data()
    {
        QTest::addColumn<int>("operation");
        for (int operation = 0; operation < Torv::OperationCount; ++operation)
            QTest::newRow(Torv::OperationName(Torv::Operation(operation))) << operation;
    }

    /** Every wrong handle, display and layer goes into the one right counter; failures on demand
     * change nothing, but what is to be freed is gone. */
    void wrongHandlesAndFaultsChangeNothing()
    {
        QFETCH(int, operation);
        const bool frees = operation == Torv::OpFreePictureSession;
        const bool takesSession =
            operation != Torv::OpCreatePictureSession && operation != Torv::OpGeteffectDuration;
        const bool takesDisplay = takesSession && !frees;
        const bool takesLayer =
            operation >= Torv::OpGetPicImageLayerPtr && operation <= Torv::OpSetPicLayerBlend;
        const TestSession test;
        const Torv::Display other(QSize(8, 4));
        const PicDisplay gone = Torv::Display(QSize(8, 4)).Handle();
        const PicSession freed = Create(3, Gray, Area);
        FreePictureSession(freed);
        const TestSession next;                               // takes the place of the freed one
        for (const PicSession session : {0u, freed, test.on}) // a display's handle is no session's
            QVERIFY(!takesSession || !Succeeds(operation, test.on, session));
        for (const PicDisplay display : {0u, gone, other.Handle()})
            QVERIFY(!takesDisplay || !Succeeds(operation, display, test.session));
        for (const int layer : {1, -1})
            QVERIFY(!takesLayer || !Succeeds(operation, test.on, test.session, layer));
        QCOMPARE(Torv::Accounts().zeroHandle, takesSession ? 1 : 0);
        QCOMPARE(Torv::Accounts().staleHandle, takesSession ? 2 : 0);
        QCOMPARE(Torv::Accounts().wrongDisplay, takesDisplay ? 3 : 0);
        QCOMPARE(Torv::Accounts().badLayer, takesLayer ? 2 : 0);
        QCOMPARE(Torv::Accounts().badArgument, 0);

        if (operation == Torv::OpAddPictureSession) {
            RemovePictureSession(test.on, test.session);
            QVERIFY(!Succeeds(operation, gone, test.session));
        }
        Torv::FailCall(Torv::Operation(operation), 1);
        QVERIFY(!Succeeds(operation, test.on, test.session));
        QCOMPARE(Torv::LayerCount(test.session), frees ? 0 : 1);
        QCOMPARE(Torv::SwapCount(test.session, 0), 0);
        QCOMPARE(Succeeds(operation, test.on, test.session), !frees);
        QCOMPARE(Torv::Accounts().injectedFaults, 1);
    }

    void badArgumentsAreCounted()
    {
        TestSession test;
        const struct
        {
            int type, flags, width, bytesPerLine, imageWidth;
        } cases[] = {{4, 16, 8, 32, 8}, {3, 15, 8, 32, 8}, {3, 16, 8, 32, 9},
                     {3, 16, 8, 28, 8}, {3, 16, 8, 33, 8}, {3, 16, -8, 32, -8}};
        for (const auto& c : cases) {
            const PicImage image = {c.width, 4, c.bytesPerLine, test.Back(0)};
            const PicPlacement placement = {0, 0, 8, 4, 0, 0, c.imageWidth, 4};
            QCOMPARE(CreatePictureSession(c.type, &image, c.flags, &NoEffect, &placement, KeyWord),
                     0u);
        }
        QCOMPARE(PicAppendImageLayer(test.on, test.session, 8, 4, 28, KeyWord), -1);
        QVERIFY(!GetPicImageLayerPtr(test.on, test.session, 0, 4));
        QCOMPARE(SetPicLayerBlend(test.on, test.session, 0, 3), -1);
        QCOMPARE(Torv::Accounts().badArgument, 9);
    }

    void logTellsWhatWasAskedAndAnswered()
    {
        QList<Torv::CallRecord> log;
        TestSession test;
        const auto collect = [](void* context, const Torv::CallRecord& call) {
            static_cast<QList<Torv::CallRecord>*>(context)->append(call);
        };
        Torv::SetCallLog(collect, &log);
        test.Back(0);
        GetPicImageLayerPtr(test.on, test.session, 7, 5);
        const PicImage image = {8, 4, 32, &image};
        CreatePictureSession(3, &image, 16, nullptr, nullptr, 0x10201);
        QCOMPARE(log.size(), 3);
        QCOMPARE(log[0].operation, Torv::OpGetPicImageLayerPtr);
        QCOMPARE(log[0].display, test.on);
        QCOMPARE(log[0].session, test.session);
        QVERIFY(log[0].layer == 0 && log[0].mode == 5 && log[0].result == 1 && !log[0].problem);
        QVERIFY(log[1].layer == 7 && log[1].result == -1);
        QCOMPARE(log[1].problem, "badLayer");
        QVERIFY(log[2].type == 3 && log[2].flags == 16 && log[2].pixelWord == 0x10201);
        QVERIFY(log[2].hasImage && log[2].image.bytesPerLine == 32 && log[2].image.bits == &image);
        QVERIFY(!log[2].hasEffect && !log[2].hasPlacement && log[2].result == 0);
        QCOMPARE(log[2].problem, "badArgument");
    }
};

QTEST_GUILESS_MAIN(TestSessions)
#include "tst_sessions.moc"
