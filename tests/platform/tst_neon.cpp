// The neon animator: where it paints, when it moves, and what it looks like.

#include "table.h"
#include "testsession.h"

#include "drawneonbg.h"
#include "hneonnodebase.h"
#include "hpluginmanager.h"

#include <memory>

using namespace Lw;

namespace {

/** A node with an animator that has been given the base layer of a session. */
class Stage
{
public:
    explicit Stage(int style, QSize size = QSize(96, 48), const QString& film = QString())
        : test(HPluginManager::instance()->SuportAlphaBlend(nullptr) ? 3 : 5, size, 0)
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
        neon.displayHandle = test.on;
        neon.layer = layer;
    }

    /** What the layer shows after one more tick of the animator's timer. */
    QList<QImage> Ticks(int count)
    {
        QList<QImage> pictures;
        for (int i = 0; i < count; ++i) {
            QMetaObject::invokeMethod(&neon, "DrawNext");
            pictures << test.Front(qMax(0, neon.layer));
        }
        return pictures;
    }
    QImage Tick() { return Ticks(1).first(); }
    bool IsTimerActive() const { return neon.findChild<QTimer*>()->isActive(); }

    TestSession test;
    std::unique_ptr<HNeonNodeBase> node;
    DrawNeonBg neon;
};

struct GifPicture
{
    char color; ///< 'r', 'g', 'b' or '-' for transparent
    int delay;  ///< hundredths of a second
};

/** A GIF file of pictures of one pixel, whatever it says of their size. */
QByteArray Gif(const QVector<GifPicture>& pictures, const QByteArray& size = "01000100")
{
    QByteArray hex = "474946383961" + size + "810000000000ff000000ff000000ff";
    for (const GifPicture& picture : pictures) {
        hex += "21f90409" + QByteArray::number(picture.delay, 16).rightJustified(2, '0') + "000000";
        // Clear, the color, end; three bits each.
        const int color = QByteArray("-rgb").indexOf(picture.color);
        hex += "2c00000000" + size + "000202" + QByteArray::number(0x44 + 8 * color, 16) + "0100";
    }
    return QByteArray::fromHex(hex + "3b");
}

} // namespace

