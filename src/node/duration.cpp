// The planned time of a node, which the host schedules with: ticks of 66 ms of animation, and each
// page's hold. A few effects run a frame or more longer. Existing schedules depend on this model,
// so it must not change.
#include "node/hanimationtextnode.h"

#include "device/device.h"
#include "node/attribute.h"
#include "node/motions.h"
#include "text/wrapping.h"

#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int unknownDuration = 6000; // ms, static text and unknown modes

// What the frame counts of the effects depend on.
struct Play
{
    int speed;
    int textLength;
    int areaWidth;
    int areaHeight;
    int maxWidth;
    int maxHeight;
    QList<int> breaks;     // of the pages, one more than there are pages
    QVector<int> descents; // per character

    int Pages() const { return breaks.size() - 1; }
    // Steps that a counter takes per frame, and ticks that a frame takes.
    int Step() const { return speed >= 5 ? speed - 4 : 1; }
    qint64 TicksPerFrame() const { return speed >= 5 ? 1 : qint64(6) - speed; }
};

// Integer division that rounds down, for a positive divisor.
qint64 Floor(qint64 dividend, qint64 divisor)
{
    const qint64 quotient = dividend / divisor;
    return dividend % divisor < 0 ? quotient - 1 : quotient;
}

// A cycle of `steps` counted in the speed's own way: 6 - v ticks a step, or v - 4 steps a tick.
qint64 CycleTicks(const Play& play, qint64 steps)
{
    return play.speed < 5 ? steps * Wrapped(play.TicksPerFrame()) : steps / play.Step();
}

// Each character rises or falls to its place over twice the distance from its edge to its middle.
qint64 VerticalFlyFrames(const Play& play, int descentFactor)
{
    qint64 frames = 0;
    for (int i = 0; i < play.textLength; ++i) {
        const qint64 travel = qint64(play.areaHeight) + play.maxHeight -
                              qint64(descentFactor) * play.descents.value(i);
        frames += qMax<qint64>(1, Floor(travel, qint64(2) * play.Step()) + 1);
    }
    return frames;
}

// The characters of a page start one step apart and fall for `factor` times the height of the last
// one's baseline.
qint64 DropFrames(const Play& play, double factor)
{
    qint64 frames = 0;
    for (int page = 0; page < play.Pages(); ++page) {
        const int end = play.breaks.at(page + 1);
        const int characters = end - play.breaks.at(page);
        const qint64 baseline =
            qint64(play.areaHeight / 2) + play.maxHeight / 2 - play.descents.value(end - 1);
        const qint64 fall = static_cast<qint64>(std::floor(factor * double(baseline)));
        frames += qMax<qint64>(1, characters + Floor(fall, play.Step()) + 1);
    }
    return frames;
}

qint64 SlantedZoomFrames(const Play& play)
{
    qint64 frames = 0;
    for (int page = 0; page < play.Pages(); ++page) {
        const qint64 characters = play.breaks.at(page + 1) - play.breaks.at(page);
        frames += Floor(play.areaWidth + play.Step() * characters, qint64(3) * play.Step()) + 1;
    }
    return frames;
}

