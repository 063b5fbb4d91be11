// A line of text on its way to a node: its units, their outlines and their places.

#include "author/authorscene.h"
#include "layout/placement.h"
#include "layout/wordpages.h"
#include "table.h"
#include "testfolder.h"
#include "text/glyphdata.h"
#include "text/pagedivision.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>

#include <numeric>

Q_DECLARE_METATYPE(AnimText::layout::Align)

using namespace AnimText;

namespace {

const QString arabic = "السلام عليكم ورحمة الله وبركاته";
const QString mixed = "Hello שלום עולם, 12 ابجد (xyz)!";

const int scrollLeft = 0;
const int scrollUp = 2;

QFont Font(int pixels)
{
    QFont font("DejaVu Sans");
    font.setPixelSize(pixels);
    return font;
}

layout::StyledText Plain(const QString& text, const QFont& font)
{
    layout::StyledText plain;
    plain.Append(text, {0, font, Qt::red});
    return plain;
}

layout::ShapedLine Shape(const QString& text, int pixels)
{
    return layout::ShapeLine(Plain(text, Font(pixels)));
}

layout::PlacedText Placed(const QString& text, const layout::ShapedLine& line, int scroll,
                          int width = 0)
{
    layout::Setting setting;
    setting.keepsWords = false;
    return layout::PlaceText(text, line, setting, {scene::Mode::Scroll, scroll}, QSize(width, 100));
}

/** First unit of each page, and the number of units, as the sign divides them. */
QVector<int> SignsPages(const QVector<int>& widths, int area, bool fromEnd)
{
    return fromEnd ? Lw::HNodeAnimationText::PageStartsBackward(widths, area)
                   : Lw::HNodeAnimationText::PageStartsForward(widths, area);
}

int Sum(const QVector<int>& values)
{
    return std::accumulate(values.begin(), values.end(), 0);
}

/** The units from @p begin to @p end at rest on a page, in one path as the engine collects them. */
QPainterPath AtRest(const layout::PlacedText& text, int begin, int end)
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

const QSize area(300, 90);

struct Request
{
    QString text;
    QFont font;
    int motion; // 30 for the first scroll
    layout::Align align;
    layout::VAlign valign;
    int padding;
    bool keepsWords = true;
};

/** An authored text as the sign will have it. */
struct Authored : layout::PlacedText
{
    QVector<int> starts; // of the pages, and the number of units
    author::AuthoredNode all;
};

Authored Author(const Request& request)
{
    author::TextSource source;
    source.text = Plain(request.text, request.font);
    source.align = request.align;
    source.valign = request.valign;
    source.padding = request.padding;
    source.keepsWords = request.keepsWords;
    scene::SceneNode settings;
    settings.size = area;
    const scene::NodeMotion motion{
        request.motion == 30 ? scene::Mode::Scroll : scene::Mode::Entrance, request.motion % 30};
    Authored authored;
    QString error;
    if (!author::AuthorNode(source, settings, motion, &authored.all, &error))
        qFatal("%s", qPrintable(error));
    const scene::SceneNode& node = authored.all.node;
    authored.text = node.attributes["Text"].toString();
    for (const auto& row : node.lists["TextWidth"])
        authored.widths.append(row["text_width"].toInt());
    for (const auto& row : node.lists["TextHeight"])
        authored.heights.append(row["text_height"].toInt());
    QBuffer paths(&authored.all.data["PathData"]);
    QBuffer descents(&authored.all.data["DescentVector"]);
    paths.open(QIODevice::ReadOnly);
    descents.open(QIODevice::ReadOnly);
    authored.outlines =
        Lw::HNodeAnimationText::OutlinesFrom(Lw::HNodeAnimationText::ReadGlyphData(paths));
    authored.descents =
        Lw::HNodeAnimationText::DescentsFrom(Lw::HNodeAnimationText::ReadGlyphData(descents));
    authored.tornWords = authored.all.tornWords;
    authored.starts = SignsPages(authored.widths, area.width(), request.motion == 1);
    return authored;
}

} // namespace

