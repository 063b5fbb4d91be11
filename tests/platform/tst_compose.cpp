// What a display shows: placement, stacking, blending, the color key and scrolling.

#include "testsession.h"

#include <QtTest>

#include <climits>
#include <random>

namespace {

/** The box of the pixels that are not transparent. */
QRect Painted(const QImage& image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

} // namespace

class TestCompose : public QObject
{
    Q_OBJECT

private slots:
    void areasClipTheirPictures()
    {
        for (const int type : {3, 5}) {
            const auto shown = [type](const QRect& area, QSize picture) {
                const QImage image = SolidImage(type, picture, 0xFFFFFFFF);
                return Painted(TestSession(QSize(16, 10), type, image, area).display.Compose(0));
            };
            const QRect area(2, 1, 5, 3);
            QCOMPARE(shown(area, QSize(2, 2)), QRect(2, 1, 2, 2));
            QCOMPARE(shown(area, QSize(9, 9)), area);
            QCOMPARE(shown(QRect(14, 8, 5, 5), QSize(5, 5)), QRect(14, 8, 2, 2));
            QCOMPARE(shown(QRect(-3, -2, 5, 5), QSize(5, 5)), QRect(0, 0, 2, 3));
            QCOMPARE(shown(QRect(QPoint(INT_MAX - 5, INT_MIN), QSize(5, 5)), QSize(5, 5)), QRect());
            QCOMPARE(shown(QRect(2, 1, -4, -4), QSize(5, 3)), QRect());

            QImage spot = SolidImage(type, QSize(5, 5), 0xFFFFFFFF);
            spot.setPixelColor(3, 2, Qt::blue);
            const TestSession cut(QSize(16, 10), type, spot, QRect(-3, -2, 5, 5));
            QCOMPARE(cut.display.Compose(0).pixelColor(0, 0), QColor(Qt::blue));
        }
    }

    void blendsOrderTheLayers()
    {
        // The blends of layers 0, 1 and 2, and their order from the lowest to the highest.
        const QVector<QPair<QVector<int>, QVector<int>>> cases = {
            {{}, {0, 1, 2}},        // untouched: by index
            {{1, 0, 2}, {1, 2, 0}}, // scrolled text over dazzle over neon
            {{0, 1, 2}, {0, 2, 1}}, // text over dazzle over neon
            {{2, 2, 2}, {0, 1, 2}}};
        for (const auto& [blends, order] : cases) {
            TestSession test(3, QSize(3, 1), 0);
            test.Append();
            test.Append();
            for (int layer = 0; layer < blends.size(); ++layer)
                SetPicLayerBlend(test.on, test.session, layer, blends[layer]);
            // The layer at place k is opaque from pixel k on, so every pixel shows another layer.
            for (int place = 0; place < 3; ++place) {
                QImage picture = SolidImage(3, QSize(3, 1), 0);
                for (int x = place; x < 3; ++x)
                    picture.setPixel(x, 0, 0xFF000000 | unsigned(order[place]));
                test.Paint(order[place], picture);
            }
            for (int x = 0; x < 3; ++x)
                QCOMPARE(test.display.Compose(0).pixel(x, 0), 0xFF000000 | unsigned(order[x]));
        }
    }

    void alphaMixesToTheByte()
    {
        const auto shown = [](QRgb lower, QRgb upper) {
            TestSession test(3, QSize(1, 1), lower);
            test.Append();
            test.Paint(1, SolidImage(3, QSize(1, 1), upper));
            return test.display.Compose(0).pixel(0, 0);
        };
        QCOMPARE(shown(0, 0x03F10755), 0x03F10755u); // alone: exact
        QCOMPARE(shown(0x40123456, 0x00FFFFFF), 0x40123456u);
        QCOMPARE(shown(0x40123456, 0xFF010201), 0xFF010201u); // no color key
        QCOMPARE(shown(0xFF0000FF, 0x80FF0000), 0xFF80007Fu);
        QCOMPARE(shown(0x800000FF, 0x80FF0000), 0xC0AA0055u);
    }

