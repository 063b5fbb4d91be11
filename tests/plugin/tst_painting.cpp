// What text is painted with, and the long lines that a painter cannot paint in one piece.
#include "enginefixture.h"
#include "table.h"

#include <hpluginmanager.h>

using Lw::HPluginManager;

namespace {

// A line of @p widths whose glyphs fill their advance except one pixel at the left; 20 high, green.
RectangleText Line(const QVector<int>& widths)
{
    RectangleText text(widths, QVector<int>(widths.size(), 20), {}, QSize(100, 20));
    QVector<QPainterPath> glyphs(widths.size());
    for (int i = 0; i < widths.size(); ++i)
        glyphs[i].addRect(1, -20, widths.at(i) - 2, 20);
    text.SetGlyphs(glyphs);
    text.node->SetList("TextAttribute", {{{"Color", "65280"}}});
    text.Set({{"EffectType", 1}});
    return text;
}

// A picture of black and white without its pixels, @p size as in its header.
QByteArray Bitmap(const char* size)
{
    return QByteArray("P4\n") + size + "\n";
}

} // namespace

class TestPainting : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { HPluginManager::instance()->SetAlphaBlend(true); }

    void flagsOfOthersDoNotChangeTheText_data()
    {
        QTest::addColumn<QString>("flag");
        for (const char* flag : {"CheckColorGradient", "Stroke", "CheckPictureFills",
                                 "CheckShadowEffect", "CheckDazzle", "CheckNeonBg"})
            QTest::newRow(flag) << flag;
    }

    void flagsOfOthersDoNotChangeTheText()
    {
        QFETCH(QString, flag);
        QImage frames[2];
        for (int on = 0; on < 2; ++on) {
            EngineFixture play;
            const QString later = on ? "65280" : "255"; // nor do the later characters' colors
            play.text.node->SetList("TextAttribute",
                                    {{{"Color", "255"}}, {{"Color", later}}, {{"Color", later}}});
            QImage picture(3, 3, QImage::Format_RGB32);
            picture.fill(Qt::yellow);
            QVERIFY(picture.save(play.text.File("fill.png")));
            play.text.node->SetFiles("FillImage", {play.text.File("fill.png")});
            play.text.node->SetAttribute(flag, on);
            play.Start({{"AnimationEffect", 6}, {"StrokeColor", 0xFFFFFF}, {"TextShadowBox", 3}});
            for (int i = 0; i < 5; ++i)
                play.DrawFrame();
            frames[on] = play.drawImage().copy();
        }
        QCOMPARE(frames[1], frames[0]);
        QCOMPARE(frames[0].pixelColor(15, 20), QColor(0, 0, 255));
    }

    void hollowTextKeepsItsHairline()
    {
        for (int hollow : {0, 1, 2}) {
            EngineFixture play;
            play.Start({{"AnimationEffect", 6}, {"Hollow", hollow}});
            play.DrawFrame();
            const QImage& picture = play.drawImage(); // a glyph from (2, 12) to (27, 26), red
            const QColor red(255, 0, 0), clear(0, 0, 0, 0);
            QCOMPARE(picture.pixelColor(2, 12), red);
            QCOMPARE(picture.pixelColor(27, 26), red);
            QCOMPARE(picture.pixelColor(15, 20), hollow == 1 ? clear : red);
            QCOMPARE(picture.pixelColor(3, 13), picture.pixelColor(15, 20)); // a pixel wide
            QCOMPARE(picture.pixelColor(28, 20), clear);
        }
    }

    // On the page all glyphs share one path, which is odd-even.
    void aGlyphInFlightKeepsItsFillRule()
    {
        for (const Qt::FillRule rule : {Qt::OddEvenFill, Qt::WindingFill}) {
            EngineFixture play;
            QPainterPath ring;
            ring.setFillRule(rule);
            ring.addRect(2, -20, 25, 18);
            ring.addRect(8, -14, 10, 6);
            play.text.SetGlyphs({ring, ring, ring});
            play.StartEffect(0);
            for (int frame = 0; frame <= 30; ++frame)
                play.DrawFrame();
            QCOMPARE(play.drawImage().pixelColor(30 + 13, 28 - 11).alpha(), 255 * rule);
            while (play.charIndex() == 0)
                play.DrawFrame();
            play.DrawFrame();
            QCOMPARE(play.drawImage().pixelColor(13, 28 - 11).alpha(), 0);
        }
    }

    void aNewStartHasNewGlyphs()
    {
        EngineFixture play;
        for (const int size : {20, 10}) {
            QVector<QPainterPath> glyphs(1);
            glyphs[0].addRect(0, -size, size - 1, size - 1);
            play.text.SetGlyphs(glyphs);
            play.Start({{"EffectType", 1}}); // a line, which does not move
            for (int frame = 0; frame < 4; ++frame)
                play.DrawFrame();
            QCOMPARE(PaintedBox(play.drawImage()).size(), QSize(size, size));
        }
        QCOMPARE(play.engine.Init(nullptr), 0);
    }

    // Two glyphs for three characters: the column repeats after the second.
    void columnsRepeatTheGlyphsThereAre()
    {
        EngineFixture play;
        play.text.SetGlyphs(RectangleGlyphs({30, 20}, {20, 25}));
        play.Start({{"EffectType", 1}, {"ContinueStyle", 2}});
        while (play.charIndex() < 46)
            play.DrawFrame();
        QCOMPARE(Corners(play).count(';'), 2);
    }

    void shadowsLieAsFarAsTheyAreTold()
    {
        EngineFixture play;
        for (int on : {0, 2, 1}) {
            play.Start({{"CheckShadowEffect", on}, {"TextShadowBox", 3}});
            for (int character : {-1, 1, 3})
                play.engine.DrawShadow(character);
            QCOMPARE(CornersOf(play.auxPath()), QString(on == 1 ? "5,-18 20,1" : ""));
        }
    }

    void picturesAreLookedAtBeforeTheyAreDecoded_data()
    {
        const auto fromTheTop = [](int width, int height) {
            QByteArray bytes;
            QBuffer buffer(&bytes);
            QImage(4, 3, QImage::Format_RGB32).save(&buffer, "BMP");
            qToLittleEndian(width, bytes.data() + 18);
            qToLittleEndian(-height, bytes.data() + 22);
            return bytes;
        };
        const QSize none(0, 0);
        // Qt 6 itself decodes at most 32 megapixels.
        const QSize largest = QT_VERSION < 0x060000 ? QSize(8000, 8000) : none;
        const Table<QByteArray, QSize, int> row("content", "size", "messages");
        row("64 megapixels", Bitmap("8000 8000") + QByteArray(8000000, 0), largest, 0);
        row("a row more", Bitmap("8000 8001") + QByteArray(8001000, 0), none, 1);
        row("cut off", Bitmap("8000 8000"), none, 0);
        row("no picture", QByteArray("none"), none, 0);
        row("its size unknown", fromTheTop(4, 3), {4, 3}, 0);
        row("from the top, too large", fromTheTop(8000, 8001), none, 1);
    }

    void picturesAreLookedAtBeforeTheyAreDecoded()
    {
        QFETCH(QByteArray, content);
        QFETCH(QSize, size);
        EngineFixture play;
        WriteFile(play.text.File("fill"), content);
        play.text.node->SetFiles("FillImage", {play.text.File("fill")});
        Messages messages;
        play.Start({{"CheckPictureFills", 1}, {"AnimationEffect", 6}});
        QTEST(int(Messages::Taken().filter("Fill picture").size()), "messages");
        QCOMPARE(play.fillImageSize(), size);
    }

    void frogsAboveFourMegapixelsAreRefused()
    {
        for (int height : {2000, 2001}) {
            EngineFixture play;
            qputenv("ANIMATIONTEXT_PICTURES", QFile::encodeName(play.text.File(".")));
            WriteFile(play.text.File("Frog1.png"),
                      Bitmap(qPrintable(QString("2000 %1").arg(height))) +
                          QByteArray(250 * height, '\0'));
            Messages messages;
            play.StartEffect(19);
            play.DrawFrame();
            QCOMPARE(Messages::Taken().size(), height - 2000);
            qunsetenv("ANIMATIONTEXT_PICTURES");
        }
    }

    void canvasesAbove256MebibytesAreRefused()
    {
        EngineFixture play;
        play.text.node->SetSize(QSize(16384, 4097));
        play.Start({});
        QVERIFY(play.drawImage().isNull() && play.stayImage().isNull());
    }

    void theLayerBelowALineOverNeonIsTheArea()
    {
        EngineFixture play(Line({30, 80}));
        for (int neon : {0, 1, 2}) {
            play.Start({{"ContinueStyle", 1}, {"CheckNeonBg", neon}});
            QCOMPARE(play.engine.CountSize(true), QSize(110, 20));
            QCOMPARE(play.engine.CountSize(false), neon == 1 ? QSize(100, 20) : QSize(110, 20));
        }
    }

    void tailsBeginBeyondTheLimit_data()
    {
        // colors: of the characters: g is the text's green, w white
        const Table<int, QString> row("firstWidth", "colors");
        row("31,998", 31998, "gggw");
        row("31,999", 31999, "ggww");
        row("32,000", 32000, "gwww");
    }

    // Each character has rows and a column of its own, so that none hides another.
    void tailsBeginBeyondTheLimit()
    {
        QFETCH(int, firstWidth);
        EngineFixture play(Line({firstWidth, 1, 40, 30}));
        QVector<QPainterPath> glyphs(4);
        for (int i = 0; i < 4; ++i)
            glyphs[i].addRect(0, -20 + 5 * i, 1, 3);
        play.text.SetGlyphs(glyphs);
        play.Start({});
        play.DrawFrame();
        QString colors;
        for (int i = 0; i < 4; ++i) {
            const QColor color = play.drawImage().pixelColor(play.charPositions().at(i), 5 * i + 1);
            colors += color == QColor(0, 255, 0) ? 'g' : color == QColor(Qt::white) ? 'w' : '?';
        }
        QTEST(colors, "colors");
    }

    // The third begins before the tail, to which the second's negative width leads back.
    void tailsHaveOnlyTheirOwnCharacters()
    {
        EngineFixture play(Line({32000, -40, 60, 30}));
        play.Start({});
        play.DrawFrame();
        QCOMPARE(play.drawImage().pixelColor(31999, 10), QColor(0, 255, 0));
        QCOMPARE(play.drawImage().pixelColor(32010, 10).alpha(), 0);
        QCOMPARE(play.drawImage().pixelColor(32030, 10), QColor(Qt::white));
    }

    void rowsEndInTheTailsBytes()
    {
        for (bool blend : {true, false}) {
            HPluginManager::instance()->SetAlphaBlend(blend);
            // The tail begins at 32,001 and is 50 wide. In rows of 3 bytes a pixel, 96,153 are
            // padded to 96,156 and the tail's 150 to 152, so it ends at the row's end and not at
            // its pixel.
            EngineFixture play(Line({31999, 2, 20, 30}));
            play.Start({});
            play.DrawFrame();
            const QImage& picture = play.drawImage();
            const int bytes = blend ? 4 : 3;
            const int tailBegin = blend ? 32001 * 4 : 96156 - 152;
            QCOMPARE(picture.bytesPerLine(), blend ? 32051 * 4 : 96156);
            for (int y = 0; y < 20; ++y) {
                const uchar* const row = picture.constScanLine(y);
                // White from 1 to 19 and from 21 to 49 of the tail, nothing between and around.
                for (int i = 0; i < picture.bytesPerLine() - tailBegin; ++i) {
                    const int x = i / bytes;
                    const bool white = (x >= 1 && x <= 19) || (x >= 21 && x <= 49);
                    QCOMPARE(int(row[tailBegin + i]), white ? 255 : 0);
                }
                const uchar* const text = row + 5 * bytes;
                QCOMPARE(int(text[1]), 255); // green in either format
                QCOMPARE(int(text[0]), 0);
            }
        }
    }

    void veryLongLinesAreWhole()
    {
        const int width = 1000, count = 150;
        EngineFixture play(Line(QVector<int>(count, width)));
        play.Start({});
        play.DrawFrame();
        QCOMPARE(play.drawImage().width(), count * width);
        for (int i = 0; i < count; ++i) {
            for (int x : {1, 500, 999})
                QCOMPARE(play.drawImage().pixelColor(i * width + x, 10),
                         i * width <= 31999 ? QColor(0, 255, 0) : QColor(Qt::white));
            QCOMPARE(play.drawImage().pixelColor(i * width, 10), QColor(0, 0, 0, 0));
        }
    }
};

QTEST_MAIN(TestPainting)
#include "tst_painting.moc"
