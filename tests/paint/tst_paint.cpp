// The text painter against what the device's Qt paints: outlines.txt and transforms.txt were made
// there. Set ANIMATIONTEXT_OUTLINES to another file of that form to compare all of it; a table by
// family is printed.
#include "paint/pictureblend.h"
#include "paint/textcanvas.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace Lw::HNodeAnimationText;

namespace {

struct Sample
{
    QString name;
    QString family;
    int width;
    int height;
    Outline outline;
    QStringList fill; // rows
    QStringList pen;
};

// "." or hexadecimal digits of four pixels, the leftmost in the highest bit.
QStringList Rows(const Plane& plane)
{
    QStringList rows;
    for (int y = 0; y < plane.Height(); ++y) {
        QString row;
        bool any = false;
        for (int x = 0; x < plane.Width(); x += 4) {
            int digit = 0;
            for (int i = 0; i < 4 && x + i < plane.Width(); ++i)
                digit |= plane.Has(x + i, y) ? 8 >> i : 0;
            row += QChar("0123456789abcdef"[digit]);
            any = any || digit;
        }
        rows.append(any ? row : ".");
    }
    return rows;
}

QVector<QStringList> Words(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QVector<QStringList> lines;
    while (!file.atEnd())
        lines.append(QString(file.readLine()).simplified().split(' '));
    return lines;
}

QVector<Sample> Read(const QString& path)
{
    const QVector<QStringList> lines = Words(path);
    QVector<Sample> samples;
    for (int i = 0; i + 2 < lines.size(); i += 3) {
        const QStringList& words = lines[i];
        Sample sample{words[1] + " " + words[2], words[2],  words[3].toInt(),
                      words[4].toInt(),          Outline(), lines[i + 1].mid(1),
                      lines[i + 2].mid(1)};
        sample.outline.fillRule = words[5] == "winding" ? Outline::Winding : Outline::OddEven;
        for (int k = 6; k + 2 < words.size(); k += 3)
            sample.outline.Add(words[k + 1].toFloat(), words[k + 2].toFloat(),
                               Outline::Type(QString("MLCc").indexOf(words[k])));
        samples.append(sample);
    }
    return samples;
}

QVector<Sample> Samples()
{
    static const QVector<Sample> samples = Read(PAINT_DATA "/outlines.txt");
    return samples;
}

QStringList FillRows(const Sample& sample)
{
    Fill fill;
    fill.SetSize(sample.width, sample.height);
    Plane plane;
    plane.SetSize(sample.width, sample.height);
    fill.Paint(sample.outline, Transform(), {0, 0, sample.width, sample.height}, plane);
    return Rows(plane);
}

QStringList CanvasRows(int width, int height, const QVector<Outline>& paths, bool hollow = false)
{
    TextCanvas canvas;
    canvas.SetSize(width, height);
    canvas.SetHollow(hollow);
    for (const Outline& path : paths)
        canvas.DrawPath(path);
    return Rows(canvas.Ink());
}

#define EQUAL(what, got, expected)                                                                 \
    do {                                                                                           \
        const QString difference = Difference(what, got, expected);                                \
        QVERIFY2(difference.isEmpty(), qPrintable(difference));                                    \
    } while (false)

// Empty when equal.
QString Difference(const QString& what, const QStringList& got, const QStringList& expected)
{
    for (int y = 0; y < qMax(got.size(), expected.size()); ++y)
        if (got.value(y) != expected.value(y))
            return QString("%1 row %2\n  is        %3\n  should be %4")
                .arg(what, QString::number(y), got.value(y), expected.value(y));
    return QString();
}

} // namespace

class TestPaint : public QObject
{
    Q_OBJECT

private slots:
    void outlinesAreTheDevices();
    void curvesThatStandStillAreCutOtherwiseAlongEachAxis();
    void transformsAreTheDevices();
    void glyphsArePaintedAsTheirPath();
    void aMoveAloneJoinsTheGlyphBefore();
    void glyphsOfTallPagesArePaintedAsTheirPath();
    void glyphsAreKeptWhereTheyAreTheSame();
    void steadyOutlinesAreTheSameWholePixelsAway();
    void whatIsKeptIsBounded();
    void clipIsThePictureInside();
    void transformOfThePainterMapsPoints();
    void picturesHoldTheInk();
    void translucentTextHasCoats();
    void picturesAreBlended();
    void whatCannotBePaintedIsNot();
};

