// What a display shows: placement, stacking, blending, the colour key and scrolling.

#include "testsession.h"

#include <QtTest>

#include <climits>
#include <random>

namespace {

qint64 ClockTime(void* context)
{
    return *static_cast<qint64*>(context);
}

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

Effect Scroll(int code, int duration)
{
    return {code, duration, code, INT_MAX, code, 0};
}

} // namespace

class tst_compose : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        Torv::SetClock(nullptr, nullptr);
        QCOMPARE(Torv::Accounts().liveSessions, 0);
    }

    void placement_data()
    {
        QTest::addColumn<QRect>("area");
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QRect>("expected");
        QTest::newRow("inside") << QRect(2, 1, 5, 3) << QSize(5, 3) << QRect(2, 1, 5, 3);
        QTest::newRow("small picture") << QRect(2, 1, 5, 3) << QSize(2, 2) << QRect(2, 1, 2, 2);
        QTest::newRow("picture clipped to the area")
            << QRect(2, 1, 5, 3) << QSize(9, 9) << QRect(2, 1, 5, 3);
        QTest::newRow("over the right and lower edge")
            << QRect(14, 8, 5, 5) << QSize(5, 5) << QRect(14, 8, 2, 2);
        QTest::newRow("over the left and upper edge")
            << QRect(-3, -2, 5, 5) << QSize(5, 5) << QRect(0, 0, 2, 3);
        QTest::newRow("beside") << QRect(16, 0, 5, 5) << QSize(5, 5) << QRect();
        QTest::newRow("far away") << QRect(QPoint(INT_MAX - 5, INT_MAX - 5), QSize(5, 5))
                                  << QSize(5, 5) << QRect();
        QTest::newRow("far away on the other side")
            << QRect(QPoint(INT_MIN, 0), QSize(5, 5)) << QSize(5, 5) << QRect();
        QTest::newRow("no area") << QRect(2, 1, 0, 3) << QSize(5, 3) << QRect();
        QTest::newRow("negative area") << QRect(2, 1, -4, -4) << QSize(5, 3) << QRect();
    }

    void placement()
    {
        QFETCH(QRect, area);
        QFETCH(QSize, picture);
        const Torv::Display display(QSize(16, 10));
        for (const int type : {3, 5}) {
            const PicSession session =
                Create(type, SolidImage(type, picture.width(), picture.height(), 0xFFFFFFFF), area);
            AddPictureSession(display.Handle(), session, 0);
            QTEST(Painted(display.Compose(0)), "expected");
            FreePictureSession(session);
        }
    }

    void stacking_data()
    {
        QTest::addColumn<QVector<int>>("blend"); // of layers 0, 1, 2
        QTest::addColumn<QVector<int>>("order"); // from the lowest to the highest
        const auto row = [](const char* name, QVector<int> blend, QVector<int> order) {
            QTest::newRow(name) << blend << order;
        };
        row("untouched: by index", {}, {0, 1, 2});
        row("scrolled text over neon", {2, 0}, {1, 0});
        row("scrolled text over dazzle", {1, 2}, {1, 0});
        row("scrolled text over dazzle over neon", {1, 0, 2}, {1, 2, 0});
        row("text over neon", {0, 2}, {0, 1});
        row("text over dazzle over neon", {0, 1, 2}, {0, 2, 1});
        row("equals by index", {2, 2, 2}, {0, 1, 2});
    }

    void stacking()
    {
        QFETCH(QVector<int>, blend);
        QFETCH(QVector<int>, order);
        TestSession test(3, QSize(3, 1), 0);
        test.Append();
        test.Append();
        for (int layer = 0; layer < blend.size(); ++layer)
            SetPicLayerBlend(test.display.Handle(), test.session, layer, blend[layer]);
        // The layer at place k is opaque from pixel k on, so every pixel shows another layer.
        for (int place = 0; place < order.size(); ++place) {
            QImage picture = SolidImage(3, 3, 1, 0);
            for (int x = place; x < 3; ++x)
                picture.setPixel(x, 0, 0xFF000000 | unsigned(order[place] + 1));
            test.Show(order[place], picture);
        }
        const QImage shown = test.display.Compose(0);
        for (int x = 0; x < order.size(); ++x)
            QCOMPARE(shown.pixel(x, 0), 0xFF000000 | unsigned(order[x] + 1));
    }

    void blending_data()
    {
        QTest::addColumn<QRgb>("lower");
        QTest::addColumn<QRgb>("upper");
        QTest::addColumn<QRgb>("expected");
        QTest::newRow("alone: exact") << 0u << 0x03F10755u << 0x03F10755u;
        QTest::newRow("nothing above") << 0x40123456u << 0x00FFFFFFu << 0x40123456u;
        QTest::newRow("opaque above") << 0x40123456u << 0xFF654321u << 0xFF654321u;
        QTest::newRow("half over opaque") << 0xFF0000FFu << 0x80FF0000u << 0xFF80007Fu;
        QTest::newRow("half over half") << 0x800000FFu << 0x80FF0000u << 0xC0AA0055u;
    }

    void blending()
    {
        QFETCH(QRgb, lower);
        QFETCH(QRgb, upper);
        TestSession test(3, QSize(1, 1), 0);
        test.Append();
        test.Show(0, SolidImage(3, 1, 1, lower));
        test.Show(1, SolidImage(3, 1, 1, upper));
        QTEST(test.display.Compose(0).pixel(0, 0), "expected");
    }

    void colourKey()
    {
        TestSession test(5, QSize(4, 1), 0xFF0000FF);
        test.Append();
        QImage text = SolidImage(5, 4, 1, 0xFF00FF00);
        text.setPixel(0, 0, 0xFF010201); // the key
        text.setPixel(1, 0, 0xFF000000); // black, transparent above the lowest layer
        text.setPixel(2, 0, 0xFF010202); // nearly the key
        test.Show(1, text);
        QImage shown = test.display.Compose(0);
        QCOMPARE(shown.pixel(0, 0), 0xFF0000FFu);
        QCOMPARE(shown.pixel(1, 0), 0xFF0000FFu);
        QCOMPARE(shown.pixel(2, 0), 0xFF010202u);
        QCOMPARE(shown.pixel(3, 0), 0xFF00FF00u);

        // As the lowest layer its black is seen, its key still is not.
        SetPicLayerBlend(test.display.Handle(), test.session, 0, 1);
        test.Show(0, SolidImage(5, 4, 1, 0xFF010201));
        shown = test.display.Compose(0);
        QCOMPARE(shown.pixel(0, 0), 0u);
        QCOMPARE(shown.pixel(1, 0), 0xFF000000u);
    }

    void alphaLayersHaveNoColourKey()
    {
        const TestSession test(3, QSize(1, 1), 0xFF010201);
        QCOMPARE(test.display.Compose(0).pixel(0, 0), 0xFF010201u);
    }

    void sessionsStackInTheOrderTheyWereShown()
    {
        const Torv::Display display(QSize(4, 1));
        const PicSession lower = Create(5, SolidImage(5, 3, 1, 0xFFFF0000), QRect(0, 0, 3, 1));
        const PicSession upper = Create(3, SolidImage(3, 3, 1, 0xFF0000FF), QRect(1, 0, 3, 1));
        AddPictureSession(display.Handle(), lower, 0);
        AddPictureSession(display.Handle(), upper, 0);
        QCOMPARE(display.Sessions(), QList<PicSession>() << lower << upper);
        QCOMPARE(display.Compose(0).pixel(1, 0), 0xFF0000FFu);
        RemovePictureSession(display.Handle(), lower);
        AddPictureSession(display.Handle(), lower, 0);
        QCOMPARE(display.Compose(0).pixel(1, 0), 0xFFFF0000u);
        QCOMPARE(Torv::SessionArea(upper), QRect(1, 0, 3, 1));
        FreePictureSession(lower);
        FreePictureSession(upper);
    }

    void scrolling_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("duration");
        QTest::addColumn<qint64>("time");
        QTest::addColumn<QRect>("expected"); // of a picture 6 wide in an area 10 wide at x = 2
        const auto row = [](const char* name, int code, int duration, qint64 time, int x,
                            int width) {
            QTest::newRow(name) << code << duration << time
                                << (width > 0 ? QRect(2 + x, 0, width, 1) : QRect());
        };
        row("left: comes in at the right", 26, 1000, 0, 10, 0);
        row("left: just before the first pixel", 26, 1000, 99, 10, 0);
        row("left: the first pixel", 26, 1000, 100, 9, 1);
        row("left: whole", 26, 1000, 600, 4, 6);
        row("left: at the edge", 26, 1000, 1000, 0, 6);
        row("left: leaving", 26, 1000, 1599, 0, 1);
        row("left: begins again", 26, 1000, 1600, 10, 0);
        row("left: second time round", 26, 1000, 2200, 4, 6);
        row("right: comes in at the left", 27, 1000, 0, 0, 0);
        row("right: the first pixel", 27, 1000, 100, 0, 1);
        row("right: whole", 27, 1000, 600, 0, 6);
        row("right: leaving", 27, 1000, 1500, 9, 1);
        row("right: begins again", 27, 1000, 1600, 0, 0);
        row("before it was shown", 26, 1000, -5000, 10, 0);
        row("no duration: does not move", 26, 0, 5000, 10, 0);
        row("negative duration: does not move", 27, -1000, 5000, 0, 0);
        row("another code: stands", 25, 1000, 5000, 0, 6);
    }

    void scrolling()
    {
        QFETCH(int, code);
        QFETCH(int, duration);
        QFETCH(qint64, time);
        qint64 now = 12345;
        Torv::SetClock(ClockTime, &now);
        const Torv::Display display(QSize(20, 1));
        const PicSession session =
            Create(3, SolidImage(3, 6, 1, 0xFFFFFFFF), QRect(2, 0, 10, 1), Scroll(code, duration));
        now = 777; // only the time at which it is shown counts
        AddPictureSession(display.Handle(), session, 0);
        QTEST(Painted(display.Compose(777 + time)), "expected");
        FreePictureSession(session);
    }

    void scrollingKeepsExactForHugeTimes()
    {
        std::mt19937_64 random(1);
        const auto upTo = [&random](qint64 limit) { return qint64(random() % quint64(limit)) + 1; };
        for (int i = 0; i < 500; ++i) {
            const int width = int(upTo(200));
            const int length = int(upTo(200));
            const int duration = int(upTo(i % 2 ? INT_MAX : 20));
            const qint64 time = upTo(qint64(1) << (i % 63));
            const int moved = int(__int128(time) * width / duration % (width + length));
            const int left = width - moved;

            const Torv::Display display(QSize(width, 1));
            const PicSession session = Create(3, SolidImage(3, length, 1, 0xFFFFFFFF),
                                              QRect(0, 0, width, 1), Scroll(26, duration));
            AddPictureSession(display.Handle(), session, 0);
            QCOMPARE(Painted(display.Compose(time)),
                     QRect(left, 0, length, 1) & QRect(0, 0, width, 1));
            FreePictureSession(session);
        }
    }

    void appendedLayersStandStill()
    {
        const Torv::Display display(QSize(4, 1));
        const PicSession session =
            Create(3, SolidImage(3, 1, 1, 0xFFFFFFFF), QRect(0, 0, 4, 1), Scroll(26, 400));
        AddPictureSession(display.Handle(), session, 0);
        QCOMPARE(PicAppendImageLayer(display.Handle(), session, 2, 1, 8, AlphaWord), 1);
        const QImage blue = SolidImage(3, 2, 1, 0x800000FF);
        memcpy(GetPicImageLayerPtr(display.Handle(), session, 1, 5), blue.constBits(), 8);
        QCOMPARE(Painted(display.Compose(0)), QRect(0, 0, 2, 1));
        QCOMPARE(Painted(display.Compose(100)), QRect(0, 0, 4, 1)); // the base's pixel is at x = 3
        FreePictureSession(session);
    }

    void effectDuration_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("speedIndex");
        QTest::addColumn<int>("expected");
        QTest::newRow("slowest setting") << 512 << 26 << -1 << 512 * 66 * 6;
        QTest::newRow("speed 1") << 512 << 26 << 0 << 512 * 66 * 5;
        QTest::newRow("speed 4") << 512 << 27 << 3 << 512 * 66 * 2;
        QTest::newRow("speed 5") << 512 << 27 << 4 << 512 * 66;
        QTest::newRow("speed 7, thirds") << 500 << 26 << 6 << 11000;
        QTest::newRow("truncated") << 100 << 26 << 10 << 942; // 100 / 7 * 66 = 942.86
        QTest::newRow("no length") << 0 << 26 << 0 << 0;
        QTest::newRow("negative length") << -5 << 26 << 0 << 0;
        QTest::newRow("saturated") << INT_MAX << 26 << 0 << INT_MAX;
        QTest::newRow("lowest speed") << INT_MAX << 26 << INT_MIN << INT_MAX;
        QTest::newRow("highest speed") << INT_MAX << 26 << INT_MAX << 66;
        QTest::newRow("no effect") << 512 << 0 << 0 << 0;
        QTest::newRow("other effect") << 512 << 28 << 0 << 0;
    }

    void effectDuration()
    {
        QFETCH(int, length);
        QFETCH(int, code);
        QFETCH(int, speedIndex);
        QTEST(GeteffectDuration(length, 64, code, speedIndex), "expected");
    }
};

QTEST_GUILESS_MAIN(tst_compose)
#include "tst_compose.moc"
