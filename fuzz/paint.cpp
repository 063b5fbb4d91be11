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

/** Takes the fuzzer's bytes from their begin; zeros when there are no more. */
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
    fill.Take(outline, 0, nullptr);
    fill.Paint({0, 0, width, height}, plane);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (plane.Has(x, y) != IsInside(polygon, x, y))
                std::abort();
}

void PaintAnything(Bytes bytes)
{
    TextCanvas canvas;
    TextCanvas kept;
    canvas.SetSize(1 + bytes.Next<uint16_t>() % 300, 1 + bytes.Next<uint8_t>() % 60);
    kept.SetSize(width, height);
    const Box clip = {bytes.Next<int8_t>(), bytes.Next<int8_t>(), bytes.Next<int16_t>(), height};
    canvas.SetClip(clip);
    Outline outline;
    outline.fillRule = bytes.Next<uint8_t>() % 2 ? Outline::Winding : Outline::OddEven;
    while (bytes.size > 0 && outline.Size() < 200) {
        const int type = bytes.Next<uint8_t>() % 4;
        float c[6];
        for (float& v : c)
            v = type == 3 ? bytes.Next<int16_t>() / 64.0f : bytes.Next<float>();
        if (type == 0 || outline.Size() == 0)
            outline.MoveTo(c[4], c[5]);
        else if (type == 1)
            outline.LineTo(c[4], c[5]);
        else
            outline.CurveTo(c[0], c[1], c[2], c[3], c[4], c[5]);
        kept.Clear();
        kept.DrawPath(outline);
    }
    canvas.DrawPath(outline);
    TextCanvas plain;
    plain.SetSize(width, height);
    plain.SetClip({0, 0, width, height}); // keeps nothing
    plain.DrawPath(outline);
    for (int i = 0; i < width * height; ++i)
        if (kept.Ink().Has(i % width, i / width) != plain.Ink().Has(i % width, i / width))
            std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const Bytes bytes = {data, size};
    ComparePolygon(bytes);
    PaintAnything(bytes);
    return 0;
}