void TestPaint::outlinesAreTheDevices()
{
    const QString other = qEnvironmentVariable("ANIMATIONTEXT_OUTLINES");
    QMap<QString, QVector<int>> table;
    QStringList differences;
    for (const Sample& sample : other.isEmpty() ? Samples() : Read(other)) {
        const QString fill = Difference(sample.name + " fill", FillRows(sample), sample.fill);
        const QStringList hollow = CanvasRows(sample.width, sample.height, {sample.outline}, true);
        const QString pen = Difference(sample.name + " pen", hollow, sample.pen);
        QVector<int>& row = table[sample.family];
        row.resize(3);
        ++row[0];
        row[1] += fill.isEmpty();
        row[2] += pen.isEmpty();
        differences += QStringList{fill, pen};
    }
    if (!other.isEmpty())
        for (auto it = table.cbegin(); it != table.cend(); ++it)
            qInfo("%-12s %5d outlines %5d fills equal %5d hairlines equal", qPrintable(it.key()),
                  it.value()[0], it.value()[1], it.value()[2]);
    differences.removeAll(QString());
    QVERIFY2(differences.isEmpty(), qPrintable(differences.mid(0, 9).join('\n')));
    QVERIFY(!table.isEmpty());
}

// Where a curve stands still along x without turning, the device counts that point for the curve's
// bounds; along y it does not. Of an outline that is far out, what is beyond them is not cut.
void TestPaint::curvesThatStandStillAreCutOtherwiseAlongEachAxis()
{
    const auto inkOf = [](const QVector<Point>& p) {
        Outline curve;
        curve.MoveTo(p[0].x, p[0].y);
        curve.CurveTo(p[1].x, p[1].y, p[2].x, p[2].y, p[3].x, p[3].y);
        curve.LineTo(p[0].x, p[0].y);
        curve.MoveTo(-40000, 0);
        curve.LineTo(-40000, 8);
        curve.LineTo(-40008, 8);
        TextCanvas canvas;
        canvas.SetSize(64, 32);
        canvas.DrawPath(curve);
        int pixels = 0;
        for (int i = 0; i < 64 * 32; ++i)
            pixels += canvas.Ink().Has(i % 64, i / 64);
        return pixels;
    };
    const float third = 16 / 3.f;
    QCOMPARE(inkOf({{16, -4 * third}, {80, 64}, {16, 13 * third}, {80, -third}}), 747);
    QCOMPARE(inkOf({{-4 * third, 0}, {96, 96}, {19 * third, 0}, {-third, 96}}), 25);
}

void TestPaint::transformsAreTheDevices()
{
    for (const QStringList& words : Words(PAINT_DATA "/transforms.txt")) {
        Transform t;
        int i = 1;
        const auto number = [&] { return words[i++].toFloat(); };
        while (words[i] != "matrix") {
            const QString operation = words[i++];
            const float x = number();
            if (operation == "rotate") {
                t.rotate(x);
                continue;
            }
            const float y = number();
            operation == "translate" ? t.translate(x, y)
            : operation == "scale"   ? t.scale(x, y)
                                     : t.shear(x, y);
        }
        const auto isNext = [&](const QVector<float>& values) {
            ++i;
            return std::all_of(values.begin(), values.end(),
                               [&](float value) { return value == number(); });
        };
        const QString line = words.join(' ');
        QVERIFY2(isNext({t.m11(), t.m12(), t.m21(), t.m22(), t.dx(), t.dy()}), qPrintable(line));
        Outline points;
        for (++i; points.Size() < 2;) {
            const float x = number();
            points.Add(x, number(), Outline::Move);
        }
        Outline mapped = t.map(points);
        QVERIFY2(isNext({mapped.At(0).x, mapped.At(0).y, mapped.At(1).x, mapped.At(1).y}),
                 qPrintable(line));
        ++i;
        const float dx = number();
        mapped = t.map(points, dx, number());
        QVERIFY2(isNext({mapped.At(0).x, mapped.At(0).y, mapped.At(1).x, mapped.At(1).y}),
                 qPrintable(line));
    }
}

/** Glyphs one by one, partly from the cache, against the same page as one path. */
struct Pages
{
    TextCanvas canvas, plain;
    std::vector<Glyph> glyphs;

