#include "validate/playtime.h"

#include <algorithm>
#include <cmath>

namespace AnimText {
namespace {

const double tick = 66;           // ms between two frames
const double standardTime = 6000; // ms, of whatever does not move

int Largest(const QVector<int>& values)
{
    return values.isEmpty() ? 0 : qMax(0, *std::max_element(values.begin(), values.end()));
}

double Sum(const QVector<int>& values)
{
    double sum = 0;
    for (int value : values)
        sum += value;
    return sum;
}

/** Pixels, degrees or the like that an effect moves through, in ticks at a speed. */
class Pace
{
public:
    explicit Pace(int speed)
        : step(speed < 5 ? 1 : speed - 4)
        , ticksPerFrame(speed < 5 ? 6 - speed : 1)
    {
    }

    double Step() const { return step; }
    /** Ticks of a way that is covered in whole steps. */
    double Way(double way) const { return std::floor(way / step) * ticksPerFrame; }
    double Frames(double frames) const { return frames * ticksPerFrame; }

private:
    double step;
    double ticksPerFrame;
};

/** Frames of effects whose length hangs on the page: @p frames of each page's characters. */
template <typename FramesOfPage>
double OverPages(const PlayTimeInput& in, FramesOfPage frames)
{
    double sum = 0;
    for (int p = 0; p + 1 < in.pageStarts.size(); ++p)
        sum += frames(in.pageStarts[p], in.pageStarts[p + 1]);
    return sum;
}

/** The height from which the last character of a page, @p last, drops. */
double DropHeight(const PlayTimeInput& in, int last)
{
    return in.area.height() / 2 + Largest(in.heights) / 2 - in.descents.value(last);
}

double FlyInTicks(const PlayTimeInput& in, const Pace& pace)
{
    double ticks = 0;
    double before = 0;
    for (int width : in.widths) {
        ticks += pace.Way(before);
        before += width;
    }
    return ticks;
}

double FallTicks(const PlayTimeInput& in, const Pace& pace)
{
    double frames = 0;
    for (int i = 0; i < in.widths.size(); ++i) {
        const double landing = in.motion == 3 ? 2.0 * in.descents.value(i) : 0;
        const double way = in.area.height() + Largest(in.heights) - landing;
        frames += qMax(1.0, std::floor(way / (2 * pace.Step())) + 1);
    }
    return pace.Frames(frames);
}

/** Ticks of one showing of all pages, without the holds. */
double EntranceTicks(const PlayTimeInput& in)
{
    const Pace pace(in.speed);
    const double s = pace.Step();
    const double n = in.widths.size();
    const double pages = in.pageStarts.size() - 1;
    const double width = in.area.width();
    const double widest = Largest(in.widths);
    const auto eachPage = [&](double way) { return pages * (std::floor(way / s) + 1); };
    switch (in.motion) {
    case 0:
    case 1: return FlyInTicks(in, pace);
    case 2:
    case 3: return FallTicks(in, pace);
    case 4: return n * (10 - in.speed);
    case 5: return pace.Frames(n + eachPage(103));
    case 6:
    case 7:
    case 11:
    case 13:
    case 27:
    case 29: return pages * pace.Way(360);
    case 8: return 61 * pages * (10 - in.speed);
    case 9:
    case 10: return n * pace.Way(45);
    case 12: return pages * pace.Way(width);
    case 14: return pace.Frames(n + eachPage(179));
    case 15: return pace.Frames(eachPage(200));
    case 16:
        return pace.Frames(OverPages(in, [&](int from, int to) {
            return qMax(1.0, to - from + std::floor(DropHeight(in, to - 1) / s) + 1);
        }));
    case 17:
        return pace.Frames(OverPages(in, [&](int from, int to) {
            const double way = std::floor(2.2 * DropHeight(in, to - 1));
            return qMax(1.0, to - from + std::floor(way / s) + 1);
        }));
    case 18:
        return pace.Frames(OverPages(in, [&](int from, int to) {
            return std::floor((width + s * (to - from)) / (3 * s)) + 1;
        }));
    case 19:
    case 20: return n * 5 * (10 - in.speed);
    case 21: return pages * pace.Way(widest);
    case 22: return pace.Frames(n + eachPage(width));
    case 23: return pace.Frames(eachPage(100));
    case 24: return pace.Frames(2 * (n + eachPage(widest)));
    case 25: return pace.Frames(eachPage(41));
    case 26: return pace.Frames(pages * (std::floor(360 / (3 * s)) + 1));
    case 28: return pace.Frames(eachPage(240));
    default: return 0;
    }
}

/** How long scrolling by @p way pixels takes. */
double ScrollTime(double way, int speed)
{
    return speed < 5 ? way * tick * (6 - speed) : std::floor(way / (speed - 4) * tick);
}

} // namespace

double PlayTime(const PlayTimeInput& in)
{
    const bool scrolls = in.mode == 1;
    if (in.mode < 0 || in.mode > 1 || in.motion < 0 || in.motion > (scrolls ? 3 : 29))
        return standardTime;
    if (!scrolls) {
        const double holds = double(in.pageStarts.size() - 1) * in.hold * 100;
        return in.plays * (tick * EntranceTicks(in) + holds);
    }
    if (in.motion < 2)
        return in.plays *
               (ScrollTime(in.area.width(), in.speed) + ScrollTime(Sum(in.widths), in.speed));
    const double height = Sum(in.heights);
    return in.speed < 5 ? in.plays * (6 - in.speed) * height * tick
                        : std::floor(height / (in.speed - 4) * tick * in.plays);
}

} // namespace AnimText
