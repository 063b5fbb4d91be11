// A line of text on its way to a node: its units, their outlines and their places.

#include "author/author.h"
#include "author/placement.h"
#include "text/pagedivision.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QtTest>

#include <numeric>

using namespace AnimText;

namespace {

const QString arabic = "السلام عليكم ورحمة الله وبركاته";
const QString mixed = "Hello שלום עולם, 12 ابجد (xyz)!";

QFont Font(int pixels)
{
    QFont font("DejaVu Sans");
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
QPainterPath ByToolkit(const QString& text, const QFont& font)
{
    QPainterPath all;
    all.setFillRule(Qt::WindingFill);
    all.addText(0, 0, font, text);
    return all;
}

/** The pixels that the path covers, and those within @p reach pixels of it. */
QImage Painted(const QPainterPath& path, int width, int reach = 0)
{
    QImage image(width + 40, 300, QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.translate(20, 150);
    painter.fillPath(path, Qt::white);
    if (reach > 0)
        painter.strokePath(path, QPen(Qt::white, 2 * reach));
    return image;
}

/** Painted pixels of @p a that are not painted in @p b. */
int Strays(const QImage& a, const QImage& b)
{
    int strays = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            strays += a.constScanLine(y)[x] != 0 && b.constScanLine(y)[x] == 0;
    }
    return strays;
}

} // namespace

class tst_author : public QObject
{
    Q_OBJECT

private slots:
    void oneLine()
    {
        // The line and the number of notes on it; 0 and nothing when it is refused.
        const auto line = [](QString text) {
            QStringList notes;
            QString error;
            const bool accepted = ToOneLine(&text, &notes, &error);
            return accepted == error.isEmpty()
                       ? (accepted ? text : "") + QString::number(notes.size())
                       : QString("contradiction");
        };
        QCOMPARE(line(" a  b "), QString(" a  b 0"));
        QCOMPARE(line("a\r\n"), QString("a0"));
        QCOMPARE(line("a\r\nb\nc\u2028d\n"), QString("a b c d1"));
        QCOMPARE(line("a\tb\nc"), QString("a b c2"));
        QCOMPARE(line("😀"), QString("😀0"));
        const QString halves[] = {QString(QChar(0xD83D)) + "a", "a" + QString(QChar(0xDE00))};
        for (const QString& refused :
             {QString(), QString(" \n "), QString("a\u0007"), halves[0], halves[1]})
            QCOMPARE(line(refused), QString("0"));
    }

    void clusters()
    {
        const QVector<QPair<QString, QVector<int>>> cases = {{"ab c", {0, 1, 2, 3}},
                                                             {"afix", {0, 1, 3}}, // a ligature
                                                             {"e\u0301q\u0323\u0302x", {0, 2, 5}},
                                                             {"a😀b", {0, 1, 3}},
                                                             {"سلام", {0, 1, 3}},
                                                             {"بَبِ", {0, 2}},
                                                             {"a\u200Db", {0, 2}}};
        for (const auto& [text, firsts] : cases) {
            const PlacedText placed =
                PlaceText(ShapeLine(text, Font(40)), Arrangement::Line, 0, Bar());
            QCOMPARE(placed.descents.size(), text.size());
            for (int i = 0; i < text.size(); ++i) {
                const bool isFirst = firsts.contains(i);
                QCOMPARE(placed.widths[i] > 0, isFirst);
                QCOMPARE(placed.heights[i] > 0, isFirst);
                QCOMPARE(!placed.outlines[i].isEmpty(), isFirst && !text.at(i).isSpace());
            }
        }
    }

