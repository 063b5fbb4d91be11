#include "scene/catalogue.h"

#include <QtGlobal>

namespace AnimText {

namespace {

const char flyIn[] = QT_TRANSLATE_NOOP("Motions", "fly-in");
const char wordByWord[] = QT_TRANSLATE_NOOP("Motions", "word by word");
const char oscillating[] = QT_TRANSLATE_NOOP("Motions", "oscillating");
const char rotation[] = QT_TRANSLATE_NOOP("Motions", "rotation and flip");
const char inTurn[] = QT_TRANSLATE_NOOP("Motions", "in turn");
const char stretch[] = QT_TRANSLATE_NOOP("Motions", "stretch and move");
const char textZoom[] = QT_TRANSLATE_NOOP("Motions", "text zoom");
const char frogs[] = QT_TRANSLATE_NOOP("Motions", "frogs");
const char scroll[] = QT_TRANSLATE_NOOP("Motions", "scroll");

} // namespace

const QList<Motion>& Effects()
{
    static const QList<Motion> effects{
        {0, "FlyFromLeftEffect", QT_TRANSLATE_NOOP("Motions", "Fly to the left"), flyIn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters fly in one by one, each from the right edge leftwards to its place")},
        {1, "FlyFromRightEffect", QT_TRANSLATE_NOOP("Motions", "Fly to the right"), flyIn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the last character first, each flies from the left edge rightwards; pages end at the "
             "right edge"),
         FromEnd},
        {2, "FlyFromTopEffect", QT_TRANSLATE_NOOP("Motions", "Rise one by one"), flyIn,
         QT_TRANSLATE_NOOP("Motions",
                           "characters rise one by one from below the bottom edge to their places"),
         ReachesTop},
        {3, "FlyFromBottomEffect", QT_TRANSLATE_NOOP("Motions", "Drop one by one"), flyIn,
         QT_TRANSLATE_NOOP("Motions",
                           "characters drop one by one from the top edge to their places")},
        {4, "WordForWordOutputEffect", QT_TRANSLATE_NOOP("Motions", "Typewriter"), wordByWord,
         QT_TRANSLATE_NOOP("Motions", "characters appear whole, one after another, as if typed")},
        {5, "WavesEffect", QT_TRANSLATE_NOOP("Motions", "Wave"), oscillating,
         QT_TRANSLATE_NOOP(
             "Motions",
             "a wave travels to the right through the row, from edge to edge of the area"),
         ReachesTop},
        {6, "SwingEffect", QT_TRANSLATE_NOOP("Motions", "Sway"), oscillating,
         QT_TRANSLATE_NOOP("Motions", "the whole row sways sideways and leans as it goes")},
        {7, "BeforeAfterScalEffect", QT_TRANSLATE_NOOP("Motions", "Pulse"), oscillating,
         QT_TRANSLATE_NOOP("Motions",
                           "every character pulses from its own size to half as large again"),
         Turns},
        {8, "TrembleEffect", QT_TRANSLATE_NOOP("Motions", "Tremble"), oscillating,
         QT_TRANSLATE_NOOP("Motions",
                           "every character jitters at random by a few pixels, 61 frames a page")},
        {9, "WordForWordAmplificationEffect", QT_TRANSLATE_NOOP("Motions", "Grow one by one"),
         wordByWord,
         QT_TRANSLATE_NOOP("Motions",
                           "characters grow out of nothing at their places, one after another"),
         Turns},
        {10, "WordForWordNarrowEffect", QT_TRANSLATE_NOOP("Motions", "Shrink one by one"),
         wordByWord,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters appear at double size and shrink to their own, one after another"),
         Turns},
        {11, "RotationEffect", QT_TRANSLATE_NOOP("Motions", "Spin about the middle"), rotation,
         QT_TRANSLATE_NOOP("Motions", "every character turns once clockwise about its middle"),
         Turns},
        {12, "RotationTrundleEffect", QT_TRANSLATE_NOOP("Motions", "Roll in"), rotation,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the row rolls in from the right edge, each character spinning anticlockwise"),
         Turns},
        {13, "AngleRotationEffect", QT_TRANSLATE_NOOP("Motions", "Spin about the baseline"),
         rotation,
         QT_TRANSLATE_NOOP("Motions",
                           "every character turns once clockwise about the middle of its baseline"),
         Turns},
        {14, "EffectInTurnFlips", QT_TRANSLATE_NOOP("Motions", "Flip upright"), rotation,
         QT_TRANSLATE_NOOP("Motions", "characters stand on their heads and flip upright over the "
                                      "baseline, one after another")},
        {15, "EffectInTurnUpwardZoom", QT_TRANSLATE_NOOP("Motions", "Swell in turn"), inTurn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters swell upwards and sink to nothing in turn, like a wave through grass")},
        {16, "EffectInTurnDrop", QT_TRANSLATE_NOOP("Motions", "Drop in turn"), inTurn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters drop from the top edge, each a little after its left neighbour")},
        {17, "Effect45DegreeAngleDrop", QT_TRANSLATE_NOOP("Motions", "Drop and bounce"), inTurn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters drop tilted by 45 degrees, bounce once and settle upright, in turn"),
         Turns},
        {18, "EffectZoomIn", QT_TRANSLATE_NOOP("Motions", "Widen along a slant"), stretch,
         QT_TRANSLATE_NOOP("Motions", "characters come in turn from the top of the right edge on "
                                      "slanted paths, widening from "
                                      "nothing"),
         Turns | ReachesTop},
        {19, "EffectTopWithFrogAppearsVerbatim", QT_TRANSLATE_NOOP("Motions", "Frog uncovers"),
         frogs,
         QT_TRANSLATE_NOOP(
             "Motions",
             "a frog hops along the top edge, and under it each character appears from its top "
             "downward")},
        {20, "EffectTopWithFrog", QT_TRANSLATE_NOOP("Motions", "Frog drops"), frogs,
         QT_TRANSLATE_NOOP(
             "Motions",
             "a frog hops along the top edge, and each character falls from there in five steps")},
        {21, "EffectRightToEnlarge", QT_TRANSLATE_NOOP("Motions", "Widen to the right"), stretch,
         QT_TRANSLATE_NOOP("Motions",
                           "every character widens to the right from nothing to its full width"),
         Turns | EvenWidths},
        {22, "EffectDiagonalMoves", QT_TRANSLATE_NOOP("Motions", "Slide along a slant"), stretch,
         QT_TRANSLATE_NOOP(
             "Motions", "characters slide in turn from the top of the right edge on slanted paths"),
         ReachesTop},
        {23, "EffectRepeatTheWhereabouts", QT_TRANSLATE_NOOP("Motions", "Climb again and again"),
         stretch,
         QT_TRANSLATE_NOOP("Motions", "every character climbs from the bottom edge to the top "
                                      "again and again, the right one "
                                      "ahead"),
         ReachesTop},
        {24, "EffectFromBothSidesInOrderToEnlarge",
         QT_TRANSLATE_NOOP("Motions", "Grow from both ends"), stretch,
         QT_TRANSLATE_NOOP(
             "Motions", "characters grow in pairs from both ends of the page to its middle, twice"),
         Turns | EvenWidths},
        {25, "Effect3DHorizontalRotation", QT_TRANSLATE_NOOP("Motions", "Turn the row"), rotation,
         QT_TRANSLATE_NOOP("Motions",
                           "the row turns round a vertical axis in its middle, away and back")},
        {26, "EffectFlipsInto", QT_TRANSLATE_NOOP("Motions", "Gather and flip"), rotation,
         QT_TRANSLATE_NOOP("Motions", "the row gathers from five times its width while slanted "
                                      "characters narrow and widen"),
         Turns},
        {27, "EffectRotateInto", QT_TRANSLATE_NOOP("Motions", "Gather and spin"), rotation,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the row gathers from five times its width while characters turn once anticlockwise"),
         Turns},
        {28, "EffectTextZoom", QT_TRANSLATE_NOOP("Motions", "Pulse the page"), textZoom,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the page pulses in and out of nothing about its middle, two and a half times"),
         Turns},
        {29, "EffectShake", QT_TRANSLATE_NOOP("Motions", "Rock"), oscillating,
         QT_TRANSLATE_NOOP(
             "Motions",
             "every character rocks by up to 45 degrees, on one foot and then on the other"),
         Turns}};
    return effects;
}

const QList<Motion>& Scrolls()
{
    static const QList<Motion> scrolls{
        {0, "ContinueEffectLeft", QT_TRANSLATE_NOOP("Motions", "Scroll left"), scroll,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the line enters at the right edge and leaves at the left, moved by the device"),
         Sideways},
        {1, "ContinueEffectRight", QT_TRANSLATE_NOOP("Motions", "Scroll right"), scroll,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the line enters at the left edge and leaves at the right, moved by the device"),
         Sideways},
        {2, "ContinueEffectUp", QT_TRANSLATE_NOOP("Motions", "Scroll up"), scroll,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the characters, one above another, rise from the bottom edge without end")},
        {3, "ContinueEffectDown", QT_TRANSLATE_NOOP("Motions", "Scroll down"), scroll,
         QT_TRANSLATE_NOOP(
             "Motions", "the characters, one above another, sink from the top edge without end")}};
    return scrolls;
}

const Motion* FindEffect(int number)
{
    return number >= 0 && number < Effects().size() ? &Effects().at(number) : nullptr;
}

const Motion* FindScroll(int number)
{
    return number >= 0 && number < Scrolls().size() ? &Scrolls().at(number) : nullptr;
}

const Motion* FindEffect(const QString& numberOrName)
{
    bool isNumber = false;
    const int number = numberOrName.toInt(&isNumber);
    if (isNumber)
        return FindEffect(number);
    for (const Motion& effect : Effects()) {
        if (numberOrName.compare(QLatin1String(effect.name), Qt::CaseInsensitive) == 0)
            return &effect;
    }
    return nullptr;
}

const Motion* FindScroll(const QString& name)
{
    static const char* const directions[] = {"left", "right", "up", "down"};
    for (const Motion& motion : Scrolls()) {
        if (name.compare(QLatin1String(directions[motion.number]), Qt::CaseInsensitive) == 0 ||
            name.compare(QLatin1String(motion.name), Qt::CaseInsensitive) == 0)
            return &motion;
    }
    return nullptr;
}

} // namespace AnimText
