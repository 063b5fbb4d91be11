#include "paint/dazzlemap.h"

#include <algorithm>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int linearStops = 40;
const int circularStops = 30;

// Qt's painter, which painted these gradients before, has 1024 colors for each and takes the one at
// the rounded 1023rd part of the way. So does this code, so signs look the same.
const int lastColor = DazzleMap::steps - 1;

// It counts along a linear gradient in 1/256 of a color, and truncates what a pixel adds.
const int linearFraction = 256;

// The last stop of a gradient ends it; beyond it the color stays.
const int lastLinearStep = (linearStops - 1) * DazzleMap::steps / DazzleMap::ringColors;
const int lastStep = (circularStops - 1) * DazzleMap::steps / DazzleMap::ringColors;

// Quarters begin this often, counted on where the ring is gone around more than once.
const int linearBorders = lastLinearStep / DazzleMap::quarter;
const int radialBorders = lastStep / DazzleMap::quarter;

// cos and sin of half a conical step, pi / 1023, and of a whole one, in 1/2^30.
const int64_t cosHalfStep = 1073736761;
const int64_t sinHalfStep = 3297414;
const int64_t cosStep = 1073721572;
const int64_t sinStep = 6594796;
const int fractionBits = 30;

// The direction in which the second quarter of the ring begins, 513 pi / 1023.
const int64_t cosQuarter = -4946085;
const int64_t sinQuarter = 1073730381;

/** Where steps begin on the upper half of a circle: directions, counterclockwise from the right. */
struct ConicalSteps
{
    static const int count = DazzleMap::steps / 2;
    int64_t cosine[count];
    int64_t sine[count];

    ConicalSteps()
    {
        cosine[0] = cosHalfStep;
        sine[0] = sinHalfStep;
        for (int i = 1; i < count; ++i) {
            cosine[i] = (cosine[i - 1] * cosStep - sine[i - 1] * sinStep) >> fractionBits;
            sine[i] = (sine[i - 1] * cosStep + cosine[i - 1] * sinStep) >> fractionBits;
        }
    }
};

// Products of the coordinates below fit in 64 bits up to here. No area is as large.
const int largest = 1 << 20;

/** Distances count half pixels: the middle of pixel @p at is an odd number of them away. */
int64_t FromMiddle(int at, int middle)
{
    return 2 * (int64_t(at) - middle) + 1;
}

} // namespace

void DazzleMap::Make(Shape newShape, int newWidth, int newHeight)
{
    newWidth = std::min(std::max(newWidth, 0), largest);
    newHeight = std::min(std::max(newHeight, 0), largest);
    if (shape == newShape && width == newWidth && height == newHeight)
        return;
    Forget();
    shape = newShape;
    width = newWidth;
    height = newHeight;
    if (width == 0 || height == 0)
        return;
    switch (shape) {
    case Plain: break;
    case Linear: MakeLinear(); break;
    case Radial: MakeRadial(); break;
    case Conical: MakeConical(); break;
    }
}

void DazzleMap::Forget()
{
    std::vector<uint8_t>().swap(map);
    std::vector<int>().swap(reaches);
    shape = Plain;
    width = height = 0;
}

/** The row of the map that holds row @p y: radial maps have one half of their mirrored rows. */
size_t DazzleMap::StoredRow(int y) const
{
    switch (shape) {
    case Plain:
    case Linear: return 0;
    case Radial: {
        const int middle = height / 2;
        return static_cast<size_t>(y < middle ? middle - 1 - y : y - middle);
    }
    case Conical: break;
    }
    return static_cast<size_t>(y);
}

const uint8_t* DazzleMap::Row(int y) const
{
    return shape == Plain ? 0 : &map[StoredRow(y) * static_cast<size_t>(width)];
}

bool DazzleMap::AreSame(int y1, int y2) const
{
    return StoredRow(y1) == StoredRow(y2);
}