class TestAuthor : public QObject
{
    Q_OBJECT

private slots:
    void breaksBecomeSpacesOrAreRefused()
    {
        // The line and the number of notes on it; 0 and nothing when it is refused.
        const auto line = [](const QString& text) {
            QStringList notes;
            QString error;
            layout::StyledText styled = Plain(text, Font(10));
            const bool accepted = layout::ToOneLine(&styled, &notes, &error);
            return accepted == error.isEmpty()
                       ? (accepted ? styled.text : "") + QString::number(notes.size())
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

    void clustersStandInTheirFirstUnit()
    {
        const QVector<QPair<QString, QVector<int>>> cases = {{"ab c", {0, 1, 2, 3}},
                                                             {"afix", {0, 1, 3}}, // a ligature
                                                             {"e\u0301q\u0323\u0302x", {0, 2, 5}},
                                                             {"a😀b", {0, 1, 3}},
                                                             {"سلام", {0, 1, 3}},
                                                             {"بَبِ", {0, 2}},
                                                             {"a\u200Db", {0, 2}}};
        for (const auto& [text, firsts] : cases) {
            const layout::PlacedText placed = Placed(text, Shape(text, 40), scrollLeft);
            QCOMPARE(placed.descents.size(), text.size());
            for (int i = 0; i < text.size(); ++i) {
                const bool isFirst = firsts.contains(i);
                QCOMPARE(placed.widths[i] > 0, isFirst);
                QCOMPARE(placed.heights[i] > 0, isFirst);
                QCOMPARE(!placed.outlines[i].isEmpty(), isFirst && !text.at(i).isSpace());
            }
        }
    }

    void linesLookAsTheToolkitSetsThem_data()
    {
        const Table<QString, int> row("text", "pixels");
        for (int pixels : {13, 31, 100}) {
            const QString at = QString(" at %1").arg(pixels);
            row("kerning" + at, "AVATAR To. Ty", pixels);
            row("ligatures" + at, "fit flow", pixels);
            row("accents" + at, "Ångström e\u0301", pixels);
            row("joined" + at, arabic, pixels);
            row("both directions" + at, mixed, pixels);
            row("from the right" + at, "ابجد abc 123 هوز", pixels);
            row("struck through" + at, "H\u0337x\u0336o\u0338", pixels);
        }
        // Glyphs are asked for in short pieces; the pieces must not show.
        const QString part = "office fjord AVATAR " + mixed + " " + arabic;
        row("long", part.repeated(700 / part.size() + 1), 20);
    }

    // The line looks as the toolkit sets it, give or take the half pixel to a whole place, and
    // nothing of it is lost where outlines overlap.
    void linesLookAsTheToolkitSetsThem()
    {
        QFETCH(QString, text);
        QFETCH(int, pixels);
        const QFont font = Font(pixels);
        const layout::PlacedText placed = Placed(text, Shape(text, pixels), scrollLeft);
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

    void pagesEndWhereWordsEnd_data()
    {
        const Table<QString, int, layout::Align, int> row("text", "motion", "align", "padding");
        const QPair<const char*, QString> texts[] = {
            {"Latin", "Abfahrt nach Zürich HB  um 14:05 von Gleis 7, Halt in Aarau"},
            {"hyphens", "Dampf-schiff-fahrts-gesell-schafts-kapitän"},
            {"Arabic", arabic},
            {"both", "Hello שלום עולם und ابجد هوز mehr Text שלום ab"}};
        for (const auto& [name, text] : texts) {
            for (int motion : {4, 1, 11, 24, 28}) {
                const QString all = QString("%1 %2 ").arg(name).arg(motion);
                row(all, text, motion, layout::Align::Natural, 0);
                row(all + "left", text, motion, layout::Align::Left, 7);
                row(all + "center", text, motion, layout::Align::Center, 0);
                row(all + "center within 30", text, motion, layout::Align::Center, 30);
                row(all + "right", text, motion, layout::Align::Right, 5);
            }
        }
    }

    // Cut as the sign cuts them, pages end where words end, are as full as can be, and show at rest
    // what the toolkit makes of their words, in the right place.
    void pagesEndWhereWordsEnd()
    {
        QFETCH(QString, text);
        QFETCH(int, motion);
        QFETCH(layout::Align, align);
        QFETCH(int, padding);
        const QFont font = Font(40);
        const int room = area.width() - 2 * padding;
        const Authored authored =
            Author({text, font, motion, align, layout::VAlign::Middle, padding});
        const bool fromEnd = motion == 1;
        const bool rightToLeft = text.isRightToLeft();
        QVERIFY(authored.tornWords.isEmpty());
        QString all;
        QString before;
        for (int p = 0; p + 1 < authored.starts.size(); ++p) {
            const int begin = authored.starts[p];
            const int end = authored.starts[p + 1];
            const QString page = authored.text.mid(begin, end - begin).trimmed();
            const int pageWidth = Sum(authored.widths.mid(begin, end - begin));
            QVERIFY(pageWidth <= area.width());
            if (motion == 11) // turns in places; a margin takes a character, which takes its turn
                QVERIFY(!authored.text.mid(begin, 2).trimmed().isEmpty());
            for (int i = begin; i < end && !text.contains('-'); ++i)
                QVERIFY(authored.text[i] == ' ' || authored.widths[i] < 50);
            const auto advance = [&](const QString& words) {
                return qRound(QFontMetricsF(font).horizontalAdvance(words));
            };
            QVERIFY(advance(page) <= room + 1);
            if (p > 0) { // another word would not have fitted
                const int next = fromEnd ? -1 : 0;
                static const QRegularExpression gaps("(?<=[ -])(?=\\S)");
                const QString word = (fromEnd ? before : page)
                                         .split(gaps)
                                         .at(next < 0 ? before.split(gaps).size() - 1 : 0)
                                         .trimmed();
                const QString full = fromEnd ? word + ' ' + page : before + ' ' + word;
                QVERIFY2(advance(full) + 26 > room, qPrintable(full));
            }
            before = page;
            all += page;

            layout::Align seen = align;
            if (align == layout::Align::Natural)
                seen = fromEnd || rightToLeft ? layout::Align::Right : layout::Align::Left;
            const int left = seen == layout::Align::Left    ? padding
                             : seen == layout::Align::Right ? area.width() - padding - advance(page)
                                                            : (area.width() - advance(page)) / 2;
            const int first = fromEnd ? area.width() - pageWidth : 0;
            const QImage shown =
                Painted(AtRest(authored, begin, end).translated(first, 0), area.width());
            const QPainterPath wanted =
                ByToolkit(QChar(rightToLeft ? 0x200F : 0x200E) + page, font).translated(left, 0);
            QCOMPARE(Strays(shown, Painted(wanted, area.width(), 2)), 0);
            QCOMPARE(
                Strays(Painted(wanted, area.width()),
                       Painted(AtRest(authored, begin, end).translated(first, 0), area.width(), 2)),
                0);
        }
        QCOMPARE(all.remove(' '), QString(text).remove(' '));
    }

    // What turns or stretches a character needs it in its own place, and paces that go by the
    // widest character need no wider spaces.
    void turningCharactersStandInTheirPlaces()
    {
        for (int motion = 0; motion < 30; ++motion) {
            const bool turns =
                QVector<int>{7, 9, 10, 11, 12, 13, 17, 18, 21, 24, 26, 27, 28, 29}.contains(motion);
            for (const QString text : {"Hallo Welt, hier und dort", "漢字仮名交文は語間無し"}) {
                const Authored authored = Author(
                    {text, Font(40), motion, layout::Align::Center, layout::VAlign::Middle, 0});
                QVERIFY(authored.starts.size() > 2);
                int odd = 0;
                for (int i = 0; i < authored.text.size(); ++i) {
                    const QRectF ink = authored.outlines[i].boundingRect();
                    odd +=
                        !ink.isEmpty() && (ink.left() < -3 || ink.right() > authored.widths[i] + 3)
                            ? 1
                            : 0;
                    odd += !authored.text[i].isSpace() && authored.widths[i] > 50 ? 1 : 0;
                }
                QCOMPARE(odd == 0, turns);
                QCOMPARE(authored.text != text, turns);
                const bool even = motion == 21 || motion == 24;
                const Authored left = Author(
                    {text, Font(40), motion, layout::Align::Left, layout::VAlign::Middle, 0});
                const int widest = *std::max_element(left.widths.begin(), left.widths.end());
                QVERIFY(text[0] != 'H' || even == (widest == left.widths[left.text.indexOf('W')]));
            }
        }
    }

    // A letter is 10 wide, a space 5; ( and ) enclose what is seen of a page of 40 pixels.
    void cutsAtWords_data()
    {
        const Table<QString, QString> row("forward", "fromEnd");
        row("", "", "");
        row("ab cd", "(ab) (cd)", "(ab) (cd)");
        row("a b c", "(a b c)", "(a b c)");
        row("abcd efg", "(abcd) (efg)", "(abcd) (efg)");       // a space hangs over
        row("ab   c d e", "(ab)   (c d e)", "(ab)   (c d e)"); // and three of them
        row("a b c d", "(a b c) (d)", "(a) (b c d)");
        row("abcdef gh", "(abcd)(ef) (gh)", "(ab)(cdef) (gh)");
        row("a bcdefg", "(a) (bcde)(fg)", "(a bc)(defg)");
        row("W  ab", "(W)  (ab)", "(W)  (ab)"); // wider than a page
        row("ab W", "(ab) (W)", "(ab) (W)");
        row("abc    ", "(abc  )  ", "(a)(bc    )"); // what is typed at the very end counts
        row("  abc", "(  abc)", "(  abc)");
    }

    void cutsAtWords()
    {
        const QString text = QTest::currentDataTag();
        QFETCH(QString, forward);
        QFETCH(QString, fromEnd);
        for (bool isFromEnd : {false, true}) {
            QVector<layout::LinePiece> line;
            for (int i = 0; i < text.size(); ++i)
                line.append({text[i] == 'W'   ? 50
                             : text[i] == ' ' ? 5
                                              : 10,
                             text[i] == ' ', i > 0 && text[i] != ' ' && text[i - 1] == ' '});
            QString cut;
            for (const layout::PageCut& page : layout::CutPages(line, 40, isFromEnd))
                cut += text.mid(page.begin, page.seen - page.begin) + '(' +
                       text.mid(page.seen, page.seenEnd - page.seen) + ')' +
                       text.mid(page.seenEnd, page.end - page.seenEnd);
            QCOMPARE(cut, isFromEnd ? fromEnd : forward);
        }
    }

    void placesFromTopToBottom()
    {
        for (int motion : {1, 4, 5, 11, 23, 30}) { // 30 means scrolling
            for (layout::VAlign valign :
                 {layout::VAlign::Top, layout::VAlign::Middle, layout::VAlign::Bottom}) {
                const Authored authored =
                    Author({"Hxg Ä", Font(30), motion, layout::Align::Natural, valign, 6});
                const int height =
                    *std::max_element(authored.heights.begin(), authored.heights.end());
                const int baseline = area.height() / 2 + height / 2 - authored.descents[0];
                const layout::LineSize line = layout::MeasureLine(Plain("Hxg", Font(30)));
                const int middle = (area.height() - line.ascent - line.descent) / 2;
                const int top = valign == layout::VAlign::Top ? 6
                                : valign == layout::VAlign::Middle
                                    ? middle
                                    : area.height() - 6 - line.ascent - line.descent;
                QVERIFY(qAbs(baseline - line.ascent - top) <= 1);
                if (valign == layout::VAlign::Top &&
                    (motion == 5 || motion == 23)) // waves up to the top
                    QCOMPARE(height - authored.descents[0], line.ascent);
                if (motion == 11) // turns about the letters' middle
                    QCOMPARE(height, line.ascent + line.descent);
            }
        }
    }

    void wideWordsAreTorn()
    {
        const Authored authored = Author({"in Donaudampfschifffahrtsgesellschaft an W", Font(40), 4,
                                          layout::Align::Natural, layout::VAlign::Middle, 0});
        QCOMPARE(authored.tornWords, QStringList("Donaudampfschifffahrtsgesellschaft"));
        QCOMPARE(authored.text.mid(authored.starts[1]).left(5), QString("Donau"));
        const Authored torn = Author({"aaaa bbbb cccc dddd eeee ffff", Font(40), 4,
                                      layout::Align::Natural, layout::VAlign::Middle, 0, false});
        QVERIFY(torn.tornWords.isEmpty());
        QVERIFY(torn.text.at(torn.starts[1] - 1) != ' ' && torn.text.at(torn.starts[1]) != ' ');
        QCOMPARE(torn.outlines, Author({"aaaa bbbb cccc dddd eeee ffff", Font(40), 4,
                                        layout::Align::Left, layout::VAlign::Middle, 0, false})
                                    .outlines);
    }

    void columnStandsInItsOwnPlaces()
    {
        const layout::ShapedLine line = Shape("fi " + arabic, 40);
        const layout::PlacedText placed = Placed("fi " + arabic, line, scrollUp, 100);
        for (const layout::Cluster& cluster : line.clusters) {
            const QPainterPath& outline = placed.outlines[cluster.first];
            QCOMPARE(outline.elementCount(), cluster.shape.elementCount());
            for (int i = 0; i < outline.elementCount(); ++i) {
                const QPointF p = outline.elementAt(i), from = cluster.shape.elementAt(i);
                QVERIFY((p - from).manhattanLength() <= 2 / 128.0);
                QCOMPARE(p * 64, QPointF((p * 64).toPoint())); // which the sign paints fast
            }
        }
        QCOMPARE(Sum(placed.heights), line.clusters.size() * (line.ascent + line.descent));
    }

    void underlineHasNoGap()
    {
        const QString text = "gy fi " + arabic;
        layout::ShapedLine line = Shape(text, 60);
        for (layout::Cluster& cluster : line.clusters)
            cluster.underline = layout::Bar{5, 3};
        const layout::PlacedText placed = Placed(text, line, scrollLeft);
        const int width = Sum(placed.widths);
        const QImage shown = Painted(AtRest(placed, 0, text.size()), width);
        for (int y : {155, 156, 157}) {
            for (int x = 0; x < width; ++x)
                QVERIFY2(shown.constScanLine(y)[20 + x] != 0, qPrintable(QString::number(x)));
        }
    }

    // The command may not be stopped between the files of a change.
    void saysThatItWillSave()
    {
        const TestFolder folder;
        QStringList before{"never said"};
        author::AuthorRequest request;
        request.path = folder.Path("sign.json");
        request.written.words = "text";
        request.written.style.font = Font(20);
        request.motion.number = 4;
        request.beforeSaving = [&] { before = folder.Everything(); };
        author::AuthoredScene authored;
        QString error;
        QCOMPARE(author::AuthorScene(request, &authored, &error), author::Storing::Saved);
        QCOMPARE(before, QStringList());
        QCOMPARE(folder.Listing().size(), 3);
    }
};

QTEST_MAIN(TestAuthor)
#include "tst_author.moc"
