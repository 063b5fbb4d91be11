// Pictures and sessions for hosts that bring their own; plays are in tests/golden.
#include "renderfixture.h"
#include "table.h"

class TestRenderer : public QObject
{
    Q_OBJECT

private slots:
    void picturesAreSwappedIn_data();
    void picturesAreSwappedIn();
    void stillSessionsForOthers();
};

void TestRenderer::picturesAreSwappedIn_data()
{
    const Table<bool, int> row("blend", "format");
    row("alpha", true, int(QImage::Format_ARGB32));
    row("alpha from RGB32", true, int(QImage::Format_RGB32));
    row("alpha from RGB888", true, int(QImage::Format_RGB888));
    row("key", false, int(QImage::Format_RGB888));
    row("key from RGB32", false, int(QImage::Format_RGB32));
    row("key from BGR888", false, int(QImage::Format_BGR888));
}

void TestRenderer::picturesAreSwappedIn()
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
    QCOMPARE(picture.depth(), blend ? 32 : 24);

    play.log.clear();
    play.render->SwapImageData(&buffer, picture, 0);
    QCOMPARE(play.ShortCalls(), QString("swap0")); // the buffer is in hand
    play.render->Stop();
    buffer = nullptr;
    play.render->SwapImageData(&buffer, picture, 0);
    QVERIFY(!buffer);
}

void TestRenderer::stillSessionsForOthers()
{
    RenderFixture play;
    play.Start({{"EffectType", 1}});
    const PicSession before = play.Probe().session();
    play.log.clear();
    QImage picture(30, 20, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    play.render->InitRenderSession(picture);
    QCOMPARE(play.ShortCalls(), QString("remove free create(30x20,0 0 60x41 of 30x20) add"));
    QVERIFY(play.Probe().session() != before);
    QCOMPARE(Torv::FrontImage(play.Probe().session(), 0), picture);
    QVERIFY(!play.Probe().Engine().pictureSession());
}

TEST_MAIN_ON_VIRTUAL_TIME(TestRenderer)
#include "tst_renderer.moc"
