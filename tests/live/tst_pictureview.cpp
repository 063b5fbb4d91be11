#include "seenin.h"

#include <QPainter>
#include <QScreen>
#include <QtTest>

using namespace AnimText;

namespace {

/** Every pixel another color; the left half of an ARGB picture lets something through. */
QImage Sample(QSize size, QImage::Format format)
{
    QImage picture(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y,
                             qRgba(x * 7 % 256, y * 5 % 256, x * y % 256,
                                   x < size.width() / 2 ? x * 3 % 256 : 255));
    }
    return picture.convertToFormat(format);
}

class FramedView : public live::PictureView
{
public:
    QRectF frame;

protected:
    void PaintOverlay(QPainter* painter) override
    {
        painter->fillRect(ToWidget().mapRect(frame), Qt::red);
    }
};

} // namespace

class TestPictureView : public QObject
{
    Q_OBJECT

private slots:
    void showsEveryPixel_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("zoom");
        QTest::addColumn<QSize>("window");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QPoint>("corner");
        const auto row = [](const char* name, QImage::Format format, int zoom, QSize window,
                            double scale, QPoint corner) {
            QTest::newRow(name) << int(format) << zoom << window << scale << corner;
        };
        const QImage::Format opaque = QImage::Format_RGB888;
        const QImage::Format alpha = QImage::Format_ARGB32;
        row("one to one", opaque, 1, {100, 31}, 1, {18, 7});
        row("zoomed", alpha, 3, {200, 60}, 3, {4, 4});
        row("fit by width", opaque, 0, {191, 90}, 2, {31, 28});
        row("fit by height", alpha, 0, {900, 67}, 3, {354, 8});
        row("larger than the window", opaque, 5, {100, 40}, 5, {0, 0});
        row("too large to fit", alpha, 0, {32, 30}, 0.5, {0, 10});
    }

    void showsEveryPixel()
    {
        QFETCH(int, format);
        QFETCH(int, zoom);
        QFETCH(QSize, window);
        QFETCH(double, scale);
        QFETCH(QPoint, corner);
        const QImage picture = Sample({64, 17}, QImage::Format(format));
        FramedView view;
        view.frame = QRect(5, 2, 1, 1);
        view.resize(window);
        view.SetZoom(zoom);
        view.SetPicture(picture);
        QCOMPARE(view.Scale(), scale);
        QCOMPARE(view.ToWidget().map(QPointF(0, 0)).toPoint(), corner);
        QCOMPARE(view.PixelAt(view.ToWidget().map(QPointF(63.5, 16.5))), QPoint(63, 16));
        QCOMPARE(view.PixelAt(view.ToWidget().map(QPointF(-0.5, 17.5))), QPoint(-1, 17));
        const QImage screen = view.grab().toImage();
        QImage black(picture.size(), QImage::Format_RGB32);
        black.fill(Qt::black);
        QPainter(&black).drawImage(0, 0, picture);
        for (int y = 0; y < screen.height() && scale >= 1; ++y) {
            for (int x = 0; x < screen.width(); ++x) {
                const QPoint at = view.PixelAt({x + 0.5, y + 0.5});
                const QRgb outside = qRgb(0x50, 0x50, 0x50);
                QRgb expected = picture.rect().contains(at) ? black.pixel(at) : outside;
                if (at == QPoint(5, 2))
                    expected = qRgb(255, 0, 0);
                if (screen.pixel(x, y) != expected)
                    QFAIL(qPrintable(QStringLiteral("pixel %1, %2").arg(x).arg(y)));
            }
        }
    }

    /** A lamp is bright in its middle, dark at its corners, and a plain pixel when it is small. */
    void lightsLamps()
    {
        QImage picture(2, 1, QImage::Format_RGB32);
        picture.fill(qRgb(200, 100, 0));
        picture.setPixel(1, 0, qRgb(0, 0, 0));
        live::PictureView view;
        view.SetPicture(picture);
        view.SetPitch(1.25);
        view.resize(40, 20);
        const QImage lamps = view.grab().toImage();
        QCOMPARE(lamps.pixel(10, 10), qRgb(200, 100, 0));
        QCOMPARE(lamps.pixel(0, 0), qRgb(0, 0, 0));
        QVERIFY(qRed(lamps.pixel(16, 10)) < 160 && qRed(lamps.pixel(16, 10)) > 90);
        QCOMPARE(lamps.pixel(30, 10), qRgb(0, 0, 0));
        view.resize(7, 20); // a scale of 3
        QCOMPARE(SeenIn(&view), picture);
    }

    /** A new picture of the same kind is seen at once, wherever it differs. */
    void repaintsWhatChanges()
    {
        QImage picture = Sample({64, 17}, QImage::Format_ARGB32);
        live::PictureView view;
        view.resize(130, 40);
        view.SetPicture(picture);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        for (int y : {0, 16, 8}) {
            picture.setPixel(63, y, qRgb(1, 2, 3));
            view.SetPicture(picture);
            QCoreApplication::processEvents();
            const QImage screen = view.screen()->grabWindow(view.winId()).toImage();
            const QPoint corner = view.ToWidget().map(QPoint(63, y));
            QCOMPARE(screen.pixel(corner), qRgb(1, 2, 3));
            QCOMPARE(screen.pixel(corner + QPoint(1, 1)), qRgb(1, 2, 3));
        }
        view.SetCheckered(true);
        QVERIFY(qRed(SeenIn(&view).pixel(0, 0)) > 100);
        QCOMPARE(SeenIn(&view).pixel(63, 16), qRgb(1, 2, 3));
        view.SetDimmed(true);
        QVERIFY(SeenIn(&view).pixel(63, 16) != qRgb(1, 2, 3));
        QCOMPARE(view.Picture(), picture);
        view.SetZoom(7);
        QCOMPARE(view.minimumSizeHint(), QSize(64 * 7, 17 * 7));
    }
};

QTEST_MAIN(TestPictureView)
#include "tst_pictureview.moc"