    explicit Pages(int width, int height)
    {
        canvas.SetSize(width, height);
        plain.SetSize(width, height);
    }

    /** Empty when equal. */
    QString Compare(const TextPath& page, const TextPath::Item* alone,
                    const Transform& painterTransform = Transform())
    {
        canvas.Clear();
        plain.Clear();
        canvas.DrawText(page, painterTransform);
        plain.DrawPath(page.Path(), painterTransform);
        if (alone) {
            canvas.DrawGlyph(*alone);
            plain.DrawPath(alone->Placed());
        }
        const Plane& a = canvas.Ink();
        const Plane& b = plain.Ink();
        if (std::equal(a.Row(0), a.Row(a.Height() - 1) + a.Stride(), b.Row(0)))
            return QString();
        return Difference(QString::number(double(page.At(0).x)), Rows(a), Rows(b));
    }
};

// In steps of fractions and of whole pixels, standing, turning, hollow, zoomed, outside at each
// side. The samples' coordinates are of all kinds; some are open, far out, or end with a move.
void TestPaint::glyphsArePaintedAsTheirPath()
{
    const QVector<Sample> samples = Samples();
    Pages pages(300, 61);
    for (int i = 0; i < samples.size(); i += 3) {
        pages.glyphs.clear();
        for (int k = i; k < qMin(i + 3, samples.size()); ++k)
            pages.glyphs.emplace_back(samples[k].outline);
        pages.canvas.ForgetGlyphs();
        for (int x = -40; x < 340; x += 17 + i % 5)
            for (int frame = 0; frame < 5; ++frame) {
                pages.canvas.SetHollow(i % 9 == 6 && frame > 2);
                pages.plain.SetHollow(i % 9 == 6 && frame > 2);
                Transform shape;
                if (i % 4 == 1) // for two frames the same
                    shape.rotate(float(x + frame / 2));
                else if (i % 4 == 2)
                    shape.scale(1.25f, 0.75f);
                Transform zoom;
                if (i % 6 == 3) {
                    zoom.translate(float(150 - x), 9);
                    zoom.scale(0.4f, frame % 2 ? 0.4f : -1.3f);
                }
                const float dx = i % 5 == 2 ? 0.3f : float(frame % 2);
                // Now and then so far apart that they are cut as a whole.
                const float apart = i % 30 == 27 && frame == 2 ? 20000.f : 31.f;
                TextPath page;
                for (size_t k = 0; k < pages.glyphs.size(); ++k)
                    page.Add(pages.glyphs[k], int(k), shape, float(x) + dx + apart * (float(k) - 1),
                             float(i % 7 * 30 - 90));
                const QString difference =
                    pages.Compare(page, &page.At(size_t(frame) % page.Size()), zoom);
                QVERIFY2(difference.isEmpty(), qPrintable(samples[i].name + difference));
            }
    }
}

