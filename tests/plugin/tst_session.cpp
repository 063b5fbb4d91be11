// The picture session: which calls of the device a start makes, with what, and in which order.
#include "renderfixture.h"

class SessionTest : public QObject
{
    Q_OBJECT

private slots:
    void firstTicks_data();
    void firstTicks();
    void layersAreStacked_data();
    void layersAreStacked();
    void sessionsAreDescribed_data();
    void sessionsAreDescribed();
    void scrollsLastAsTheTreeSays_data();
    void scrollsLastAsTheTreeSays();
    void picturesAreSwappedIn_data();
    void picturesAreSwappedIn();
    void stillSessionsForOthers();
};

void SessionTest::firstTicks_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("neon");
    QTest::addColumn<int>("dazzle");
    QTest::addColumn<QString>("fault"); // which appending fails, or the creation
    QTest::addColumn<QString>("calls");
    QTest::addColumn<QString>("layers"); // that the painters were given

    struct Row
    {
        int neon, dazzle;
        const char* fault;
        const char* calls;
        const char* layers;
    };
    const Row frames[] = {
        {0, 0, "", "create(60x41) add get0 swap0 blend0=0", "text0"},
        {1, 0, "", "create(60x41) add append(60x41)=1 get1 swap1 blend0=0 blend1=2", "text1 neon0"},
        {1, 0, "first", "create(60x41) add append(60x41)=-1 blend0=0 blend1=2", ""},
        {0, 1, "", "create(60x41) add append(60x41)=1 get0 swap0 blend0=1 blend1=2",
         "text0 dazzle1"},
        {0, 1, "first", "create(60x41) add append(60x41)=-1 get0 swap0 blend0=1 blend1=2", "text0"},
        {1, 1, "",
         "create(60x41) add append(60x41)=1 append(60x41)=2 get1 swap1 blend0=0 blend1=1 blend2=2",
         "text1 neon0 dazzle2"},
        {1, 1, "first",
         "create(60x41) add append(60x41)=-1 append(60x41)=1 blend0=0 blend1=1 blend2=2",
         "dazzle1"},
        {1, 1, "second",
         "create(60x41) add append(60x41)=1 append(60x41)=-1 get1 swap1 blend0=0 blend1=1 blend2=2",
         "text1 neon0"},
        {1, 1, "all",
         "create(60x41) add append(60x41)=-1 append(60x41)=-1 blend0=0 blend1=1 blend2=2", ""},
        {0, 0, "create", "create(60x41) add blend0=0", ""},
    };
    for (const auto& row : frames) {
        const int modes[][2] = {{0, 0}, {0, 1}, {1, 2}, {1, 3}, {1, 4}, {2, 0}};
        for (const auto& mode : modes)
            QTest::addRow("mode %d, style %d, neon %d, dazzle %d, fault '%s'", mode[0], mode[1],
                          row.neon, row.dazzle, row.fault)
                << mode[0] << mode[1] << row.neon << row.dazzle << row.fault << row.calls
                << row.layers;
    }

    const Row lines[] = {
        {0, 0, "", "blend0=2", "text0"},
        {1, 0, "", "append(60x41)=1 blend0=2 blend1=0", "text0 neon1"},
        {1, 0, "first", "append(60x41)=-1 blend0=2 blend1=0", "text0"},
        {0, 1, "", "append(60x41)=1 blend0=1 blend1=2", "text0 dazzle1"},
        {0, 1, "first", "append(60x41)=-1 blend0=1 blend1=2", "text0"},
        {1, 1, "", "append(60x41)=1 append(60x41)=2 blend0=1 blend1=0 blend2=2",
         "text0 neon1 dazzle2"},
        {1, 1, "first", "append(60x41)=-1 append(60x41)=1 blend0=1 blend1=0 blend2=2",
         "text0 dazzle1"},
        {1, 1, "second", "append(60x41)=1 append(60x41)=-1 blend0=1 blend1=0 blend2=2",
         "text0 neon1"},
        {0, 0, "create", "blend0=2", ""},
    };
    for (const auto& row : lines)
        for (int style : {0, 1})
            QTest::addRow("line, style %d, neon %d, dazzle %d, fault '%s'", style, row.neon,
                          row.dazzle, row.fault)
                << 1 << style << row.neon << row.dazzle << row.fault
                << QString("duration duration create(90x41) add ") + row.calls << row.layers;
}

