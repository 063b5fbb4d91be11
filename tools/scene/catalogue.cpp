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
        {0, "FlyFromLeftEffect", flyIn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters fly in one by one, each from the right edge leftwards to its place")},
        {1, "FlyFromRightEffect", flyIn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the last character first, each flies from the left edge rightwards; pages end at the "
             "right edge"),
         FromEnd},
        {2, "FlyFromTopEffect", flyIn,
         QT_TRANSLATE_NOOP("Motions",
                           "characters rise one by one from below the bottom edge to their places"),
         ReachesTop},
        {3, "FlyFromBottomEffect", flyIn,
         QT_TRANSLATE_NOOP("Motions",
                           "characters drop one by one from the top edge to their places")},
        {4, "WordForWordOutputEffect", wordByWord,
         QT_TRANSLATE_NOOP("Motions", "characters appear whole, one after another, as if typed")},
        {5, "WavesEffect", oscillating,
         QT_TRANSLATE_NOOP(
             "Motions",
             "a wave travels to the right through the row, from edge to edge of the area"),
         ReachesTop},
        {6, "SwingEffect", oscillating,
         QT_TRANSLATE_NOOP("Motions", "the whole row sways sideways and leans as it goes")},
        {7, "BeforeAfterScalEffect", oscillating,
         QT_TRANSLATE_NOOP("Motions",
                           "every character pulses from its own size to half as large again"),
         Turns},
        {8, "TrembleEffect", oscillating,
         QT_TRANSLATE_NOOP("Motions",
                           "every character jitters at random by a few pixels, 61 frames a page")},
        {9, "WordForWordAmplificationEffect", wordByWord,
         QT_TRANSLATE_NOOP("Motions",
                           "characters grow out of nothing at their places, one after another"),
         Turns},
        {10, "WordForWordNarrowEffect", wordByWord,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters appear at double size and shrink to their own, one after another"),
         Turns},
        {11, "RotationEffect", rotation,
         QT_TRANSLATE_NOOP("Motions", "every character turns once clockwise about its middle"),
         Turns},
        {12, "RotationTrundleEffect", rotation,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the row rolls in from the right edge, each character spinning anticlockwise"),
         Turns},
        {13, "AngleRotationEffect", rotation,
         QT_TRANSLATE_NOOP("Motions",
                           "every character turns once clockwise about the middle of its baseline"),
         Turns},
        {14, "EffectInTurnFlips", rotation,
         QT_TRANSLATE_NOOP("Motions", "characters stand on their heads and flip upright over the "
                                      "baseline, one after another")},
        {15, "EffectInTurnUpwardZoom", inTurn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters swell upwards and sink to nothing in turn, like a wave through grass")},
        {16, "EffectInTurnDrop", inTurn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters drop from the top edge, each a little after its left neighbour")},
        {17, "Effect45DegreeAngleDrop", inTurn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters drop tilted by 45 degrees, bounce once and settle upright, in turn"),
         Turns},
        {18, "EffectZoomIn", stretch,
         QT_TRANSLATE_NOOP("Motions", "characters come in turn from the top of the right edge on "
                                      "slanted paths, widening from "
                                      "nothing"),
         Turns | ReachesTop},
        {19, "EffectTopWithFrogAppearsVerbatim", frogs,
         QT_TRANSLATE_NOOP(
             "Motions",
             "a frog hops along the top edge, and under it each character appears from its top "
             "downward")},
        {20, "EffectTopWithFrog", frogs,
         QT_TRANSLATE_NOOP(
             "Motions",
             "a frog hops along the top edge, and each character falls from there in five steps")},
        {21, "EffectRightToEnlarge", stretch,
         QT_TRANSLATE_NOOP("Motions",
                           "every character widens to the right from nothing to its full width"),
         Turns | EvenWidths},
        {22, "EffectDiagonalMoves", stretch,
         QT_TRANSLATE_NOOP(
             "Motions", "characters slide in turn from the top of the right edge on slanted paths"),
         ReachesTop},
        {23, "EffectRepeatTheWhereabouts", stretch,
         QT_TRANSLATE_NOOP("Motions", "every character climbs from the bottom edge to the top "
                                      "again and again, the right one "
                                      "ahead"),
         ReachesTop},
        {24, "EffectFromBothSidesInOrderToEnlarge", stretch,
         QT_TRANSLATE_NOOP(
             "Motions", "characters grow in pairs from both ends of the page to its middle, twice"),
         Turns | EvenWidths},
        {25, "Effect3DHorizontalRotation", rotation,
         QT_TRANSLATE_NOOP("Motions",
                           "the row turns round a vertical axis in its middle, away and back")},
        {26, "EffectFlipsInto", rotation,
         QT_TRANSLATE_NOOP("Motions", "the row gathers from five times its width while slanted "
                                      "characters narrow and widen"),
         Turns},
        {27, "EffectRotateInto", rotation,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the row gathers from five times its width while characters turn once anticlockwise"),
         Turns},
        {28, "EffectTextZoom", textZoom,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the page pulses in and out of nothing about its middle, two and a half times"),
         Turns},
        {29, "EffectShake", oscillating,
         QT_TRANSLATE_NOOP(
             "Motions",
             "every character rocks by up to 45 degrees, on one foot and then on the other"),
         Turns}};
    return effects;
}

const QList<Motion>& Scrolls()
{
    static const QList<Motion> scrolls{
        {0, "ContinueEffectLeft", scroll,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the line enters at the right edge and leaves at the left, moved by the device"),
         Sideways},
        {1, "ContinueEffectRight", scroll,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the line enters at the left edge and leaves at the right, moved by the device"),
         Sideways},
        {2, "ContinueEffectUp", scroll,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the characters, one above another, rise from the bottom edge without end")},
        {3, "ContinueEffectDown", scroll,
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
