#include "pages.h"
#include "placement.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QRawFont>
#include <QTextLayout>
#include <QtTest>

#include <numeric>

using namespace AnimText;

namespace {

const QString arabic = QStringLiteral("السلام عليكم ورحمة الله وبركاته");
const QString mixed = QStringLiteral("Hello שלום עולם, 12 ابجد (xyz)!");

QFont Font(int pixels)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    return font;
}

int Sum(const QVector<int>& values)
{
    return std::accumulate(values.begin(), values.end(), 0);
}

/** The units from @p begin to @p end at rest on a page, in one path as the engine collects them. */
QPainterPath AtRest(const PlacedText& text, int begin, int end)
{
    QPainterPath all;
    int x = 0;
    for (int i = begin; i < end; ++i) {
        all.addPath(text.outlines[i].translated(x, 0));
        x += text.widths[i];
    }
    return all;
}

/** The line as the toolkit itself sets it; the baseline at 0. */
QPainterPath ByLayout(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(100000);
    layout.endLayout();
    QPainterPath all;
    all.setFillRule(Qt::WindingFill);
    for (const QGlyphRun& run : line.glyphRuns()) {
        for (int i = 0; i < run.glyphIndexes().size(); ++i)
            all.addPath(run.rawFont()
                            .pathForGlyph(run.glyphIndexes().at(i))
                            .translated(run.positions().at(i) - QPointF(0, line.ascent())));
    }
    return all;
}

QImage Painted(const QPainterPath& path, int width)
{
    QImage image(width + 40, 300, QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.translate(20, 150);
    painter.fillPath(path, Qt::white);
    return image;
}

/** Painted pixels of @p a that have no painted pixel of @p b within @p reach pixels. */
int Strays(const QImage& a, const QImage& b, int reach)
{
    int strays = 0;
    for (int y = reach; y < a.height() - reach; ++y) {
        for (int x = reach; x < a.width() - reach; ++x) {
            bool found = a.constScanLine(y)[x] == 0;
            for (int v = -reach; v <= reach && !found; ++v) {
                for (int u = -reach; u <= reach && !found; ++u)
                    found = b.constScanLine(y + v)[x + u] != 0;
            }
            strays += found ? 0 : 1;
        }
    }
    return strays;
}

} // namespace

class ShapingTest : public QObject
{
    Q_OBJECT

private slots:
    void clusters_data();
    void clusters();
    void line_data();
    void line();
    void longLineIsCutNowhere();
    void pagesReadFromRightToLeft();
    void columnStandsInItsOwnPlaces();
    void underlineHasNoGap();
    void unseenCharactersAreTold();
    void pagesHoldEverything();
};

void ShapingTest::clusters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("firsts");

    QTest::newRow("letters") << QStringLiteral("ab c") << QVector<int>{0, 1, 2, 3};
    QTest::newRow("ligature") << QStringLiteral("afix") << QVector<int>{0, 1, 3};
    QTest::newRow("accents") << QStringLiteral("e\u0301q\u0323\u0302x") << QVector<int>{0, 2, 5};
    QTest::newRow("surrogates") << QStringLiteral("a😀b") << QVector<int>{0, 1, 3};
    QTest::newRow("joined letters") << QStringLiteral("سلام") << QVector<int>{0, 1, 3};
    QTest::newRow("vowel marks") << QStringLiteral("بَبِ") << QVector<int>{0, 2};
    QTest::newRow("joiner") << QStringLiteral("a\u200Db") << QVector<int>{0, 2};
}

void ShapingTest::clusters()
{
    QFETCH(QString, text);
    QFETCH(QVector<int>, firsts);
    const PlacedText placed = PlaceText(ShapeLine(text, Font(40)), Arrangement::Line, 0, Bar());
    QCOMPARE(placed.outlines.size(), text.size());
    QCOMPARE(placed.descents.size(), text.size());
    for (int i = 0; i < text.size(); ++i) {
        const bool isFirst = firsts.contains(i);
        QCOMPARE(placed.widths[i] > 0, isFirst);
        QCOMPARE(placed.heights[i] > 0, isFirst);
        QCOMPARE(!placed.outlines[i].isEmpty(), isFirst && !text.at(i).isSpace());
    }
}

void ShapingTest::line_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("pixels");
    for (int pixels : {13, 31, 100}) {
        const auto row = [pixels](const char* name, const QString& text) {
            QTest::addRow("%s at %d", name, pixels) << text << pixels;
        };
        row("kerning", QStringLiteral("AVATAR To. Ty"));
        row("ligatures", QStringLiteral("fit flow"));
        row("accents", QStringLiteral("Ångström e\u0301"));
        row("joined", arabic);
        row("both directions", mixed);
        row("from the right", QStringLiteral("ابجد abc 123 هوز"));
        row("struck through", QStringLiteral("H\u0337x\u0336o\u0338"));
    }
}

// The line looks as the toolkit sets it, give or take the half pixel to a whole place, and nothing
// of it is lost where outlines overlap.
void ShapingTest::line()
{
    QFETCH(QString, text);
    QFETCH(int, pixels);
    const QFont font = Font(pixels);
    const PlacedText placed = PlaceText(ShapeLine(text, font), Arrangement::Line, 0, Bar());
    const int width = Sum(placed.widths);
    QCOMPARE(width, qRound(QFontMetricsF(font).horizontalAdvance(text)));

    QPainterPath rest = AtRest(placed, 0, text.size());
    const QImage shown = Painted(rest, width);
    const QImage wanted = Painted(ByLayout(text, font), width);
    QCOMPARE(Strays(shown, wanted, 1), 0);
    QCOMPARE(Strays(wanted, shown, 1), 0);
    rest.setFillRule(Qt::WindingFill);
    const int holes = Strays(Painted(rest, width), shown, 0);
    QVERIFY2(holes <= text.size(), qPrintable(QString::number(holes)));
}