void SessionTest::firstTicks()
{
    QFETCH(int, mode);
    QFETCH(int, style);
    QFETCH(int, neon);
    QFETCH(int, dazzle);
    QFETCH(QString, fault);
    RenderFixture play;
    if (fault == "first" || fault == "second")
        Torv::FailCall(Torv::OpPicAppendImageLayer, fault == "first" ? 1 : 2);
    Torv::FailAllCalls(Torv::OpPicAppendImageLayer, fault == "all");
    Torv::FailAllCalls(Torv::OpCreatePictureSession, fault == "create");
    play.Start({{"EffectType", mode},
                {"ContinueStyle", style},
                {"CheckNeonBg", neon},
                {"CheckDazzle", dazzle}});

    const EngineProbe engine = play.Probe().Engine();
    QStringList layers;
    if (engine.pictureSession())
        layers.append(QString("text%1").arg(engine.sessionLayer()));
    if (engine.neonBg()->pictureSession)
        layers.append(QString("neon%1").arg(engine.neonBg()->layer));
    if (engine.dazzleLayer() > 0)
        layers.append(QString("dazzle%1").arg(engine.dazzleLayer()));
    QTEST(layers.join(' '), "layers");

    // What the dazzle background asks for its own layer is its own affair.
    QString calls = play.ShortCalls();
    if (engine.dazzleLayer() > 0)
        calls.remove(QRegExp(QString(" (get|swap)%1").arg(engine.dazzleLayer())));
    QTEST(calls, "calls");

    // Frames go on swapping the text's layer, lines and what is static do not.
    play.log.clear();
    PassTicks(3);
    const bool moves = mode == 0 || (mode == 1 && (style == 2 || style == 3));
    const QString swap = QString("swap%1").arg(engine.sessionLayer());
    QCOMPARE(play.ShortCalls().split(' ').count(swap), moves && engine.pictureSession() ? 3 : 0);
}

void SessionTest::layersAreStacked_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("neon");
    QTest::addColumn<int>("dazzle");
    QTest::addColumn<QString>("values"); // of the layers 0, 1, ...
    const char* const values[2][3][3] = {
        // dazzle 0, 1, 2 in each row; neon 0, 1, 2 down
        {{"0", "12", "012"}, {"02", "012", "012"}, {"012", "012", "012"}},
        {{"2", "12", "102"}, {"20", "102", "102"}, {"102", "102", "102"}},
    };
    for (int mode = 0; mode < 2; ++mode)
        for (int neon = 0; neon < 3; ++neon)
            for (int dazzle = 0; dazzle < 3; ++dazzle)
                QTest::addRow("mode %d, neon %d, dazzle %d", mode, neon, dazzle)
                    << mode << neon << dazzle << values[mode][neon][dazzle];
}

void SessionTest::layersAreStacked()
{
    QFETCH(int, mode);
    QFETCH(int, neon);
    QFETCH(int, dazzle);
    RenderFixture play;
    play.Start({{"EffectType", mode}, {"CheckNeonBg", neon}, {"CheckDazzle", dazzle}});
    QString values;
    for (const QJsonObject& call : play.Calls("SetPicLayerBlend")) {
        QCOMPARE(call["layer"].toInt(), values.size());
        QCOMPARE(call["session"].toDouble(), double(play.Probe().session()));
        values += QString::number(call["value"].toInt());
    }
    QTEST(values, "values");
}