class TestNeon : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        HPluginManager::instance()->SetAlphaBlend(true);
        QCOMPARE(Torv::Accounts().Misuses(), 0);
        QCOMPARE(Torv::Accounts().liveSessions, 0);
    }

    void stylesMoveShineAndDiffer_data()
    {
        QTest::addColumn<int>("style");
        for (int style = 1; style <= 28; ++style)
            QTest::addRow("style %d", style) << style;
    }

    /** Each is new, moves, shines and leaves room for text; both formats show the same light. */
    void stylesMoveShineAndDiffer()
    {
        QFETCH(int, style);
        const QSize size(121, 60); // rows of 24 bits need padding
        const QList<QImage> alpha = Stage(style, size).Ticks(30);
        HPluginManager::instance()->SetAlphaBlend(false);
        const QList<QImage> solid = Stage(style, size).Ticks(30);
        // The band is 6 pixels thick; its corners are round and reach further in.
        const QRect wide(6, 18, 109, 24);
        const QRect high(18, 6, 85, 48);
        if (style == 5) // one color all round
            QVERIFY(qAlpha(alpha[16].pixel(6, 6)) > 200);
        QByteArray play;
        int changes = 0;
        int brightest = 0;
        for (int i = 0; i < alpha.size(); ++i) {
            play.append(reinterpret_cast<const char*>(alpha[i].constBits()),
                        int(alpha[i].sizeInBytes()));
            changes += i > 0 && alpha[i] != alpha[i - 1];
            for (int n = 0; n < 121 * 60; ++n) {
                const QPoint at(n % 121, n / 121);
                const QRgb light = alpha[i].pixel(at);
                const QRgb opaque = solid[i].pixel(at);
                brightest = qMax(brightest, qAlpha(light));
                QVERIFY(light == 0 || !(wide.contains(at) || high.contains(at)));
                QVERIFY(qAbs(qRed(light) * qAlpha(light) / 255 - qRed(opaque)) <= 2);
                QVERIFY(qAbs(qGreen(light) * qAlpha(light) / 255 - qGreen(opaque)) <= 2);
                QVERIFY(qAbs(qBlue(light) * qAlpha(light) / 255 - qBlue(opaque)) <= 2);
            }
        }
        QVERIFY2(changes > 12, qPrintable(QString::number(changes)));
        QVERIFY2(brightest > 200, qPrintable(QString::number(brightest)));
        const int look = (style - 1) % 8; // the numbers share eight
        QVERIFY2(plays.value(look, play) == play, "another number of this look differs");
        QVERIFY2(plays.key(play, look) == look, "it looks like another");
        plays.insert(look, play);
    }

    void motionCountsTicksOnly()
    {
        Stage stage(4);
        const QList<QImage> play = Stage(4).Ticks(6);
        QCOMPARE(stage.Ticks(3), play.mid(0, 3));
        stage.neon.StartTimerDraw(66);
        QVERIFY(stage.IsTimerActive());
        stage.neon.StopTimerDraw();
        QVERIFY(!stage.IsTimerActive());
        QCOMPARE(stage.Ticks(3), play.mid(3));
        stage.neon.InitNode(stage.node.get());
        QCOMPARE(stage.Ticks(6), play);
        stage.node.reset(); // deleted by its owner in mid-play
        stage.neon.StartTimerDraw(66);
        QVERIFY(!stage.IsTimerActive());
        QCOMPARE(stage.Tick(), play.last());
    }

    void areasOfAnySizeAreSafe()
    {
        for (const QSize size : {QSize(1, 1), QSize(1, 60), QSize(61, 2), QSize(2, 3)}) {
            for (const bool alpha : {true, false}) {
                HPluginManager::instance()->SetAlphaBlend(alpha);
                for (const int style : {-1, 1, 2, 3, 4, 5, 6, 7, 28})
                    QCOMPARE(Stage(style, size).Ticks(3).last().size(), size);
            }
        }
        HPluginManager::instance()->SetAlphaBlend(true);
        Stage stage(1);
        for (const QSize size : {QSize(0, 5), QSize(-1, 5), QSize(5, INT_MIN),
                                 QSize(INT_MAX, INT_MAX), QSize(1 << 14, (1 << 12) + 1)}) {
            stage.node->SetSize(size);
            stage.neon.InitNode(stage.node.get());
            QVERIFY(stage.neon.Image().isNull());
            QCOMPARE(stage.Tick(), stage.test.image);
        }
    }

    void paintsOnlyWithSomewhereToPaint()
    {
        Stage stage(1);
        stage.neon.displayHandle = 0;
        QCOMPARE(stage.Tick(), stage.test.image);
        stage.Give(-1);
        QCOMPARE(stage.Tick(), stage.test.image);
        stage.Give(stage.test.Append());
        QVERIFY(stage.Tick() != stage.test.image);
        QCOMPARE(stage.test.Front(0), stage.test.image);
    }

    void filmsKeepTheirTimes_data()
    {
        // shown: the color at each tick of 66 ms
        // reason: why nothing is shown, printed once
        const Table<QByteArray, QString, QString> row("film", "shown", "reason");
        row("each for its time", Gif({{'r', 10}, {'g', 20}}), "rrgggrrgggrggg", "");
        row("faster than the ticks", Gif({{'r', 3}, {'g', 3}, {'b', 3}}), "rbgrb", "");
        row("next to no delay is 100 ms", Gif({{'r', 1}, {'g', 0}}), "rrggr", "");
        row("transparent hides the one before", Gif({{'r', 10}, {'-', 10}}), "rr--r", "");
        row("a still picture stays", Gif({{'b', 1}}), "bbbbb", "");
        row("missing", QByteArray(), "---", "no such file");
        row("cut short", Gif({}).left(13), "---", "expected a picture");
        row("9000 x 9000 pixels", Gif({{'r', 10}}, "28232823"), "---",
            "expected a picture of at most 64 megapixels");
    }

    void filmsKeepTheirTimes()
    {
        QFETCH(QByteArray, film);
        QFETCH(QString, shown);
        QFETCH(QString, reason);
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(film) == film.size() && file.flush());
        const QString path = film.isEmpty() ? QString("/nonexistent") : file.fileName();
        if (!reason.isEmpty())
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression(path + "\" is ignored: " + reason));
        Stage stage(29, QSize(40, 20), path);
        QString colors;
        for (const QImage& picture : stage.Ticks(shown.size())) {
            const QRgb color = picture.pixel(20, 10);
            colors += qRed(color) ? 'r' : qGreen(color) ? 'g' : qBlue(color) ? 'b' : '-';
        }
        QCOMPARE(colors, shown);
        QCOMPARE(Torv::SwapCount(stage.test.session, 0) == 0, !reason.isEmpty());
    }

private:
    QHash<int, QByteArray> plays;
};

QTEST_GUILESS_MAIN(TestNeon)
#include "tst_neon.moc"
