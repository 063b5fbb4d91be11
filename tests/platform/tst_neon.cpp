// The neon animator: where it paints, when it moves, and what it looks like.

#include "testsession.h"

#include "drawneonbg.h"
#include "hneonnodebase.h"
#include "hpluginmanager.h"

#include <QtTest>

#include <memory>

using namespace Lw;

namespace {

/** A node with an animator that has been given the base layer of a session. */
class Stage
{
public:
    explicit Stage(int style, QSize size = QSize(96, 48), const QString& film = QString())
        : type(HPluginManager::instance()->SuportAlphaBlend(nullptr) ? 3 : 5)
        , test(type, size, 0)
        , node(new HNeonNodeBase)
    {
        node->SetSize(size);
        node->SetNeonEffect(style);
        node->SetFiles("NeonGifPath", {film});
        neon.InitNode(node.get());
        Give(0);
    }

    void Give(int layer)
    {
        neon.pictureSession = reinterpret_cast<void*>(quintptr(test.session));
        neon.displayHandle = test.display.Handle();
        neon.layer = layer;
    }

    /** What the layer shows after one more tick of the animator's timer. */
    QImage Tick()
    {
        QMetaObject::invokeMethod(&neon, "DrawNext");
        return Torv::FrontImage(test.session, qMax(0, neon.layer));
    }
    QList<QImage> Ticks(int count)
    {
        QList<QImage> pictures;
        for (int i = 0; i < count; ++i)
            pictures << Tick();
        return pictures;
    }
    bool IsTimerActive() const { return neon.findChild<QTimer*>()->isActive(); }

    int type;
    TestSession test;
    std::unique_ptr<HNeonNodeBase> node;
    DrawNeonBg neon;
};

/** A GIF file of single-coloured pictures. */
class TestGif
{
public:
    struct Picture
    {
        int colour; ///< 0 transparent, 1 red, 2 green, 3 blue
        int delay;  ///< hundredths of a second
    };

    TestGif(const QVector<Picture>& pictures, int width = 1, int height = 1)
    {
        QByteArray data = "GIF89a" + Word(width) + Word(height) + Bytes("810000");
        data += Bytes("000000ff000000ff000000ff");
        for (const Picture& picture : pictures) {
            data += Bytes("21f90409") + Word(picture.delay) + Bytes("0000");
            data += Bytes("2c00000000") + Word(width) + Word(height) + Bytes("00");
            // One pixel: clear, the colour, end; three bits each.
            data += Bytes("0202") + Word(0x144 + 8 * picture.colour) + Bytes("00");
        }
        if (!file.open() || file.write(data + Bytes("3b")) < 0 || !file.flush())
            qFatal("no temporary file");
    }
    QString Path() const { return file.fileName(); }

private:
    static QByteArray Bytes(const char* hex) { return QByteArray::fromHex(hex); }
    static QByteArray Word(int value)
    {
        return QByteArray().append(char(value & 0xFF)).append(char(value >> 8));
    }

    QTemporaryFile file;
};

QByteArray BytesOf(const QImage& image)
{
    return QByteArray(reinterpret_cast<const char*>(image.constBits()), int(image.sizeInBytes()));
}

/** The colours of the middle pixel, one letter a picture. */
QString MiddleColours(const QList<QImage>& pictures)
{
    QString letters;
    for (const QImage& picture : pictures) {
        const QRgb colour = picture.pixel(picture.width() / 2, picture.height() / 2);
        letters += colour == 0xFFFF0000   ? 'r'
                   : colour == 0xFF00FF00 ? 'g'
                   : colour == 0xFF0000FF ? 'b'
                                          : '-';
    }
    return letters;
}

} // namespace