void SessionTest::sessionsAreDescribed_data()
{
    QTest::addColumn<bool>("blend");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("arguments");
    const QString still = "\"effect\":{\"effect1\":0,\"duration1\":0,\"effect2\":0,"
                          "\"duration2\":0,\"effect3\":0,\"duration3\":66},"
                          "\"placement\":{\"x\":7,\"y\":9,\"width\":60,\"height\":41,"
                          "\"imageWidth\":60,\"imageHeight\":41},";
    // 15 pixels a tick; the line is 90 long and played twice.
    const QString scroll = "\"effect\":{\"effect1\":%1,\"duration1\":990,\"effect2\":%1,"
                           "\"duration2\":2970,\"effect3\":%1,\"duration3\":0},"
                           "\"placement\":{\"x\":7,\"y\":9,\"width\":60,\"height\":41,"
                           "\"imageWidth\":90,\"imageHeight\":41},";
    const QString image = "\"type\":%1,\"image\":{\"width\":%2,\"height\":41,"
                          "\"bytesPerLine\":%3,\"bits\":true},\"flags\":16,";
    QTest::newRow("still, alpha") << true << 0 << 0
                                  << image.arg(3).arg(60).arg(240) + still +
                                         "\"pixelWord\":\"0xff010201\"";
    QTest::newRow("still, key") << false << 0 << 0
                                << image.arg(5).arg(60).arg(180) + still +
                                       "\"pixelWord\":\"0x00010201\"";
    QTest::newRow("left, alpha") << true << 1 << 0
                                 << image.arg(3).arg(90).arg(360) + scroll.arg(26) +
                                        "\"pixelWord\":\"0xff010201\"";
    QTest::newRow("right, key") << false << 1 << 1
                                << image.arg(5).arg(90).arg(272) + scroll.arg(27) +
                                       "\"pixelWord\":\"0x00010201\"";
}

void SessionTest::sessionsAreDescribed()
{
    QFETCH(bool, blend);
    QFETCH(int, mode);
    QFETCH(int, style);
    QFETCH(QString, arguments);
    HPluginManager::instance()->SetAlphaBlend(blend);
    RenderFixture play;
    play.text.node->SetPos(QPoint(7, 9));
    play.Start({{"EffectType", mode},
                {"ContinueStyle", style},
                {"ContinueSpeed", 8},
                {"PlayTimes", 2},
                {"CheckDazzle", 1}});
    const QString create = play.log.filter("\"CreatePictureSession\"").value(0);
    QVERIFY2(create.contains(arguments), qPrintable(create));
    const QString append = play.log.filter("\"PicAppendImageLayer\"").value(0);
    QVERIFY2(append.contains(QString("\"width\":60,\"height\":41,\"bytesPerLine\":%1,"
                                     "\"pixelWord\":\"%2\"")
                                 .arg(blend ? 240 : 180)
                                 .arg(blend ? "0xff010201" : "0x00010201")),
             qPrintable(append));
    for (const QJsonObject& call : play.Calls("GetPicImageLayerPtr"))
        QCOMPARE(call["mode"].toInt(), 5);
}

void SessionTest::scrollsLastAsTheTreeSays_data()
{
    QTest::addColumn<int>("ancestors"); // area, page, program
    QTest::addColumn<int>("inArea");    // children of the area, the node among them
    QTest::addColumn<int>("inProgram");
    QTest::addColumn<bool>("stillBeside"); // another area of the page with a still text, 6000 ms
    QTest::addColumn<int>("plays");
    QTest::addColumn<int>("duration");
    // One pass takes the line 1485 ms; the node's own duration is 2475 ms a play.
    QTest::newRow("alone") << 3 << 1 << 1 << false << 2 << -1058684416;
    QTest::newRow("alone in its area, still text beside")
        << 3 << 1 << 1 << true << 2 << -1058684416;
    QTest::newRow("one page of two") << 3 << 1 << 2 << false << 2 << 4950;
    QTest::newRow("one page of two, still text beside") << 3 << 1 << 2 << true << 2 << 6000;
    QTest::newRow("one page of two, never played") << 3 << 1 << 2 << false << 0 << 0;
    QTest::newRow("one page of two, played back") << 3 << 1 << 2 << false << -1 << -1485;
    QTest::newRow("two in the area") << 3 << 2 << 1 << false << 2 << 2970;
    QTest::newRow("two in the area, two pages") << 3 << 2 << 2 << true << 2 << 2970;
    QTest::newRow("no program") << 2 << 1 << 0 << false << 2 << 4950;
    QTest::newRow("no program, still text beside") << 2 << 1 << 0 << true << 2 << 6000;
    QTest::newRow("no page") << 1 << 1 << 0 << false << 2 << 2970;
    QTest::newRow("no area") << 0 << 0 << 0 << false << 2 << 2970;
}