int DazzleMap::Runs(int y, Run* runs) const
{
    int count = 0;
    const auto add = [&](int end, int ofQuarter) {
        runs[count].end = end;
        runs[count].firstStep = ofQuarter * quarter % steps;
        ++count;
    };
    const int middle = width / 2;
    switch (shape) {
    case Plain: add(width, 0); break;
    case Linear:
        for (int i = 0; i < linearBorders; ++i)
            add(reaches[static_cast<size_t>(i)], i);
        add(width, linearBorders);
        break;
    case Radial: {
        const int* const reach = &reaches[StoredRow(y) * radialBorders];
        for (int i = radialBorders; i > 0; --i)
            add(std::max(middle - reach[i - 1], 0), i);
        for (int i = 0; i < radialBorders; ++i)
            add(std::min(middle + reach[i], width), i);
        add(width, radialBorders);
        break;
    }
    case Conical:
        add(ColumnRightOf(y, cosQuarter, sinQuarter), 1);
        add(ColumnRightOf(y, cosHalfStep, sinHalfStep), 0);
        add(width, lastStep / quarter);
        break;
    }
    return count;
}

void DazzleMap::MakeLinear()
{
    map.resize(static_cast<size_t>(width));
    reaches.assign(linearBorders, 0);
    const int first = lastColor * linearFraction / 2 / width; // half a pixel
    const int each = lastColor * linearFraction / width;
    for (int x = 0; x < width; ++x) {
        const int color = (first + x * each + linearFraction / 2) / linearFraction;
        const int step = std::min((2 * color + 1) * linearStops / (2 * ringColors), lastLinearStep);
        for (int i = step / quarter; i < linearBorders; ++i)
            ++reaches[static_cast<size_t>(i)];
        map[static_cast<size_t>(x)] = static_cast<uint8_t>(step % quarter);
    }
}

void DazzleMap::MakeRadial()
{
    const int middleX = width / 2;
    const int middleY = height / 2;
    const int rows = height - middleY; // the lower half is never the smaller one
    map.resize(static_cast<size_t>(rows) * static_cast<size_t>(width));
    reaches.assign(static_cast<size_t>(rows) * radialBorders, 0);

    // Squares of the distances at which each step begins, in half pixels.
    const int64_t radius = width / 2;
    int64_t begins[lastStep + 1];
    for (int step = 1; step <= lastStep; ++step) {
        const int64_t distance = (2 * step - 1) * radius; // in 1/1023
        begins[step] = (distance * distance + lastColor * lastColor - 1) / (lastColor * lastColor);
    }
    for (int row = 0; row < rows; ++row) {
        uint8_t* const to = &map[static_cast<size_t>(row) * static_cast<size_t>(width)];
        int* const reach = &reaches[static_cast<size_t>(row) * radialBorders];
        const int64_t dy = FromMiddle(row, 0);
        int step = 0;
        for (int k = 0; k < width - middleX; ++k) {
            const int64_t dx = FromMiddle(k, 0);
            const int64_t distance = dx * dx + dy * dy;
            while (step < lastStep && distance >= begins[step + 1])
                ++step;
            for (int i = step / quarter; i < radialBorders; ++i)
                ++reach[i];
            const uint8_t byte = static_cast<uint8_t>(step % quarter);
            to[middleX + k] = byte;
            if (k < middleX)
                to[middleX - 1 - k] = byte;
        }
    }
}

void DazzleMap::MakeConical()
{
    map.resize(static_cast<size_t>(height) * static_cast<size_t>(width));
    // All of the area is above the middle: half a turn, half the ring.
    const ConicalSteps steps;
    for (int y = 0; y < height; ++y) {
        uint8_t* const to = &map[static_cast<size_t>(y) * static_cast<size_t>(width)];
        const int64_t up = -FromMiddle(y, height);
        int passed = ConicalSteps::count - 1; // to the left; rightward the angle becomes smaller
        for (int x = 0; x < width; ++x) {
            const int64_t right = FromMiddle(x, width / 2);
            while (passed >= 0 && right * steps.sine[passed] > up * steps.cosine[passed])
                --passed;
            // Before the first step the ring closes.
            to[x] = static_cast<uint8_t>((passed < 0 ? lastStep : passed) % quarter);
        }
    }
}

/** The first column to the right of a direction from the middle of the bottom edge. */
int DazzleMap::ColumnRightOf(int y, int64_t cosine, int64_t sine) const
{
    // As MakeConical() compares: right * sine > up * cosine. Both divisions round down.
    const int64_t product = -FromMiddle(y, height) * cosine;
    const int64_t halfPixels = (product - (product < 0 ? sine - 1 : 0)) / sine;
    const int64_t column = width / 2 + (halfPixels + 1 - ((halfPixels + 1) & 1)) / 2;
    return static_cast<int>(std::min<int64_t>(width, std::max<int64_t>(0, column)));
}

} // namespace HNodeAnimationText
} // namespace Lw
