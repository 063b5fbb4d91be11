// Counters, misuses, faults on demand and the call log.

#include "testsession.h"

#include <QtTest>

#include <functional>

namespace {

void Collect(void* context, const QString& line)
{
    static_cast<QStringList*>(context)->append(line);
}

const QRect Area(0, 0, 8, 4);

} // namespace

class tst_accounting : public QObject
{
    Q_OBJECT

private slots:
    /** Logs of two runs can be compared only when both runs have the same handles. */
    void initTestCase()
    {
        const TestSession first;
        QCOMPARE(first.display.Handle(), 1u);
        QCOMPARE(first.session, 0x1000u);
    }

    void init() { Torv::ResetAccounts(); }

    void cleanup()
    {
        Torv::ClearFaults();
        Torv::SetCallLog(nullptr, nullptr);
        QCOMPARE(Torv::Accounts().liveSessions, 0);
    }

    void whatIsLive()
    {
        {
            TestSession test(3, QSize(8, 4));
            QCOMPARE(test.Append(4, 4), 1);
            const Torv::Accounting accounts = Torv::Accounts();
            QCOMPARE(accounts.liveSessions, 1);
            QCOMPARE(accounts.liveLayers, 2);
            QCOMPARE(accounts.liveBytes, 2 * (8 * 4 * 4 + 4 * 4 * 4));
        }
        const Torv::Accounting accounts = Torv::Accounts();
        QCOMPARE(accounts.liveLayers, 0);
        QCOMPARE(accounts.liveBytes, 0);
        QCOMPARE(accounts.peakBytes, 2 * (8 * 4 * 4 + 4 * 4 * 4));
        QCOMPARE(accounts.calls[Torv::OpFreePictureSession], 1);
        QVERIFY(Torv::AccountsReport().contains("FreePictureSession    1"));
        Torv::ResetAccounts();
        QCOMPARE(Torv::Accounts().peakBytes, 0);
        QCOMPARE(Torv::Accounts().calls[Torv::OpFreePictureSession], 0);
    }

    /** Every call with every wrong handle, display and layer goes into the one right counter. */
    void misuse_data()
    {
        QTest::addColumn<int>("operation");
        for (int operation = Torv::OpAddPictureSession; operation <= Torv::OpFreePictureSession;
             ++operation)
            QTest::newRow(Torv::OperationName(Torv::Operation(operation))) << operation;
    }

    void misuse()
    {
        QFETCH(int, operation);
        // Answers true when the call succeeds.
        const auto call = [operation](PicDisplay display, PicSession session, int layer) {
            switch (operation) {
            case Torv::OpAddPictureSession: return AddPictureSession(display, session, 0) == 0;
            case Torv::OpPicAppendImageLayer:
                return PicAppendImageLayer(display, session, 8, 4, 32, AlphaWord) > 0;
            case Torv::OpGetPicImageLayerPtr:
                return GetPicImageLayerPtr(display, session, layer, 5) != nullptr;
            case Torv::OpSwapPicImageLayerPtr:
                return SwapPicImageLayerPtr(display, session, layer) != nullptr;
            case Torv::OpSetPicLayerBlend: return SetPicLayerBlend(display, session, layer, 1) == 0;
            case Torv::OpRemovePictureSession: return RemovePictureSession(display, session) == 0;
            default: return FreePictureSession(session) == 0;
            }
        };
        const Torv::Display other(QSize(8, 4));
        const TestSession test;
        const PicDisplay display = test.display.Handle();
        const PicSession freed = Create(3, test.image, Area);
        FreePictureSession(freed);
        Torv::ResetAccounts();

        QVERIFY(!call(display, 0, 0));
        QCOMPARE(Torv::Accounts().zeroHandle, 1);
        QVERIFY(!call(display, freed, 0));
        QVERIFY(!call(display, display, 0)); // a display's handle is no session's
        QCOMPARE(Torv::Accounts().staleHandle, 2);
        QCOMPARE(Torv::Accounts().Misuses(), 3);
        if (operation != Torv::OpFreePictureSession) {
            QVERIFY(!call(0, test.session, 0));
            QVERIFY(!call(other.Handle(), test.session, 0));
            QCOMPARE(Torv::Accounts().wrongDisplay, 2);
            QCOMPARE(Torv::Accounts().Misuses(), 5);
        }
        if (operation >= Torv::OpGetPicImageLayerPtr && operation <= Torv::OpSetPicLayerBlend) {
            QVERIFY(!call(display, test.session, 1));
            QVERIFY(!call(display, test.session, -1));
            QCOMPARE(Torv::Accounts().badLayer, 2);
            QCOMPARE(Torv::Accounts().Misuses(), 7);
        }
        QCOMPARE(test.display.Compose(0), test.image);
        if (operation != Torv::OpAddPictureSession) // it is on its display already
            QVERIFY(call(display, test.session, 0));
    }