void SessionTest::scrollsLastAsTheTreeSays()
{
    QFETCH(int, ancestors);
    QFETCH(int, inArea);
    QFETCH(int, inProgram);
    QFETCH(bool, stillBeside);
    QFETCH(int, plays);
    Lw::HNode program, loosePage, looseArea; // the root, however high the tree is
    RenderFixture play;
    Lw::HNode* const page = ancestors >= 3 ? new Lw::HNode : &loosePage;
    Lw::HNode* const area = ancestors >= 2 ? new Lw::HNode : &looseArea;
    if (ancestors >= 3)
        program.AddChild(page);
    if (ancestors >= 2)
        page->AddChild(area);
    if (ancestors >= 1)
        area->AddChild(play.text.node.get());
    for (int i = 1; i < inArea; ++i)
        area->AddChild(new Lw::HNode);
    for (int i = 1; i < inProgram; ++i)
        program.AddChild(new Lw::HNode);
    if (stillBeside) {
        HAnimationTextNode* const still = new HAnimationTextNode;
        still->SetAttribute("EffectType", 2);
        page->AddChild(new Lw::HNode);
        page->ChildNodes().last()->AddChild(still);
    }

    play.Start({{"EffectType", 1}, {"ContinueSpeed", 8}, {"PlayTimes", plays}});
    play.text.node->setParent(nullptr); // the fixture deletes it
    const QJsonObject effect = play.Calls("CreatePictureSession").value(0)["effect"].toObject();
    QCOMPARE(effect["duration1"].toInt(), 990); // by the area's width
    QTEST(effect["duration2"].toInt(), "duration");
}

void SessionTest::picturesAreSwappedIn_data()
{
    QTest::addColumn<bool>("blend");
    QTest::addColumn<int>("format");
    QTest::newRow("alpha") << true << int(QImage::Format_ARGB32);
    QTest::newRow("alpha from RGB32") << true << int(QImage::Format_RGB32);
    QTest::newRow("key") << false << int(QImage::Format_RGB888);
    QTest::newRow("key from RGB32") << false << int(QImage::Format_RGB32);
    QTest::newRow("key from BGR888") << false << int(QImage::Format_BGR888);
}

void SessionTest::picturesAreSwappedIn()
{
    QFETCH(bool, blend);
    QFETCH(int, format);
    HPluginManager::instance()->SetAlphaBlend(blend);
    RenderFixture play;
    play.Start({{"EffectType", 2}});
    QImage picture(60, 41, QImage::Format(format));
    picture.fill(QColor(10, 200, 30));
    char* buffer = nullptr;
    play.render->SwapImageData(&buffer, picture, 0);
    QVERIFY(buffer);
    const QImage shown = Torv::FrontImage(play.Probe().session(), 0);
    QCOMPARE(shown.pixelColor(59, 40), QColor(10, 200, 30));
    QCOMPARE(picture.format(), blend ? QImage::Format(format) : QImage::Format_RGB888);

    play.log.clear();
    play.render->SwapImageData(&buffer, picture, 0);
    QCOMPARE(play.ShortCalls(), QString("swap0")); // the buffer is in hand
    play.render->Stop();
    buffer = nullptr;
    play.render->SwapImageData(&buffer, picture, 0);
    QVERIFY(!buffer);
}

void SessionTest::stillSessionsForOthers()
{
    RenderFixture play;
    play.Start({{"EffectType", 1}});
    const PicSession before = play.Probe().session();
    play.log.clear();
    QImage picture(30, 20, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    play.render->InitRenderSession(picture);
    QCOMPARE(play.ShortCalls(), QString("remove free create(30x20) add"));
    QVERIFY(play.Probe().session() != before);
    QCOMPARE(Torv::FrontImage(play.Probe().session(), 0), picture);
    QVERIFY(!play.Probe().Engine().pictureSession());
}

TEST_MAIN_ON_VIRTUAL_TIME(SessionTest)
#include "tst_session.moc"