    void keyAndBlackAreTransparent()
    {
        TestSession test(5, QSize(4, 1), 0xFF0000FF);
        test.Append();
        QImage text = SolidImage(5, QSize(4, 1), 0xFF00FF00);
        text.setPixel(0, 0, 0xFF010201); // the key
        text.setPixel(1, 0, 0xFF000000); // black, transparent above the lowest layer
        text.setPixel(2, 0, 0xFF010202); // nearly the key
        test.Paint(1, text);
        const auto shown = [&] {
            const QImage row = test.display.Compose(0);
            return QVector<QRgb>{row.pixel(0, 0), row.pixel(1, 0), row.pixel(2, 0),
                                 row.pixel(3, 0)};
        };
        QCOMPARE(shown(), QVector<QRgb>({0xFF0000FF, 0xFF0000FF, 0xFF010202, 0xFF00FF00}));
        // As the lowest layer its black is seen, its key still is not.
        SetPicLayerBlend(test.on, test.session, 0, 1);
        test.Paint(0, SolidImage(5, QSize(4, 1), 0xFF010201));
        QCOMPARE(shown(), QVector<QRgb>({0, 0xFF000000, 0xFF010202, 0xFF00FF00}));
    }

    void sessionsStackInTheOrderTheyWereShown()
    {
        TestSession lower(5, QSize(3, 1), 0xFFFF0000);
        const PicSession upper = Create(3, SolidImage(3, QSize(3, 1), 0xFF0000FF), {1, 0, 2, 1});
        AddPictureSession(lower.on, upper, 0);
        QCOMPARE(lower.display.Compose(0).pixel(1, 0), 0xFF0000FFu);
        RemovePictureSession(lower.on, lower.session);
        AddPictureSession(lower.on, lower.session, 0);
        QCOMPARE(lower.display.Sessions(), QList<PicSession>() << upper << lower.session);
        QCOMPARE(lower.display.Compose(0).pixel(1, 0), 0xFFFF0000u);
        FreePictureSession(upper);
    }

    void scrollsAreAFunctionOfTime()
    {
        std::mt19937_64 random(1);
        const auto upTo = [&random](qint64 limit) { return qint64(random() % quint64(limit)) + 1; };
        qint64 now = 0;
        Torv::SetClock([](void* context) { return *static_cast<qint64*>(context); }, &now);
        for (int i = 0; i < 1000; ++i) {
            const int code = 25 + i % 3; // 25 does not move
            const int width = int(upTo(200));
            const int length = int(upTo(200));
            const int duration = int(i % 10 < 5 ? upTo(INT_MAX) : upTo(20) - 3);
            const qint64 time = upTo(qint64(1) << (i % 61)) - 1;
            const int moved =
                duration > 0 ? int(__int128(time) * width / duration % (width + length)) : 0;
            const int left = code == 25 ? 0 : code == 26 ? width - moved : moved - length;
            now = i; // only what has passed since it was shown counts
            TestSession test(QSize(width, 1), 3, SolidImage(3, QSize(length, 1), 0xFFFFFFFF),
                             QRect(0, 0, width, 1), {code, duration, code, INT_MAX, code, 0});
            const QRect base = QRect(left, 0, length, 1) & QRect(0, 0, width, 1);
            QCOMPARE(Painted(test.display.Compose(now + time)), base);
            // Appended layers do not move.
            test.Append(2, 1);
            test.Paint(1, SolidImage(3, QSize(2, 1), 0x800000FF));
            QCOMPARE(Painted(test.display.Compose(now + time)),
                     base | QRect(0, 0, qMin(2, width), 1));
        }
        Torv::SetClock(nullptr, nullptr);
    }

    void durationsAreThoseOfAWayAtAPace()
    {
        QCOMPARE(GeteffectDuration(512, 64, 27, 3), 512 * 66 * 2);
        QCOMPARE(GeteffectDuration(100, 64, 26, 10), 942); // 100 / 7 * 66 = 942.86
        QCOMPARE(GeteffectDuration(-5, 64, 26, 0), 0);
        QCOMPARE(GeteffectDuration(INT_MAX, 64, 26, INT_MIN), INT_MAX);
        QCOMPARE(GeteffectDuration(512, 64, 28, 0), 0);
    }
};

QTEST_GUILESS_MAIN(TestCompose)
#include "tst_compose.moc"