// Glyphs are asked for in short pieces; the pieces must not show.
void ShapingTest::longLineIsCutNowhere()
{
    QString text;
    while (text.size() < 700)
        text += QStringLiteral("office fjord AVATAR ") + mixed + QLatin1Char(' ') + arabic;
    const QFont font = Font(20);
    const ShapedLine line = ShapeLine(text, font);
    const PlacedText placed = PlaceText(line, Arrangement::Line, 0, Bar());
    const int width = Sum(placed.widths);
    QCOMPARE(width, qRound(QFontMetricsF(font).horizontalAdvance(text)));
    const QImage shown = Painted(AtRest(placed, 0, text.size()), width);
    const QImage wanted = Painted(ByLayout(text, font), width);
    QCOMPARE(Strays(shown, wanted, 1), 0);
    QCOMPARE(Strays(wanted, shown, 1), 0);

    QVector<int> order = line.visualOrder;
    std::sort(order.begin(), order.end());
    for (int i = 0; i < order.size(); ++i)
        QCOMPARE(order[i], i);
}

void ShapingTest::pagesReadFromRightToLeft()
{
    const int areaWidth = 260;
    const ShapedLine line = ShapeLine(arabic, Font(40));
    for (Arrangement arrangement : {Arrangement::Pages, Arrangement::PagesFromEnd}) {
        const PlacedText placed = PlaceText(line, arrangement, areaWidth, Bar());
        const QVector<int> starts = arrangement == Arrangement::Pages
                                        ? PagesFromBeginning(placed.widths, areaWidth)
                                        : PagesFromEnd(placed.widths, areaWidth);
        QVERIFY(starts.size() > 2);
        for (int p = 0; p + 1 < starts.size(); ++p) {
            const int pageWidth = Sum(placed.widths.mid(starts[p], starts[p + 1] - starts[p]));
            int right = pageWidth;
            int x = 0;
            for (const Cluster& cluster : line.clusters) {
                if (cluster.first < starts[p] || cluster.first >= starts[p + 1])
                    continue;
                // Each next letter stands to the left of all that were read before it.
                right -= placed.widths[cluster.first];
                const QRectF seen = placed.outlines[cluster.first].translated(x, 0).boundingRect();
                if (!seen.isEmpty())
                    QVERIFY(qAbs(seen.center().x() -
                                 (right + cluster.shape.boundingRect().center().x())) < 3);
                x += placed.widths[cluster.first];
            }
            QCOMPARE(right, 0);
        }
    }
}

void ShapingTest::columnStandsInItsOwnPlaces()
{
    const ShapedLine line = ShapeLine(QStringLiteral("fi ") + arabic, Font(40));
    const PlacedText placed = PlaceText(line, Arrangement::Column, 100, Bar());
    for (const Cluster& cluster : line.clusters)
        QCOMPARE(placed.outlines[cluster.first], cluster.shape);
    QCOMPARE(Sum(placed.heights), line.clusters.size() * (line.ascent + line.descent));
}

void ShapingTest::underlineHasNoGap()
{
    const QString text = QStringLiteral("gy fi ") + arabic;
    const PlacedText placed = PlaceText(ShapeLine(text, Font(60)), Arrangement::Line, 0, Bar{5, 3});
    const int width = Sum(placed.widths);
    const QImage shown = Painted(AtRest(placed, 0, text.size()), width);
    for (int y : {155, 156, 157}) {
        for (int x = 0; x < width; ++x)
            QVERIFY2(shown.constScanLine(y)[20 + x] != 0, qPrintable(QString::number(x)));
    }
}

void ShapingTest::unseenCharactersAreTold()
{
    // U+E123 is for private use; no font of the test machine may have it.
    const QString text = QStringLiteral("a \u200D\u00A0\uE123b");
    const QList<UnseenCharacter> unseen = UnseenCharacters(text, ShapeLine(text, Font(40)));
    QCOMPARE(unseen.size(), 1);
    QCOMPARE(unseen[0].index, 4);
    QCOMPARE(unseen[0].codePoint, 0xE123u);
    QVERIFY(unseen[0].missing);
}

void ShapingTest::pagesHoldEverything()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        QVector<int> widths(random.bounded(1, 40));
        for (int& width : widths)
            width = random.bounded(4) == 0 ? 0 : random.bounded(1, 60);
        const int areaWidth = random.bounded(1, 120);
        const QVector<int> forward = PagesFromBeginning(widths, areaWidth);
        const QVector<int> backward = PagesFromEnd(widths, areaWidth);
        QCOMPARE(forward.size(), backward.size());
        for (const QVector<int>& starts : {forward, backward}) {
            QCOMPARE(starts.first(), 0);
            QCOMPARE(starts.last(), widths.size());
            for (int p = 0; p + 1 < starts.size(); ++p) {
                const QVector<int> page = widths.mid(starts[p], starts[p + 1] - starts[p]);
                QVERIFY(!page.isEmpty());
                const int visible =
                    int(std::count_if(page.begin(), page.end(), [](int w) { return w > 0; }));
                QVERIFY(Sum(page) <= areaWidth || visible == 1);
            }
        }
    }
}

QTEST_MAIN(ShapingTest)
#include "tst_shaping.moc"