// The hairline of a move alone goes on from the glyph before.
void TestPaint::aMoveAloneJoinsTheGlyphBefore()
{
    const auto outline = [](const QVector<Point>& points, int moves) {
        Outline line;
        for (int i = 0; i < points.size(); ++i)
            line.Add(points[i].x, points[i].y, i < moves ? Outline::Move : Outline::Line);
        return line;
    };
    Pages pages(31, 14);
    pages.glyphs.emplace_back(
        outline({{0, 0}, {30.984375f, 14}, {0, 14}, {31, 0}, {30.96875f, 0}, {0, 0}}, 1));
    pages.glyphs.emplace_back(
        outline({{16, 0}, {31, 14.015625f}, {23, 20}, {30.984375f, 14}, {31, 14.015625f}}, 2));
    TextPath page;
    page.Add(pages.glyphs[0], 0, Transform(), 0, 0);
    page.Add(pages.glyphs[1], 1, Transform(), -2, -2);
    const QString difference = pages.Compare(page, nullptr);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

// A path that reaches further than the device's fill computes with is cut, subpath by subpath: what
// is inside the picture, what crosses its edges and what is beyond them.
void TestPaint::glyphsOfTallPagesArePaintedAsTheirPath()
{
    const QVector<Sample> samples = Samples();
    Pages pages(64, 33000);
    for (int i = 0; i < samples.size(); i += 40) {
        pages.glyphs.clear();
        pages.canvas.ForgetGlyphs();
        for (int k = i; k < qMin(i + 40, samples.size()); ++k)
            if (Glyph(samples[k].outline).IsClosed()) // with another the page is painted as a whole
                pages.glyphs.emplace_back(samples[k].outline);
        for (int frame = 0; frame < 4; ++frame) {
            TextPath page;
            for (size_t k = 0; k < pages.glyphs.size(); ++k)
                page.Add(pages.glyphs[k], int(k), Transform(), float(k % 3) * 25 - 20,
                         float(i % 3 == 0 ? 16380 : 33010) / 40 * float(k) + float(i % 2) * 0.25f);
            const QString difference =
                pages.Compare(page, &page.At(size_t(frame) % page.Size()), Transform());
            QVERIFY2(difference.isEmpty(), qPrintable(samples[i].name + difference));
        }
    }
}

// Across powers of two and borders, both ways; with curves that were quadratic ones, so that thirds
// are rounded differently at different places.
void TestPaint::glyphsAreKeptWhereTheyAreTheSame()
{
    const int width = 1150, height = 160;
    for (const float size : {9.f, 14.4f, 31.f, 25.f, 45.f}) {
        const bool isOnGrid = size == 25 || size == 45; // or thirds
        Pages pages(width, height);
        Outline ring; // of two contours, the same way round: all of it when wound
        ring.fillRule = Outline::Winding;
        for (const float r : {size, size / 2}) {
            const float third = 2 * r / 3;
            ring.MoveTo(0, r);
            ring.CurveTo(0, r - third, r - third, 0, r, 0);
            ring.CurveTo(r + third, 0, r * 2, r - third, r * 2, r);
            ring.CurveTo(r * 2, r + third / 2, r + third, r * 2, r, r * 2);
            ring.CurveTo(r - third, r * 2, 0, r + third / 2, 0, r);
        }
        for (size_t i = 0; i < ring.Size() && isOnGrid; ++i) {
            ring.At(i).x = std::round(ring.At(i).x * 64) / 64;
            ring.At(i).y = std::round(ring.At(i).y * 64) / 64;
        }
        Outline sharp; // ends where its direction is that of what came before
        sharp.MoveTo(size, 5);
        sharp.LineTo(2, 5);
        sharp.LineTo(size, 5.2f);
        sharp.LineTo(size, 5);
        Outline box;
        box.MoveTo(1, 1);
        box.LineTo(1, 9);
        box.LineTo(5, 9);
        box.LineTo(1, 1);
        const bool isScaled = size == 25; // to what the glyph's own coordinates do not tell
        Transform slightly;
        slightly.scale(isScaled ? 1 - std::ldexp(1.f, -16) : 1, 1);
        Outline fine; // just before the next pixel, which floats cannot tell everywhere
        const float edge = 3 + 33 / 64.f - (isScaled ? 0 : std::ldexp(1.f, -16));
        fine.MoveTo(edge, edge);
        fine.LineTo(edge, 9);
        fine.LineTo(9, edge);
        fine.LineTo(edge, edge);
        pages.glyphs = {Glyph(ring), Glyph(box), Glyph(sharp), Glyph(fine)};
        for (int step = -2 * (width + 60); step < 2 * (width + 60); ++step) {
            const int x = qAbs(step) / 2 - 30;
            const float y = float(qMin(qAbs(step % 640 / 2 - 160), 150)) - 5;
            TextPath page;
            for (size_t k = 0; k < 4; ++k)
                if (k != 1 || step % 3) // what comes before the third
                    page.Add(pages.glyphs[k], int(k), slightly, float(x + (k == 3 ? 100 : 0)), y);
            const QString difference = pages.Compare(page, &page.At(0));
            QVERIFY2(difference.isEmpty(), qPrintable(difference));
        }
    }
}

/** What the hairline makes of a curve, relative to its place. */
void AddLines(const Point* p, int x, int y, int level, QVector<int>& lines)
{
    for (const Point& end : {p[0], p[3]})
        lines << int(end.x * 64) - x * 64 << int(end.y * 64) - y * 64;
    if (level == 0 || IsFlat(p[0], p[1], p[2], p[3]))
        return;
    Point halves[7] = {p[0], p[1], p[2], p[3], {0, 0}, {0, 0}, {0, 0}};
    Halve(halves);
    AddLines(halves, x, y, level - 1, lines);
    AddLines(halves + 3, x, y, level - 1, lines);
}

// Curves on grids, at any fraction, close to where the next 1/64 pixel begins, and almost flat.
void TestPaint::steadyOutlinesAreTheSameWholePixelsAway()
{
    std::mt19937 random(1);
    const auto below = [&](int limit) { return int(random() % unsigned(limit)); };
    int useful[2] = {};
    for (int i = 0; i < 30000; ++i) {
        float c[8];
        for (float& v : c) {
            const int bits = i % 13;
            const float onGrid = std::ldexp(float(below(64 << bits)), -bits);
            const float anywhere = std::ldexp(float(below(1 << 22)), -16) / 3;
            v = i % 3 == 0 ? onGrid
                : i % 3 == 1
                    ? anywhere
                    : std::round(anywhere * 64) / 64 + std::ldexp(float(below(7) - 3), -8 - i % 14);
        }
        if (i % 4 == 3) { // just flat or just not, over a level chord
            c[7] = c[1];
            c[3] = c[1] + 0.25f + std::ldexp(float(below(5) - 2), -9 - i % 11);
            c[5] = i % 8 == 3 ? c[1] : c[3];
        }
        Outline outline;
        outline.MoveTo(c[0], c[1]);
        outline.CurveTo(c[2], c[3], c[4], c[5], c[6], c[7]);
        const Glyph glyph(outline);
        const Steadiness& steady = glyph.Steady();
        for (const bool isExact : {true, false}) {
            const Point within = isExact ? steady.exact : steady.rounded;
            const float flat = isExact ? 32767 : std::min(steady.flat, 32767.f);
            const int right = int(std::min(within.x, flat) - glyph.Box().right);
            const int bottom = int(std::min(within.y, flat) - glyph.Box().bottom);
            if (right < 2 || bottom < 2)
                continue;
            ++useful[isExact];
            QVector<int> first;
            for (int k = 0; k < 8; ++k) {
                const int x = k == 0 ? right : 1 + (below(right) >> below(12));
                const int y = k == 0 ? bottom : 1 + (below(bottom) >> below(12));
                Point points[4];
                Transform().map(outline, points, float(x), float(y));
                QVector<int> lines;
                AddLines(points, x, y, curveHalvings, lines);
                first = k == 0 ? lines : first;
                QVERIFY2(lines == first,
                         qPrintable(QString("curve %1 at %2, %3").arg(i).arg(x).arg(y)));
            }
        }
    }
    QVERIFY2(useful[0] > 20000 && useful[1] > 5000,
             qPrintable(QString("%1, %2").arg(useful[0]).arg(useful[1])));

    // As often as a curve is halved, each time to eighths: from 2^14 to 2^-4, of a float's 24 bits.
    Outline large;
    large.MoveTo(0, 0);
    large.CurveTo(0, 16384, 16384, -16384, 16384, 16384);
    QCOMPARE(Glyph(large).Steady().exact.y, float(1 << 20));

    // Flat in numbers without rounding, not in the device's: its halves have to be exact as well.
    Outline slope;
    slope.MoveTo(642.78125f, 433.125f);
    slope.CurveTo(681.71875f, 488.14453125f, 914.36328125f, 820.9296875f, 1018.21875f,
                  969.48046875f);
    QCOMPARE(Glyph(slope).Steady().exact.x, float(1 << 13));
}

void TestPaint::whatIsKeptIsBounded()
{
    const QVector<Sample> samples = Samples();
    TextCanvas canvas;
    canvas.SetSize(300, 100);
    size_t most = 0;
    for (int i = 0; i < 30000; ++i) {
        const Glyph glyph(samples[i / 3 % samples.size()].outline);
        TextPath page;
        page.Add(glyph, i / 3, Transform(), float(i / 30 % 200), 10);
        canvas.Clear();
        canvas.DrawText(page);
        most = qMax(most, canvas.Bytes());
    }
    QVERIFY2(most > 300000 && most < 500000, qPrintable(QString::number(most)));
}

void TestPaint::clipIsThePictureInside()
{
    for (const Sample& sample : Samples()) {
        if (sample.family != "lines")
            continue;
        const int left = 70, top = 5, w = sample.width, h = sample.height;
        TextCanvas canvas, inside;
        canvas.SetSize(left + w + 9, top + h + 3);
        canvas.SetClip({left, top, left + w, top + h});
        const Glyph glyph(sample.outline);
        TextPath text; // of odd-even glyphs
        text.Add(glyph, 0, Transform(), left, top);
        if (sample.outline.fillRule == Outline::OddEven)
            canvas.DrawText(text);
        else
            canvas.DrawGlyph({&glyph, 0, Transform(), left, top});
        inside.SetSize(w, h);
        inside.DrawPath(sample.outline);
        Plane moved;
        moved.SetSize(canvas.Ink().Width(), canvas.Ink().Height());
        for (int i = 0; i < w * h; ++i)
            if (inside.Ink().Has(i % w, i / w))
                moved.Set(i % w + left, i / w + top);
        EQUAL(sample.name, Rows(canvas.Ink()), Rows(moved));
    }
}

void TestPaint::transformOfThePainterMapsPoints()
{
    Transform zoom;
    zoom.translate(20.25f, 10);
    zoom.scale(0.75f, -1.5f);
    for (const Sample& sample : Samples()) {
        TextCanvas canvas;
        canvas.SetSize(sample.width, sample.height);
        canvas.DrawPath(sample.outline, zoom);
        EQUAL(sample.name, Rows(canvas.Ink()),
              CanvasRows(sample.width, sample.height, {zoom.map(sample.outline)}));
    }
}

void TestPaint::picturesHoldTheInk()
{
    TextCanvas canvas;
    const int height = 35;
    for (const int width : {1, 7, 8, 63, 64, 65, 128, 203, 32800}) { // the last beyond the limit
        Outline shape; // rows of all kinds: empty, full, edges anywhere
        for (int i = 0; i < 40; ++i) {
            const float x = float(i * i % (width + 3)) - 1;
            shape.MoveTo(x, 7);
            shape.LineTo(x + float(i), 21);
            shape.LineTo(x + 3, 28);
        }
        for (const QImage::Format format : {QImage::Format_ARGB32, QImage::Format_RGB888})
            for (const QRgb color : {qRgb(1, 2, 3), qRgb(250, 0, 128), qRgb(1, 2, 3)}) {
                const bool words = format == QImage::Format_ARGB32;
                canvas.SetSize(width, height);
                canvas.DrawPath(shape);
                const int padding = qGreen(color) == 0 ? 0 : 6;
                QByteArray row(width * (words ? 4 : 3) + padding, 'p');
                QByteArray bits = row.repeated(height);
                canvas.Write(color, {words ? Picture::Argb32 : Picture::Rgb888,
                                     reinterpret_cast<uchar*>(bits.data()), size_t(row.size()),
                                     width, height});
                for (int y = 0; y < height; ++y) {
                    QImage expected(width, 1, format);
                    expected.fill(0);
                    for (int x = 0; x < canvas.Ink().Width(); ++x)
                        if (canvas.Ink().Has(x, y))
                            expected.setPixel(x, 0, color);
                    std::memcpy(row.data(), expected.constBits(), size_t(row.size() - padding));
                    QVERIFY2(bits.mid(y * row.size(), row.size()) == row,
                             qPrintable(QString("width %1 row %2").arg(width).arg(y)));
                }
            }
    }
}

// Inside and outline are blended one after the other. Colors are rounded as on the device.
void TestPaint::translucentTextHasCoats()
{
    const QRgb paint = 0x80ff8040;
    const QRgb colors[2][5] = {{0, 0x80ff7f3f, 0xc0ff7f3f, 0xe0ff7f3e, 0xf0ff7f3e},
                               {0xff000000, 0xff804020, 0xffc06030, 0xffe07038, 0xfff0783c}};
    Outline square;
    for (const QPoint& corner : {QPoint(2, 2), QPoint(6, 2), QPoint(6, 6), QPoint(2, 6)})
        square.Add(corner.x(), corner.y(), square.Size() == 0 ? Outline::Move : Outline::Line);
    square.LineTo(2, 2);
    const Glyph glyph(square);
    TextPath text;
    text.Add(glyph, 0, Transform(), 0, 0);
    TextCanvas canvas;
    for (const bool hollow : {false, true})
        for (const int drawn : {1, 2})
            for (const bool words : {true, false})
                for (const QRgb color : {paint, paint & 0xffffff, paint | 0xff000000}) {
                    QImage picture(9, 9, words ? QImage::Format_ARGB32 : QImage::Format_RGB888);
                    canvas.SetSize(9, 9);
                    canvas.SetHollow(hollow);
                    canvas.SetTranslucent(qAlpha(color) < 255);
                    for (int i = 0; i < drawn; ++i)
                        i == 0 ? canvas.DrawText(text) : canvas.DrawGlyph(text.At(0));
                    canvas.Write(color, {words ? Picture::Argb32 : Picture::Rgb888, picture.bits(),
                                         size_t(picture.bytesPerLine()), 9, 9});
                    const auto coats = [&](int x, int y, int count) {
                        const QRgb expected = count == 0 || qAlpha(color) == 0 ? colors[!words][0]
                                              : qAlpha(color) == 255           ? color
                                                                     : colors[!words][count];
                        QCOMPARE(QString::number(picture.pixel(x, y), 16),
                                 QString::number(expected, 16));
                    };
                    coats(4, 4, hollow ? 0 : drawn);
                    coats(4, 2, hollow ? drawn : 2 * drawn); // the outline's row is inside, too
                    coats(4, 6, drawn);
                    coats(8, 8, 0);
                }
}

void TestPaint::picturesAreBlended()
{
    // Over nothing, over something translucent, over something opaque.
    uint32_t source[] = {0x80ff8040, 0x00ffffff, 0xff123456};
    uint32_t picture[3][5] = {{0, 0, 0, 0, 0}, {0x80204060, 1, 2, 3, 4}, {0xffffffff, 5, 6, 7, 8}};
    const Picture over = {Picture::Argb32, reinterpret_cast<uchar*>(source), 12, 3, 1};
    for (int y = 0; y < 3; ++y) {
        const Picture row = {Picture::Argb32, reinterpret_cast<uchar*>(picture[y]), 20, 4, 1};
        BlendPicture(over, 0, 0, row);
        for (const int at : {INT_MIN, -3, 4, INT_MAX}) {
            BlendPicture(over, at, 0, row);
            BlendPicture(over, 0, at < 0 ? at : at - 3, row);
        }
        BlendPicture(over, 3, 0, row);
    }
    const uint32_t expected[3][5] = {{0x80ff7f3f, 0, 0xff123456, 0x80ff7f3f, 0},
                                     {0xc0b46a4a, 1, 0xff123456, 0x80ff7f3f, 4},
                                     {0xffffbf9f, 5, 0xff123456, 0x80ff7f3f, 8}};
    for (int i = 0; i < 15; ++i)
        QCOMPARE(QString::number(picture[i / 5][i % 5], 16),
                 QString::number(expected[i / 5][i % 5], 16));
}

void TestPaint::whatCannotBePaintedIsNot()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    for (const float bad : {nan, infinite, -infinite}) {
        Outline outline;
        outline.MoveTo(1, 1);
        outline.LineTo(9, 1);
        outline.LineTo(5, 9);
        QVERIFY(CanvasRows(10, 10, {outline}).count(".") < 9);
        outline.LineTo(bad, 3);
        QCOMPARE(CanvasRows(10, 10, {outline}).count("."), 10);
        QCOMPARE(CanvasRows(-1, 10, {outline}).count("."), 10);
    }
    TextCanvas canvas;
    canvas.SetSize(10, 10);
    const Glyph space;
    for (int frame = 0; frame < 3; ++frame)
        canvas.DrawGlyph({&space, 0, Transform(), 4, 4});
    QCOMPARE(Rows(canvas.Ink()).count("."), 10);
    Outline joined; // a move at its end gives way, one alone is not taken over
    joined.MoveTo(1, 1);
    joined.Append(joined);
    QCOMPARE(joined.Size(), size_t(1));
    Outline line = joined;
    line.LineTo(2, 2);
    joined.Append(Transform().map(line, 1, 0));
    QCOMPARE(joined.Size(), size_t(2));
    QCOMPARE(joined.At(0).x, 2.0f);
    Outline broken;
    broken.LineTo(9, 9);
    QVERIFY(!broken.IsWellFormed());
    broken.Clear();
    broken.CurveTo(9, 0, 0, 9, 9, 9);
    QVERIFY(!broken.IsWellFormed());
    broken.RemoveLast();
    broken.At(0).type = Outline::Move;
    QVERIFY(!broken.IsWellFormed());
    QCOMPARE(CanvasRows(10, 10, {broken}).count("."), 10);
}

QTEST_GUILESS_MAIN(TestPaint)
#include "tst_paint.moc"