    void badArguments()
    {
        const QImage image = SolidImage(3, 8, 4, 0);
        const PicImage picture = {8, 4, 32, image.constBits()};
        const PicImage narrowRows = {8, 4, 28, image.constBits()};
        const PicImage oddRows = {8, 4, 33, image.constBits()};
        const PicImage negative = {-8, 4, 32, image.constBits()};
        const PicPlacement placement = {0, 0, 8, 4, 0, 0, 8, 4};
        const PicPlacement otherSize = {0, 0, 8, 4, 0, 0, 9, 4};
        const Effect effect = {0, 0, 0, 0, 0, 66};
        const auto create = [](int type, const PicImage* picture, int flags, const Effect* effect,
                               const PicPlacement* placement) {
            return CreatePictureSession(type, picture, flags, effect, placement, AlphaWord);
        };
        QCOMPARE(create(4, &picture, 16, &effect, &placement), 0u);
        QCOMPARE(create(3, &picture, 15, &effect, &placement), 0u);
        QCOMPARE(create(3, nullptr, 16, &effect, &placement), 0u);
        QCOMPARE(create(3, &picture, 16, nullptr, &placement), 0u);
        QCOMPARE(create(3, &picture, 16, &effect, nullptr), 0u);
        QCOMPARE(create(3, &narrowRows, 16, &effect, &placement), 0u);
        QCOMPARE(create(3, &oddRows, 16, &effect, &placement), 0u);
        QCOMPARE(create(3, &negative, 16, &effect, &placement), 0u);
        QCOMPARE(create(3, &picture, 16, &effect, &otherSize), 0u);
        QCOMPARE(Torv::Accounts().badArgument, 9);

        TestSession test;
        const PicDisplay display = test.display.Handle();
        QCOMPARE(PicAppendImageLayer(display, test.session, 8, 4, 28, AlphaWord), -1);
        QCOMPARE(PicAppendImageLayer(display, test.session, 8, -4, 32, AlphaWord), -1);
        QVERIFY(!GetPicImageLayerPtr(display, test.session, 0, 4));
        QCOMPARE(SetPicLayerBlend(display, test.session, 0, 3), -1);
        QCOMPARE(Torv::Accounts().badArgument, 13);
        QCOMPARE(Torv::Accounts().Misuses(), 13);
    }

    void faults_data()
    {
        QTest::addColumn<int>("operation");
        for (int operation = 0; operation < Torv::OperationCount; ++operation)
            QTest::newRow(Torv::OperationName(Torv::Operation(operation))) << operation;
    }

    /** The second call fails, the ones around it do not. */
    void faults()
    {
        QFETCH(int, operation);
        Torv::FailCall(Torv::Operation(operation), 2);
        for (int round = 1; round <= 3; ++round) {
            const bool failing = round == 2;
            const auto fails = [=](int which) { return failing && operation == which; };
            const Torv::Display display(QSize(8, 4));
            const PicDisplay handle = display.Handle();
            const QImage image = SolidImage(3, 8, 4, 0xFF010203);

            const PicSession session = Create(3, image, Area);
            QCOMPARE(session == 0, fails(Torv::OpCreatePictureSession));
            QCOMPARE(GeteffectDuration(8, 4, 26, 4), fails(Torv::OpGeteffectDuration) ? 0 : 8 * 66);
            if (session == 0)
                continue;
            QCOMPARE(AddPictureSession(handle, session, 0),
                     fails(Torv::OpAddPictureSession) ? -1 : 0);
            QCOMPARE(display.Sessions().isEmpty(), fails(Torv::OpAddPictureSession));
            if (!display.Sessions().isEmpty()) {
                QCOMPARE(PicAppendImageLayer(handle, session, 8, 4, 32, AlphaWord),
                         fails(Torv::OpPicAppendImageLayer) ? -1 : 1);
                QCOMPARE(!GetPicImageLayerPtr(handle, session, 0, 5),
                         fails(Torv::OpGetPicImageLayerPtr));
                QCOMPARE(!SwapPicImageLayerPtr(handle, session, 0),
                         fails(Torv::OpSwapPicImageLayerPtr));
                QCOMPARE(Torv::SwapCount(session, 0), fails(Torv::OpSwapPicImageLayerPtr) ? 0 : 1);
                QCOMPARE(SetPicLayerBlend(handle, session, 0, 2),
                         fails(Torv::OpSetPicLayerBlend) ? -1 : 0);
                QCOMPARE(RemovePictureSession(handle, session),
                         fails(Torv::OpRemovePictureSession) ? -1 : 0);
                QCOMPARE(display.Sessions().isEmpty(), !fails(Torv::OpRemovePictureSession));
            }
            QCOMPARE(FreePictureSession(session), fails(Torv::OpFreePictureSession) ? -1 : 0);
            QVERIFY(display.Sessions().isEmpty());
            QCOMPARE(Torv::Accounts().liveSessions, 0); // gone, even when freeing it failed
        }
        QCOMPARE(Torv::Accounts().injectedFaults, 1);
        QCOMPARE(Torv::Accounts().Misuses(), 0);
    }