    void line_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("pixels");
        for (int pixels : {13, 31, 100}) {
            const auto row = [pixels](const char* name, const QString& text) {
                QTest::addRow("%s at %d", name, pixels) << text << pixels;
            };
            row("kerning", "AVATAR To. Ty");
            row("ligatures", "fit flow");
            row("accents", "Ångström e\u0301");
            row("joined", arabic);
            row("both directions", mixed);
            row("from the right", "ابجد abc 123 هوز");
            row("struck through", "H\u0337x\u0336o\u0338");
        }
        // Glyphs are asked for in short pieces; the pieces must not show.
        const QString part = "office fjord AVATAR " + mixed + " " + arabic;
        QTest::newRow("long") << part.repeated(700 / part.size() + 1) << 20;
    }

    // The line looks as the toolkit sets it, give or take the half pixel to a whole place, and
    // nothing of it is lost where outlines overlap.
    void line()
    {
        QFETCH(QString, text);
        QFETCH(int, pixels);
        const QFont font = Font(pixels);
        const PlacedText placed = PlaceText(ShapeLine(text, font), Arrangement::Line, 0, Bar());
        const int width = Sum(placed.widths);
        QCOMPARE(width, qRound(QFontMetricsF(font).horizontalAdvance(text)));

        QPainterPath rest = AtRest(placed, 0, text.size());
        const QPainterPath wanted = ByToolkit(text, font);
        const QImage shown = Painted(rest, width);
        QCOMPARE(Strays(shown, Painted(wanted, width, 1)), 0);
        QCOMPARE(Strays(Painted(wanted, width), Painted(rest, width, 1)), 0);
        rest.setFillRule(Qt::WindingFill);
        const int holes = Strays(Painted(rest, width), shown);
        QVERIFY2(holes <= text.size(), qPrintable(QString::number(holes)));
    }

    void pagesReadFromRightToLeft()
    {
        const ShapedLine line = ShapeLine(arabic, Font(40));
        for (Arrangement arrangement : {Arrangement::Pages, Arrangement::PagesFromEnd}) {
            const PlacedText placed = PlaceText(line, arrangement, 260, Bar());
            const QVector<int> starts = arrangement == Arrangement::Pages
                                            ? Lw::HNodeAnimationText::PageStartsForward(placed.widths, 260)
                                            : Lw::HNodeAnimationText::PageStartsBackward(placed.widths, 260);
            QVERIFY(starts.size() > 2);
            for (const Cluster& cluster : line.clusters) {
                // Each next letter stands to the left of all that were read before it.
                const int i = cluster.first;
                const int p =
                    int(std::upper_bound(starts.begin(), starts.end(), i) - starts.begin());
                const int left = Sum(placed.widths.mid(i + 1, starts[p] - i - 1));
                const int at = Sum(placed.widths.mid(starts[p - 1], i - starts[p - 1]));
                QVERIFY(at + placed.widths[i] + left <= 260);
                const QRectF wanted = cluster.shape.boundingRect().translated(left - at, 0);
                const QRectF seen = placed.outlines[i].boundingRect();
                if (!seen.isEmpty())
                    QVERIFY(qAbs(seen.center().x() - wanted.center().x()) < 3);
            }
        }
    }

    void columnStandsInItsOwnPlaces()
    {
        const ShapedLine line = ShapeLine("fi " + arabic, Font(40));
        const PlacedText placed = PlaceText(line, Arrangement::Column, 100, Bar());
        for (const Cluster& cluster : line.clusters)
            QCOMPARE(placed.outlines[cluster.first], cluster.shape);
        QCOMPARE(Sum(placed.heights), line.clusters.size() * (line.ascent + line.descent));
    }

    void underlineHasNoGap()
    {
        const QString text = "gy fi " + arabic;
        const PlacedText placed =
            PlaceText(ShapeLine(text, Font(60)), Arrangement::Line, 0, Bar{5, 3});
        const int width = Sum(placed.widths);
        const QImage shown = Painted(AtRest(placed, 0, text.size()), width);
        for (int y : {155, 156, 157}) {
            for (int x = 0; x < width; ++x)
                QVERIFY2(shown.constScanLine(y)[20 + x] != 0, qPrintable(QString::number(x)));
        }
    }
};

QTEST_MAIN(tst_author)
#include "tst_author.moc"
