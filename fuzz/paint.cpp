// Outlines from any bytes. Polygons on a grid within the picture are compared with slow and obvious
// code; everything else only has to stay within the planes and come to an end.
#include "paint/textcanvas.h"

#include <cstdlib>
#include <cstring>

using namespace Lw::HNodeAnimationText;

namespace {

const int width = 70;
const int height = 20;
const int unit = 64;

/** Reads the fuzzer's bytes in order; zeros at the end. */
struct Bytes
{
    const uint8_t* data;
    size_t size;

    template <typename T>
    T Next()
    {
        T value{};
        const size_t count = size < sizeof value ? size : sizeof value;
        if (count > 0)
            std::memcpy(&value, data, count);
        data += count;
        size -= count;
        return value;
    }
};

/** Columns of closed edges at a row, rounded up from the exact place; by the 16.16 step, truncated.
 */
int Column(const Place& a, const Place& b, int row)
{
    const int64_t step = static_cast<int64_t>(float(b.x - a.x) / float(b.y - a.y) * 65536.0f);
    const int64_t at = int64_t(a.x) * 1024 + (step * (int64_t(row) * 65536 - a.y * 1024) >> 16);
    return static_cast<int>((at + 65535) >> 16);
}

bool IsInside(const std::vector<Place>& polygon, int x, int y)
{
    bool inside = false;
    for (size_t i = 0; i < polygon.size(); ++i) {
        Place a = polygon[i];
        Place b = polygon[(i + 1) % polygon.size()];
        if (a.y > b.y)
            std::swap(a, b);
        if (a.y <= y * unit && y * unit < b.y && Column(a, b, y) <= x)
            inside = !inside;
    }
    return inside;
}

void ComparePolygon(Bytes bytes)
{
    std::vector<Place> polygon;
    Outline outline;
    while (bytes.size > 0 && polygon.size() < 40) {
        // A pixel from the borders, where columns are not cut.
        const Place p = {unit + bytes.Next<uint16_t>() % ((width - 2) * unit),
                         bytes.Next<uint16_t>() % (height * unit)};
        polygon.push_back(p);
        outline.Add(float(p.x) / unit, float(p.y) / unit,
                    polygon.size() == 1 ? Outline::Move : Outline::Line);
    }
    if (polygon.size() < 3)
        return;
    Fill fill;
    fill.SetSize(width, height);
    Plane plane;
    plane.SetSize(width, height);
    fill.Paint(outline, Transform(), {0, 0, width, height}, plane);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (plane.Has(x, y) != IsInside(polygon, x, y))
                std::abort();
}

Outline AnyOutline(Bytes& bytes)
{
    Outline outline;
    outline.fillRule = bytes.Next<uint8_t>() % 2 ? Outline::Winding : Outline::OddEven;
    const bool closes = bytes.Next<uint8_t>() % 8 > 0; // as a font's glyphs
    const unsigned most = bytes.Next<uint8_t>() % 64;
    Point start = {0, 0};
    while (bytes.size > 0 && outline.Size() < most) {
        const int type = bytes.Next<uint8_t>() % 8;
        float c[6];
        for (float& v : c) // thirds, as of curves that were quadratic; 64ths; anything
            v = type == 7   ? bytes.Next<float>()
                : type >= 4 ? bytes.Next<int16_t>() / 64.0f
                            : bytes.Next<int16_t>() / 1536.0f;
        if (type == 0 || outline.Size() == 0) {
            if (closes && outline.Size() > 0)
                outline.LineTo(start.x, start.y);
            start = {c[4], c[5]};
            outline.MoveTo(c[4], c[5]);
        } else if (type == 1) {
            outline.LineTo(c[4], c[5]);
        } else {
            outline.CurveTo(c[0], c[1], c[2], c[3], c[4], c[5]);
        }
    }
    if (closes && outline.Size() > 0)
        outline.LineTo(start.x, start.y);
    return outline;
}

void PaintAnything(Bytes bytes)
{
    TextCanvas canvas;
    canvas.SetSize(1 + bytes.Next<uint16_t>() % 300, 1 + bytes.Next<uint8_t>() % 60);
    const Box clip = {bytes.Next<int8_t>(), bytes.Next<int8_t>(), bytes.Next<int16_t>(), height};
    canvas.SetClip(clip);
    canvas.DrawPath(AnyOutline(bytes));
}

/** Frames of a page painted glyph by glyph, partly from the cache, and as one path. */
void ComparePages(Bytes bytes)
{
    const std::vector<Glyph> glyphs = {Glyph(AnyOutline(bytes)), Glyph(AnyOutline(bytes))};
    const int pageWidth = 32 << bytes.Next<uint8_t>() % 6;
    TextCanvas canvas;
    TextCanvas plain;
    canvas.SetSize(pageWidth, height);
    plain.SetSize(pageWidth, height);
    float x[] = {0, 0};
    float y[] = {0, 0};
    Transform shape;
    for (int frame = 0; frame < 24 && bytes.size > 0; ++frame) {
        const int what = bytes.Next<uint8_t>() % 8;
        const int moved = what / 4;
        if (what % 4 == 0)
            x[moved] = float(bytes.Next<uint16_t>() % (pageWidth + 60) - 30);
        else if (what % 4 == 1)
            y[moved] = float(bytes.Next<int8_t>() % 32);
        else if (what % 4 == 2)
            x[moved] += bytes.Next<int8_t>() / 8.0f;
        else if (what == 3)
            shape.rotate(float(bytes.Next<int8_t>()));
        Transform zoom;
        if (what == 7)
            zoom.scale(bytes.Next<int8_t>() / 32.0f, bytes.Next<int8_t>() / 32.0f);
        TextPath page;
        for (int i = 0; i < 2; ++i)
            page.Add(glyphs[size_t(i)], i, shape, x[i], y[i]);
        for (int again = 0; again < 3; ++again) {
            canvas.Clear();
            canvas.DrawText(page, zoom);
        }
        plain.Clear();
        plain.DrawPath(page.Path(), zoom);
        for (int at = 0; at < pageWidth * height; ++at)
            if (canvas.Ink().Has(at % pageWidth, at / pageWidth) !=
                plain.Ink().Has(at % pageWidth, at / pageWidth))
                std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const Bytes bytes = {data, size};
    ComparePolygon(bytes);
    PaintAnything(bytes);
    ComparePages(bytes);
    return 0;
}