    void lastingFault()
    {
        TestSession test;
        Torv::FailAllCalls(Torv::OpSwapPicImageLayerPtr, true);
        QVERIFY(!test.Swap(0));
        QVERIFY(!test.Swap(0));
        Torv::FailAllCalls(Torv::OpSwapPicImageLayerPtr, false);
        QVERIFY(test.Swap(0));
        Torv::FailCall(Torv::OpSwapPicImageLayerPtr, 1);
        Torv::FailCall(Torv::OpSwapPicImageLayerPtr, 0);
        QVERIFY(test.Swap(0));
        QCOMPARE(Torv::Accounts().injectedFaults, 2);
    }

    void log()
    {
        QStringList lines;
        Torv::SetCallLog(Collect, &lines);
        const Torv::Display display(QSize(8, 4));
        const PicSession session = Create(5, SolidImage(5, 5, 4, 0), Area);
        const PicDisplay on = display.Handle();
        AddPictureSession(on, session, 0);
        PicAppendImageLayer(on, session, 8, 4, 24, KeyWord);
        GetPicImageLayerPtr(on, session, 0, 5);
        SwapPicImageLayerPtr(on, session, 0);
        SwapPicImageLayerPtr(on, session, 7);
        SetPicLayerBlend(on, session, 1, 2);
        Torv::FailCall(Torv::OpRemovePictureSession, 1);
        RemovePictureSession(on, session);
        FreePictureSession(session);
        CreatePictureSession(3, nullptr, 16, nullptr, nullptr, AlphaWord);
        GeteffectDuration(512, 64, 26, 4);

        const char* const expected[] = {
            R"({"call":"CreatePictureSession","type":5,)"
            R"("image":{"width":5,"height":4,"bytesPerLine":16,"bits":true},"flags":16,)"
            R"("effect":{"effect1":0,"duration1":0,"effect2":0,"duration2":0,"effect3":0,"duration3":66},)"
            R"("placement":{"x":0,"y":0,"width":8,"height":4,"imageWidth":5,"imageHeight":4},)"
            R"("pixelWord":"0x00010201","result":S})",
            R"({"call":"AddPictureSession","display":D,"session":S,"reserved":0,"result":0})",
            R"({"call":"PicAppendImageLayer","display":D,"session":S,"width":8,"height":4,)"
            R"("bytesPerLine":24,"pixelWord":"0x00010201","result":1})",
            R"({"call":"GetPicImageLayerPtr","display":D,"session":S,"layer":0,"mode":5,"result":"buffer 1"})",
            R"({"call":"SwapPicImageLayerPtr","display":D,"session":S,"layer":0,"result":"buffer 0"})",
            R"({"call":"SwapPicImageLayerPtr","display":D,"session":S,"layer":7,"result":null,"problem":"badLayer"})",
            R"({"call":"SetPicLayerBlend","display":D,"session":S,"layer":1,"value":2,"result":0})",
            R"({"call":"RemovePictureSession","display":D,"session":S,"result":-1,"problem":"fault"})",
            R"({"call":"FreePictureSession","session":S,"result":0})",
            R"({"call":"CreatePictureSession","type":3,"image":null,"flags":16,"effect":null,)"
            R"("placement":null,"pixelWord":"0xff010201","result":0,"problem":"badArgument"})",
            R"({"call":"GeteffectDuration","length":512,"areaHeight":64,"effectCode":26,)"
            R"("speedIndex":4,"result":33792})"};
        QCOMPARE(lines.size(), int(std::size(expected)));
        for (int i = 0; i < lines.size(); ++i) {
            QCOMPARE(lines[i], QString(expected[i])
                                   .replace(":S", ":" + QString::number(session))
                                   .replace(":D", ":" + QString::number(on)));
            QVERIFY(QJsonDocument::fromJson(lines[i].toUtf8()).isObject());
        }
    }
};

QTEST_GUILESS_MAIN(tst_accounting)
#include "tst_accounting.moc"
