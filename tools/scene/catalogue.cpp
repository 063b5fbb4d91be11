#include "scene/catalogue.h"

namespace AnimText {

namespace {

const char flyIn[] = "fly-in";
const char wordByWord[] = "word by word";
const char oscillating[] = "oscillating";
const char rotation[] = "rotation and flip";
const char inTurn[] = "in turn";
const char stretch[] = "stretch and move";
const char textZoom[] = "text zoom";
const char frogs[] = "frogs";
const char scroll[] = "scroll";

} // namespace

const QList<Motion>& Effects()
{
    static const QList<Motion> effects{
        {0, "FlyFromLeftEffect", flyIn,
         "characters fly in one by one, each from the right edge leftwards to its place"},
        {1, "FlyFromRightEffect", flyIn,
         "the last character first, each flies from the left edge rightwards; pages end at the "
         "right edge"},
        {2, "FlyFromTopEffect", flyIn,
         "characters rise one by one from below the bottom edge to their places"},
        {3, "FlyFromBottomEffect", flyIn,
         "characters drop one by one from the top edge to their places"},
        {4, "WordForWordOutputEffect", wordByWord,
         "characters appear whole, one after another, as if typed"},
        {5, "WavesEffect", oscillating,
         "a wave travels to the right through the row, from edge to edge of the area"},
        {6, "SwingEffect", oscillating, "the whole row sways sideways and leans as it goes"},
        {7, "BeforeAfterScalEffect", oscillating,
         "every character pulses from its own size to half as large again"},
        {8, "TrembleEffect", oscillating,
         "every character jitters at random by a few pixels, 61 frames a page"},
        {9, "WordForWordAmplificationEffect", wordByWord,
         "characters grow out of nothing at their places, one after another"},
        {10, "WordForWordNarrowEffect", wordByWord,
         "characters appear at double size and shrink to their own, one after another"},
        {11, "RotationEffect", rotation, "every character turns once clockwise about its middle"},
        {12, "RotationTrundleEffect", rotation,
         "the row rolls in from the right edge, each character spinning anticlockwise"},
        {13, "AngleRotationEffect", rotation,
         "every character turns once clockwise about the middle of its baseline"},
        {14, "EffectInTurnFlips", rotation,
         "characters stand on their heads and flip upright over the baseline, one after another"},
        {15, "EffectInTurnUpwardZoom", inTurn,
         "characters swell upwards and sink to nothing in turn, like a wave through grass"},
        {16, "EffectInTurnDrop", inTurn,
         "characters drop from the top edge, each a little after its left neighbour"},
        {17, "Effect45DegreeAngleDrop", inTurn,
         "characters drop tilted by 45 degrees, bounce once and settle upright, in turn"},
        {18, "EffectZoomIn", stretch,
         "characters come in turn from the top of the right edge on slanted paths, widening from "
         "nothing"},
        {19, "EffectTopWithFrogAppearsVerbatim", frogs,
         "a frog hops along the top edge, and under it each character appears from its top "
         "downward"},
        {20, "EffectTopWithFrog", frogs,
         "a frog hops along the top edge, and each character falls from there in five steps"},
        {21, "EffectRightToEnlarge", stretch,
         "every character widens to the right from nothing to its full width"},
        {22, "EffectDiagonalMoves", stretch,
         "characters slide in turn from the top of the right edge on slanted paths"},
        {23, "EffectRepeatTheWhereabouts", stretch,
         "every character climbs from the bottom edge to the top again and again, the right one "
         "ahead"},
        {24, "EffectFromBothSidesInOrderToEnlarge", stretch,
         "characters grow in pairs from both ends of the page to its middle, twice"},
        {25, "Effect3DHorizontalRotation", rotation,
         "the row turns round a vertical axis in its middle, away and back"},
        {26, "EffectFlipsInto", rotation,
         "the row gathers from five times its width while slanted characters narrow and widen"},
        {27, "EffectRotateInto", rotation,
         "the row gathers from five times its width while characters turn once anticlockwise"},
        {28, "EffectTextZoom", textZoom,
         "the page pulses in and out of nothing about its middle, two and a half times"},
        {29, "EffectShake", oscillating,
         "every character rocks by up to 45 degrees, on one foot and then on the other"}};
    return effects;
}

const QList<Motion>& Scrolls()
{
    static const QList<Motion> scrolls{
        {0, "ContinueEffectLeft", scroll,
         "the line enters at the right edge and leaves at the left, moved by the device"},
        {1, "ContinueEffectRight", scroll,
         "the line enters at the left edge and leaves at the right, moved by the device"},
        {2, "ContinueEffectUp", scroll,
         "the characters, one above another, rise from the bottom edge without end"},
        {3, "ContinueEffectDown", scroll,
         "the characters, one above another, sink from the top edge without end"}};
    return scrolls;
}

const Motion* FindEffect(const QString& numberOrName)
{
    bool isNumber = false;
    const int number = numberOrName.toInt(&isNumber);
    for (const Motion& effect : Effects()) {
        if (isNumber ? effect.number == number
                     : numberOrName.compare(QLatin1String(effect.name), Qt::CaseInsensitive) == 0)
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
