// Handles, layers and their buffers, and what happens to memory that has been freed.

#include "testsession.h"

#include <QtTest>

#include <csignal>
#include <cstring>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/** Whether @p action is stopped by the memory that it touches; it runs in a process of its own. */
bool IsCaught(const std::function<void()>& action)
{
    const pid_t child = fork();
    if (child == 0) {
        signal(SIGSEGV, SIG_DFL);
        signal(SIGBUS, SIG_DFL);
        action();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status);
}

/** Bytes that the process has mapped. */
qint64 AddressSpace()
{
    QFile statm("/proc/self/statm");
    if (!statm.open(QIODevice::ReadOnly))
        qFatal("no /proc");
    return statm.readLine().split(' ').first().toLongLong() * sysconf(_SC_PAGESIZE);
}

qint64 LiveSessions()
{
    return Torv::Accounts().liveSessions;
}

} // namespace

class tst_sessions : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        Torv::GuardShownBuffers(false);
        QCOMPARE(LiveSessions(), 0);
        QCOMPARE(Torv::Accounts().liveBytes, 0);
    }

    void staleHandleOfReusedSlotFindsNothing()
    {
        const QImage image = SolidImage(3, 2, 2, 0xFFFFFFFF);
        const PicSession first = Create(3, image, QRect(0, 0, 2, 2));
        QVERIFY(first != 0);
        QCOMPARE(FreePictureSession(first), 0);
        const PicSession second = Create(3, image, QRect(0, 0, 2, 2));
        QVERIFY(second != first);
        QCOMPARE(FreePictureSession(first), -1);
        QCOMPARE(Torv::LayerCount(first), 0);
        QCOMPARE(Torv::LayerCount(second), 1);
        QCOMPARE(FreePictureSession(second), 0);
    }

    void manySessionsKeepApart()
    {
        QList<PicSession> sessions;
        for (int i = 0; i < 300; ++i)
            sessions << Create(3, SolidImage(3, 4, 4, 0xFF000000 | unsigned(i)), QRect(0, 0, 4, 4));
        for (int i = 0; i < sessions.size(); ++i)
            QCOMPARE(Torv::FrontImage(sessions[i], 0).pixel(3, 3), 0xFF000000 | unsigned(i));
        QCOMPARE(QSet<PicSession>(sessions.begin(), sessions.end()).size(), 300);
        for (const PicSession session : sessions)
            FreePictureSession(session);
    }

    void buffers_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("alpha") << 3;
        QTest::newRow("colour key") << 5;
    }

    void buffers()
    {
        QFETCH(int, type);
        TestSession test(type, QSize(5, 3)); // rows of 15 bytes need padding
        QCOMPARE(test.image.bytesPerLine(), type == 3 ? 20 : 16);
        QCOMPARE(Torv::FrontImage(test.session, 0), test.image);

        char* const first = test.Back(0);
        QVERIFY(first);
        QCOMPARE(test.Back(0), first);
        QVERIFY(memcmp(first, test.image.constBits(), size_t(test.image.sizeInBytes())) == 0);
        char* const second = test.Swap(0);
        QVERIFY(second && second != first);
        QVERIFY(memcmp(second, test.image.constBits(), size_t(test.image.sizeInBytes())) == 0);

        const QImage red = SolidImage(type, 5, 3, 0xFFFF0000);
        memcpy(second, red.constBits(), size_t(red.sizeInBytes()));
        QCOMPARE(Torv::FrontImage(test.session, 0), test.image);
        QCOMPARE(test.Swap(0), first);
        QCOMPARE(Torv::FrontImage(test.session, 0), red);
        QCOMPARE(Torv::SwapCount(test.session, 0), 2);
    }

    void appendedLayerIsZeroAndShownAsItIsPainted()
    {
        TestSession test;
        QCOMPARE(test.Append(3, 2), 1);
        QCOMPARE(test.Append(4, 2), 2);
        QCOMPARE(Torv::LayerCount(test.session), 3);
        QCOMPARE(Torv::FrontImage(test.session, 1), SolidImage(3, 3, 2, 0));

        const QImage green = SolidImage(3, 3, 2, 0xFF00FF00);
        memcpy(test.Back(1), green.constBits(), size_t(green.sizeInBytes()));
        QCOMPARE(Torv::FrontImage(test.session, 1), green);
        QCOMPARE(Torv::FrontImage(test.session, 2), SolidImage(3, 4, 2, 0));
        test.Swap(1);
        QCOMPARE(Torv::FrontImage(test.session, 1), green);
    }

    void pictureWithoutPixelsMakesEmptyLayer()
    {
        const Torv::Display display(QSize(4, 4));
        const Effect effect = {0, 0, 0, 0, 0, 66};
        const PicImage images[] = {{0, 0, 0, nullptr}, {7, 0, 28, nullptr}, {2, 2, 8, nullptr}};
        for (const PicImage& image : images) {
            const PicPlacement placement = {0, 0, -3, 4, 0, 0, image.width, image.height};
            const PicSession session =
                CreatePictureSession(3, &image, 16, &effect, &placement, AlphaWord);
            QVERIFY(session != 0);
            QCOMPARE(AddPictureSession(display.Handle(), session, 0), 0);
            QVERIFY(!GetPicImageLayerPtr(display.Handle(), session, 0, 5));
            QVERIFY(!SwapPicImageLayerPtr(display.Handle(), session, 0));
            QVERIFY(Torv::FrontImage(session, 0).isNull());
            QCOMPARE(PicAppendImageLayer(display.Handle(), session, 0, 0, 0, AlphaWord), 1);
            QCOMPARE(display.Compose(0), SolidImage(3, 4, 4, 0));
            QCOMPARE(FreePictureSession(session), 0);
        }
    }

    void tooMuchIsRefused()
    {
        Torv::ResetAccounts();
        TestSession test;
        QCOMPARE(PicAppendImageLayer(test.display.Handle(), test.session, 1 << 20, 65, 4 << 20,
                                     AlphaWord),
                 -1);
        QCOMPARE(Torv::LayerCount(test.session), 1);
        while (test.Append() > 0) {
        }
        QCOMPARE(Torv::LayerCount(test.session), 16);

        const char pixel[4] = {0, 0, 0, 0};
        const PicImage huge = {1 << 20, 65, 4 << 20, pixel};
        const PicPlacement placement = {0, 0, 8, 4, 0, 0, 1 << 20, 65};
        const Effect effect = {0, 0, 0, 0, 0, 66};
        QCOMPARE(CreatePictureSession(3, &huge, 16, &effect, &placement, AlphaWord), 0u);
        QCOMPARE(Torv::Accounts().refused, 3);
        QCOMPARE(Torv::Accounts().Misuses(), 0);
    }

    void sessionLeavesWhateverDisplayItIsOn()
    {
        const Torv::Display other(QSize(8, 4));
        Torv::Display display(QSize(8, 4));
        const PicSession session = Create(3, SolidImage(3, 8, 4, 0xFFFFFFFF), QRect(0, 0, 8, 4));
        QCOMPARE(AddPictureSession(display.Handle(), session, 0), 0);
        QCOMPARE(display.Sessions(), QList<PicSession>() << session);
        QCOMPARE(AddPictureSession(other.Handle(), session, 0), -1);
        QCOMPARE(RemovePictureSession(other.Handle(), session), -1);
        QCOMPARE(display.Sessions(), QList<PicSession>() << session);
        QCOMPARE(FreePictureSession(session), 0);
        QVERIFY(display.Sessions().isEmpty());
        QCOMPARE(display.Compose(0), SolidImage(3, 8, 4, 0));
    }

    void sessionOutlivesItsDisplay()
    {
        auto display = std::make_unique<Torv::Display>(QSize(8, 4));
        const PicDisplay handle = display->Handle();
        const PicSession session = Create(3, SolidImage(3, 8, 4, 0xFFFFFFFF), QRect(0, 0, 8, 4));
        QCOMPARE(AddPictureSession(handle, session, 0), 0);
        display.reset();
        QVERIFY(SwapPicImageLayerPtr(handle, session, 0));
        QCOMPARE(RemovePictureSession(handle, session), 0);
        QCOMPARE(AddPictureSession(handle, session, 0), -1);
        QCOMPARE(FreePictureSession(session), 0);
    }

    void freedLayersCannotBeTouched()
    {
        std::unique_ptr<TestSession> test(new TestSession);
        test->Append();
        char* const buffers[] = {test->Back(0), test->Swap(0), test->Back(1), test->Swap(1)};
        for (char* const buffer : buffers)
            QVERIFY(!IsCaught([buffer] { *buffer = 1; }));
        test.reset();
        for (char* const buffer : buffers)
            QVERIFY(IsCaught([buffer] { *buffer = 1; }));
        // A session made next must not take the place of the freed one.
        TestSession next;
        for (char* const buffer : buffers)
            QVERIFY(IsCaught([buffer] { *buffer = 1; }));
    }

    void addressesOfFreedLayersAreGivenBack()
    {
        const QImage large = SolidImage(3, 1024, 1024, 0);
        const qint64 before = AddressSpace();
        for (int i = 0; i < 20; ++i)
            QCOMPARE(FreePictureSession(Create(3, large, QRect(0, 0, 1, 1))), 0);
        for (int i = 0; i < 40000; ++i)
            QCOMPARE(FreePictureSession(Create(3, SolidImage(3, 1, 1, 0), QRect(0, 0, 1, 1))), 0);
        QVERIFY(AddressSpace() - before < qint64(80) << 20);
    }

    void shownBufferCanBeGuarded()
    {
        TestSession test;
        char* const painted = test.Back(0);
        Torv::GuardShownBuffers(true);
        char* const next = test.Swap(0);
        QVERIFY(IsCaught([painted] { *painted = 1; }));
        QVERIFY(!IsCaught([next] { *next = 1; }));
        test.Swap(0);
        QVERIFY(!IsCaught([painted] { *painted = 1; }));
    }
};

QTEST_GUILESS_MAIN(tst_sessions)
#include "tst_sessions.moc"