class tst_neon : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        HPluginManager::instance()->SetAlphaBlend(true);
        Torv::ClearFaults();
        QCOMPARE(Torv::Accounts().Misuses(), 0);
        QCOMPARE(Torv::Accounts().liveSessions, 0);
    }

    void stylesDiffer()
    {
        QHash<QByteArray, int> styles;
        for (int style = 1; style <= 28; ++style) {
            Stage stage(style);
            QByteArray play;
            for (const QImage& picture : stage.Ticks(12))
                play += BytesOf(picture);
            QVERIFY2(!styles.contains(play),
                     qPrintable(QString("%1 looks like %2").arg(style).arg(styles.value(play))));
            styles.insert(play, style);
        }
        for (const int style : {0, -5})
            QCOMPARE(Stage(style).Ticks(3), Stage(1).Ticks(3));
    }

    void border_data()
    {
        QTest::addColumn<int>("style");
        for (int style = 1; style <= 28; ++style)
            QTest::addRow("style %d", style) << style;
    }

    /** It moves, it shines, it leaves room for text, and both formats show the same light. */
    void border()
    {
        QFETCH(int, style);
        const QSize size(120, 60);
        const QList<QImage> alpha = Stage(style, size).Ticks(30);
        HPluginManager::instance()->SetAlphaBlend(false);
        const QList<QImage> solid = Stage(style, size).Ticks(30);
        // The band is 6 pixels thick; its corners are round.
        const QRect wide(6, 18, 108, 24);
        const QRect high(18, 6, 84, 48);
        int changes = 0;
        int brightest = 0;
        for (int i = 0; i < alpha.size(); ++i) {
            changes += i > 0 && alpha[i] != alpha[i - 1];
            for (int y = 0; y < size.height(); ++y) {
                for (int x = 0; x < size.width(); ++x) {
                    const QRgb light = alpha[i].pixel(x, y);
                    const QRgb opaque = solid[i].pixel(x, y);
                    brightest = qMax(brightest, qAlpha(light));
                    if (wide.contains(x, y) || high.contains(x, y)) {
                        QCOMPARE(light, 0u);
                        QCOMPARE(opaque, 0xFF000000u);
                    }
                    QVERIFY(qAbs(qRed(light) * qAlpha(light) / 255 - qRed(opaque)) <= 2);
                    QVERIFY(qAbs(qGreen(light) * qAlpha(light) / 255 - qGreen(opaque)) <= 2);
                    QVERIFY(qAbs(qBlue(light) * qAlpha(light) / 255 - qBlue(opaque)) <= 2);
                }
            }
        }
        QVERIFY2(changes > 12, qPrintable(QString::number(changes)));
        QVERIFY2(brightest > 200, qPrintable(QString::number(brightest)));
    }

    void cornersAreRound()
    {
        const QImage glow = Stage(6, QSize(120, 60)).Ticks(17).last(); // one colour all round
        QCOMPARE(glow.pixel(0, 0), 0u);
        QVERIFY(qAlpha(glow.pixel(6, 6)) > 200); // further in than the band along the edges
        QCOMPARE(glow.mirrored(true, false), glow);
        QCOMPARE(glow.mirrored(false, true), glow);
    }

    void motionCountsTicksOnly()
    {
        Stage steady(4);
        const QList<QImage> play = steady.Ticks(6);
        Stage stage(4);
        QCOMPARE(stage.Ticks(3), play.mid(0, 3));
        stage.neon.StopTimerDraw();
        stage.neon.StartTimerDraw(66);
        QCOMPARE(stage.Ticks(3), play.mid(3));
        stage.neon.InitNode(stage.node.get());
        QCOMPARE(stage.Ticks(6), play);
    }

    void timer()
    {
        DrawNeonBg idle;
        idle.StartTimerDraw(66);
        QVERIFY(!idle.findChild<QTimer*>()->isActive());

        Stage stage(1);
        stage.neon.StartTimerDraw(66);
        QVERIFY(stage.IsTimerActive());
        QCOMPARE(stage.neon.findChild<QTimer*>()->interval(), 66);
        stage.neon.StopTimerDraw();
        QVERIFY(!stage.IsTimerActive());
    }

    void paintsOnlyWithSomewhereToPaint()
    {
        Stage stage(1);
        const QImage blank = Torv::FrontImage(stage.test.session, 0);
        stage.neon.pictureSession = nullptr;
        QCOMPARE(stage.Tick(), blank);
        stage.Give(-1);
        QCOMPARE(stage.Tick(), blank);
        stage.Give(0);
        stage.neon.displayHandle = 0;
        QCOMPARE(stage.Tick(), blank);
        stage.Give(0);
        for (const Torv::Operation operation :
             {Torv::OpGetPicImageLayerPtr, Torv::OpSwapPicImageLayerPtr}) {
            Torv::FailCall(operation, 1);
            stage.Tick();
            QCOMPARE(Torv::SwapCount(stage.test.session, 0), 0);
        }
        QVERIFY(stage.Tick() != blank);

        const int appended = stage.test.Append();
        stage.Give(appended);
        const QImage base = Torv::FrontImage(stage.test.session, 0);
        QVERIFY(stage.Tick() != blank);
        QCOMPARE(Torv::FrontImage(stage.test.session, 0), base);

        stage.node.reset(); // deleted by its owner in mid-play
        const QImage last = Torv::FrontImage(stage.test.session, appended);
        QCOMPARE(stage.Tick(), last);
        stage.neon.StartTimerDraw(66);
        QVERIFY(!stage.IsTimerActive());
    }

    void areas_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("isPainted");
        QTest::newRow("one pixel") << QSize(1, 1) << true;
        QTest::newRow("two rows") << QSize(300, 2) << true;
        QTest::newRow("three columns") << QSize(3, 200) << true;
        QTest::newRow("odd rows of 24 bits") << QSize(37, 21) << true;
        QTest::newRow("no width") << QSize(0, 5) << false;
        QTest::newRow("negative") << QSize(-4, -4) << false;
        QTest::newRow("beyond the cap") << QSize(1 << 16, 1366) << false;
    }

    void areas()
    {
        QFETCH(QSize, size);
        QFETCH(bool, isPainted);
        for (const bool blend : {true, false}) {
            HPluginManager::instance()->SetAlphaBlend(blend);
            HNeonNodeBase node;
            node.SetSize(size);
            DrawNeonBg neon;
            neon.InitNode(&node);
            QCOMPARE(neon.Image().isNull(), !isPainted);
            if (!isPainted)
                continue;
            QCOMPARE(neon.Image().size(), size);
            QCOMPARE(neon.Image().format(), blend ? QImage::Format_ARGB32 : QImage::Format_RGB888);
            Stage stage(1, size);
            QCOMPARE(stage.Tick(), stage.neon.Image());
            QVERIFY(stage.Tick() != SolidImage(stage.type, size.width(), size.height(), 0));
        }
    }

    void filmShowsEachPictureForItsTime()
    {
        const TestGif gif({{1, 10}, {2, 20}}); // red until 100 ms, green until 300 ms
        QCOMPARE(MiddleColours(Stage(29, QSize(40, 20), gif.Path()).Ticks(14)),
                 QString("rrgggrrgggrggg"));
        HPluginManager::instance()->SetAlphaBlend(false);
        QCOMPARE(MiddleColours(Stage(29, QSize(40, 20), gif.Path()).Ticks(7)), QString("rrgggrr"));
    }

    void filmFasterThanTheTicksSkips()
    {
        const TestGif gif({{1, 3}, {2, 3}, {3, 3}}); // 30 ms each: 0, 66, 132, 198 ms ...
        QCOMPARE(MiddleColours(Stage(30, QSize(8, 8), gif.Path()).Ticks(5)), QString("rbgrb"));
        const TestGif hasty({{1, 1}, {2, 0}}); // next to no delay is 100 ms
        QCOMPARE(MiddleColours(Stage(30, QSize(8, 8), hasty.Path()).Ticks(5)), QString("rrggr"));
    }

    void transparentPictureHidesTheOneBefore()
    {
        const TestGif gif({{1, 10}, {0, 10}});
        QCOMPARE(MiddleColours(Stage(29, QSize(8, 8), gif.Path()).Ticks(5)), QString("rr--r"));
    }

    void stillPictureStays()
    {
        const TestGif gif({{3, 1}});
        QCOMPARE(MiddleColours(Stage(29, QSize(8, 8), gif.Path()).Ticks(5)), QString("bbbbb"));
    }

    void uselessFilmIsNamedOnce_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing") << QByteArray() << "no such file";
        QTest::newRow("not a picture") << QByteArray("hello") << "not a picture that can be read";
        // A header that promises 9000 x 9000 pixels.
        QTest::newRow("too large") << QByteArray::fromHex("47494638396128232823810000"
                                                          "000000ff000000ff000000ff"
                                                          "2c00000000282328230002024c01003b")
                                   << "more than 64 megapixels";
        QTest::newRow("cut short") << QByteArray::fromHex("474946383961080008008100") << "not a";
    }

    void uselessFilmIsNamedOnce()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(content);
        file.flush();
        const QString path = content.isEmpty() ? QString("/nonexistent") : file.fileName();
        QTest::ignoreMessage(
            QtDebugMsg, QRegularExpression("Neon picture \"" + path + "\" is ignored: " + reason));
        Stage stage(29, QSize(8, 8), path);
        stage.Ticks(3);
        QCOMPARE(Torv::SwapCount(stage.test.session, 0), 0);
    }
};

QTEST_GUILESS_MAIN(tst_neon)
#include "tst_neon.moc"