// Ticks of animation in one run over all pages, except for the sideways fly-ins.
qint64 AnimationTicks(const Play& play, int effect)
{
    const qint64 n = play.textLength;
    const qint64 pages = play.Pages();
    const qint64 step = play.Step();
    const qint64 slow = Wrapped(qint64(10) - play.speed);
    qint64 frames = 0;
    switch (effect) {
    case Entrance::FlyFromTop: frames = VerticalFlyFrames(play, 0); break;
    case Entrance::FlyFromBottom: frames = VerticalFlyFrames(play, 2); break;
    case Entrance::WordForWordOutput: return n * slow;
    case Entrance::Waves: frames = n + pages * (103 / step + 1); break;
    case Entrance::Swing:
    case Entrance::BeforeAfterScal:
    case Entrance::Rotation:
    case Entrance::AngleRotation:
    case Entrance::RotateInto:
    case Entrance::Shake: return pages * CycleTicks(play, 360);
    case Entrance::Tremble: return 61 * pages * slow;
    case Entrance::WordForWordAmplification:
    case Entrance::WordForWordNarrow: return n * CycleTicks(play, 45);
    case Entrance::RotationTrundle: return pages * Wrapped(CycleTicks(play, play.areaWidth));
    case Entrance::InTurnFlips: frames = n + pages * (179 / step + 1); break;
    case Entrance::InTurnUpwardZoom: frames = pages * (200 / step + 1); break;
    case Entrance::InTurnDrop: frames = DropFrames(play, 1.0); break;
    case Entrance::AngleDrop45Degree: frames = DropFrames(play, 2.2); break;
    case Entrance::ZoomIn: frames = SlantedZoomFrames(play); break;
    case Entrance::TopWithFrogAppearsVerbatim:
    case Entrance::TopWithFrog: return n * 5 * slow;
    case Entrance::RightToEnlarge: return pages * Wrapped(CycleTicks(play, play.maxWidth));
    case Entrance::DiagonalMoves: frames = n + pages * (Floor(play.areaWidth, step) + 1); break;
    case Entrance::RepeatTheWhereabouts: frames = pages * (100 / step + 1); break;
    case Entrance::FromBothSidesInOrderToEnlarge:
        frames = 2 * (n + pages * (play.maxWidth / step + 1));
        break;
    case Entrance::HorizontalRotation3D: frames = pages * (41 / step + 1); break;
    case Entrance::FlipsInto: frames = pages * (360 / (3 * step) + 1); break;
    case Entrance::TextZoom: frames = pages * (240 / step + 1); break;
    default: break;
    }
    return qint64(Wrapped(frames)) * Wrapped(play.TicksPerFrame());
}

// The sideways fly-ins, in milliseconds: character i flies over the width of the characters before
// it.
int HorizontalFlyTime(const LineWidths& line, int length, int firstOffset, int speed)
{
    int time = 0;
    for (int i = 0; i < length; ++i) {
        const int distance = WrappingSum(line.CountWith(i), -firstOffset);
        if (speed >= 5)
            time = WrappingSum(time, WrappingProduct(distance / (speed - 4), tickInterval));
        else
            time = Truncated(time + distance * double(tickInterval) * (6.0 - speed));
    }
    return time;
}

} // namespace

int HAnimationTextNode::Duration()
{
    pageBreaks.clear();
    pageOffsets.clear();
    InitPainterPath();
    SelectPath(1);

    switch (Attribute(this, "EffectType")) {
    case Mode::Entrance: return EffectDuration(Attribute(this, "AnimationEffect"));
    case Mode::Scroll: return ScrollDuration(Attribute(this, "ContinueStyle"));
    default: return unknownDuration;
    }
}

int HAnimationTextNode::ScrollDuration(int style)
{
    if (style < Scroll::Left || style > Scroll::Down)
        return unknownDuration;

    const int speed = Attribute(this, "ContinueSpeed");
    if (style == Scroll::Left || style == Scroll::Right) {
        const QSize area = Size();
        const int speedIndex = WrappingSum(speed, -1);
        const int acrossArea =
            GeteffectDuration(area.width(), area.height(), scrollsLeft, speedIndex);
        const int acrossText =
            GeteffectDuration(GetTotalTextWith(), area.height(), scrollsLeft, speedIndex);
        return WrappingProduct(WrappingSum(acrossArea, acrossText), PlayTimes());
    }

    const int height = CountTotalHeight();
    if (speed < 5)
        return WrappingProduct(
            WrappingProduct(Wrapped(qint64(6) - speed), WrappingProduct(height, tickInterval)),
            PlayTimes());
    return Truncated(double(height) / (speed - 4) * double(tickInterval) * PlayTimes());
}

int HAnimationTextNode::EffectDuration(int effect)
{
    if (effect < 0 || effect > Entrance::Last)
        return unknownDuration;

    const int length = Text().size();
    const int pages = pageOffsets.size() - 1;
    int animation = 0;
    if (effect == Entrance::FlyFromLeft || effect == Entrance::FlyFromRight) {
        animation = HorizontalFlyTime(TextWidths(), length, pageOffsets.value(0), AnimationSpeed());
    } else {
        const Play play = {AnimationSpeed(), length,          Size().width(), Size().height(),
                           MaxTextWidth(),   MaxTextHeight(), pageBreaks,     descentData};
        animation = WrappingProduct(Wrapped(AnimationTicks(play, effect)), tickInterval);
    }
    const int hold = WrappingProduct(pages, WrappingProduct(GetHoldTime(), 100));
    return WrappingProduct(PlayTimes(), WrappingSum(animation, hold));
}

} // namespace HNodeAnimationText
} // namespace Lw
