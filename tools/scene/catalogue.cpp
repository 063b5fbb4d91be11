#include "scene/catalogue.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace AnimText {

namespace {

const char flyIn[] = QT_TRANSLATE_NOOP("Motions", "fly in");
const char letterByLetter[] = QT_TRANSLATE_NOOP("Motions", "letter by letter");
const char swaying[] = QT_TRANSLATE_NOOP("Motions", "sway and shake");
const char turning[] = QT_TRANSLATE_NOOP("Motions", "spin and flip");
const char inTurn[] = QT_TRANSLATE_NOOP("Motions", "one after another");
const char stretching[] = QT_TRANSLATE_NOOP("Motions", "stretch and slide");
const char zooming[] = QT_TRANSLATE_NOOP("Motions", "zoom");
const char frogs[] = QT_TRANSLATE_NOOP("Motions", "frogs");
const char scroll[] = QT_TRANSLATE_NOOP("Motions", "scroll");

} // namespace

const QList<Motion>& Effects()
{
    static const QList<Motion> effects{
        {0, "FlyFromLeftEffect", QT_TRANSLATE_NOOP("Motions", "Fly in from the right"), flyIn,
         QT_TRANSLATE_NOOP("Motions",
                           "characters fly in from the right edge to their places, one at a time"),
         QT_TRANSLATE_NOOP("Motions", "fly left, slide, swoosh")},
        {1, "FlyFromRightEffect", QT_TRANSLATE_NOOP("Motions", "Fly in from the left"), flyIn,
         QT_TRANSLATE_NOOP("Motions", "characters fly in from the left edge, the last one first; "
                                      "pages end at the right edge"),
         QT_TRANSLATE_NOOP("Motions", "fly right, slide, swoosh, reverse, backwards"), FromEnd},
        {2, "FlyFromTopEffect", QT_TRANSLATE_NOOP("Motions", "Rise one by one"), flyIn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters rise from below the bottom edge to their places, one at a time"),
         QT_TRANSLATE_NOOP("Motions", "fly up, from below, lift, elevator"), ReachesTop},
        {3, "FlyFromBottomEffect", QT_TRANSLATE_NOOP("Motions", "Drop one by one"), flyIn,
         QT_TRANSLATE_NOOP("Motions",
                           "characters drop from the top edge to their places, one at a time"),
         QT_TRANSLATE_NOOP("Motions", "fly down, fall, from above")},
        {4, "WordForWordOutputEffect", QT_TRANSLATE_NOOP("Motions", "Typewriter"), letterByLetter,
         QT_TRANSLATE_NOOP("Motions", "characters appear one at a time, as if typed"),
         QT_TRANSLATE_NOOP("Motions", "type, teletype, reveal, appear")},
        {5, "WavesEffect", QT_TRANSLATE_NOOP("Motions", "Wave"), swaying,
         QT_TRANSLATE_NOOP("Motions",
                           "a wave as high as the area runs through the row from left to right"),
         QT_TRANSLATE_NOOP("Motions", "undulate, ripple, roller coaster, up and down"), ReachesTop},
        {6, "SwingEffect", QT_TRANSLATE_NOOP("Motions", "Sway"), swaying,
         QT_TRANSLATE_NOOP("Motions", "the whole row sways from side to side and leans as it goes"),
         QT_TRANSLATE_NOOP("Motions", "swing, lean, slant, skew, pendulum")},
        {7, "BeforeAfterScalEffect", QT_TRANSLATE_NOOP("Motions", "Pulse"), swaying,
         QT_TRANSLATE_NOOP("Motions",
                           "every character grows to one and a half times its size and back"),
         QT_TRANSLATE_NOOP("Motions", "beat, heartbeat, throb, breathe, scale, zoom"), Turns},
        {8, "TrembleEffect", QT_TRANSLATE_NOOP("Motions", "Tremble"), swaying,
         QT_TRANSLATE_NOOP(
             "Motions",
             "every character jitters at random by a few pixels, for 61 frames per page"),
         QT_TRANSLATE_NOOP("Motions", "shake, jitter, shiver, vibrate, nervous, random")},
        {9, "WordForWordAmplificationEffect", QT_TRANSLATE_NOOP("Motions", "Grow one by one"),
         letterByLetter,
         QT_TRANSLATE_NOOP("Motions",
                           "characters grow from nothing in their places, one at a time"),
         QT_TRANSLATE_NOOP("Motions", "zoom in, enlarge, pop up, scale up"), Turns},
        {10, "WordForWordNarrowEffect", QT_TRANSLATE_NOOP("Motions", "Shrink to size"),
         letterByLetter,
         QT_TRANSLATE_NOOP(
             "Motions", "characters appear at double size and shrink to their own, one at a time"),
         QT_TRANSLATE_NOOP("Motions", "zoom out, stamp, reduce, scale down"), Turns},
        {11, "RotationEffect", QT_TRANSLATE_NOOP("Motions", "Spin"), turning,
         QT_TRANSLATE_NOOP("Motions",
                           "every character turns clockwise once, around a point near its top"),
         QT_TRANSLATE_NOOP("Motions", "rotate, turn, whirl"), Turns},
        {12, "RotationTrundleEffect", QT_TRANSLATE_NOOP("Motions", "Roll in"), turning,
         QT_TRANSLATE_NOOP("Motions",
                           "characters roll in from the right edge and turn counterclockwise"),
         QT_TRANSLATE_NOOP("Motions", "rotate, spin, wheel, tumble"), Turns},
        {13, "AngleRotationEffect", QT_TRANSLATE_NOOP("Motions", "Spin on the baseline"), turning,
         QT_TRANSLATE_NOOP(
             "Motions", "every character turns clockwise once, around the middle of its baseline"),
         QT_TRANSLATE_NOOP("Motions", "rotate, turn, whirl"), Turns},
        {14, "EffectInTurnFlips", QT_TRANSLATE_NOOP("Motions", "Flip upright"), turning,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters start upside down and flip upright over the baseline, one after another"),
         QT_TRANSLATE_NOOP("Motions", "mirror, turn over, unfold, somersault")},
        {15, "EffectInTurnUpwardZoom", QT_TRANSLATE_NOOP("Motions", "Stretch and sink"), inTurn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters stretch upward and sink to nothing in turn, like grass in the wind"),
         QT_TRANSLATE_NOOP("Motions", "grow, squash, wave, zoom, swell")},
        {16, "EffectInTurnDrop", QT_TRANSLATE_NOOP("Motions", "Drop in a cascade"), inTurn,
         QT_TRANSLATE_NOOP(
             "Motions", "characters drop from the top edge, each a little after its left neighbor"),
         QT_TRANSLATE_NOOP("Motions", "fall, rain, waterfall, domino")},
        {17, "Effect45DegreeAngleDrop", QT_TRANSLATE_NOOP("Motions", "Drop and bounce"), inTurn,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters tilted by 45 degrees drop in turn, bounce once and settle upright"),
         QT_TRANSLATE_NOOP("Motions", "fall, ball, jump, tilt, tumble"), Turns},
        {18, "EffectZoomIn", QT_TRANSLATE_NOOP("Motions", "Slide in and widen"), stretching,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters slide in diagonally from the top right corner and widen from nothing"),
         QT_TRANSLATE_NOOP("Motions", "zoom in, diagonal, slant, stretch"), Turns | ReachesTop},
        {19, "EffectTopWithFrogAppearsVerbatim",
         QT_TRANSLATE_NOOP("Motions", "Frog uncovers letters"), frogs,
         QT_TRANSLATE_NOOP(
             "Motions",
             "a frog hops along the top edge and uncovers each character from top to bottom"),
         QT_TRANSLATE_NOOP("Motions", "animal, hop, jump, reveal, cartoon, fun")},
        {20, "EffectTopWithFrog", QT_TRANSLATE_NOOP("Motions", "Frog drops letters"), frogs,
         QT_TRANSLATE_NOOP(
             "Motions",
             "a frog hops along the top edge and drops each character into place in five steps"),
         QT_TRANSLATE_NOOP("Motions", "animal, hop, jump, fall, cartoon, fun")},
        {21, "EffectRightToEnlarge", QT_TRANSLATE_NOOP("Motions", "Widen to the right"), stretching,
         QT_TRANSLATE_NOOP("Motions",
                           "every character widens to the right, from nothing to its full width"),
         QT_TRANSLATE_NOOP("Motions", "stretch, unfold, open, expand"), Turns | EvenWidths},
        {22, "EffectDiagonalMoves", QT_TRANSLATE_NOOP("Motions", "Slide in diagonally"), stretching,
         QT_TRANSLATE_NOOP(
             "Motions",
             "characters slide in diagonally from the top right corner, one after another"),
         QT_TRANSLATE_NOOP("Motions", "slant, fly in"), ReachesTop},
        {23, "EffectRepeatTheWhereabouts", QT_TRANSLATE_NOOP("Motions", "Climb over and over"),
         stretching,
         QT_TRANSLATE_NOOP("Motions", "every character climbs from the bottom edge to the top "
                                      "again and again; those on the right lead"),
         QT_TRANSLATE_NOOP("Motions", "rise, repeat, loop, elevator, stairs"), ReachesTop},
        {24, "EffectFromBothSidesInOrderToEnlarge",
         QT_TRANSLATE_NOOP("Motions", "Grow from both ends"), stretching,
         QT_TRANSLATE_NOOP(
             "Motions", "characters grow in pairs from both ends of the page to its middle, twice"),
         QT_TRANSLATE_NOOP("Motions", "enlarge, zoom in, outside in, scale up"),
         Turns | EvenWidths},
        {25, "Effect3DHorizontalRotation", QT_TRANSLATE_NOOP("Motions", "Mirror and back"), turning,
         QT_TRANSLATE_NOOP(
             "Motions", "the row shrinks to its middle, opens mirrored, and returns the same way"),
         QT_TRANSLATE_NOOP("Motions", "3D, turn around, revolve, flip, spin")},
        {26, "EffectFlipsInto", QT_TRANSLATE_NOOP("Motions", "Gather and flip"), turning,
         QT_TRANSLATE_NOOP("Motions", "the row closes up from five times its width while slanted "
                                      "characters narrow and widen"),
         QT_TRANSLATE_NOOP("Motions", "converge, assemble, squeeze, 3D"), Turns},
        {27, "EffectRotateInto", QT_TRANSLATE_NOOP("Motions", "Gather and spin"), turning,
         QT_TRANSLATE_NOOP("Motions", "the row closes up from five times its width while each "
                                      "character turns counterclockwise once"),
         QT_TRANSLATE_NOOP("Motions", "converge, assemble, rotate, whirl"), Turns},
        {28, "EffectTextZoom", QT_TRANSLATE_NOOP("Motions", "Zoom in and out"), zooming,
         QT_TRANSLATE_NOOP("Motions", "the page grows from nothing and shrinks back around its "
                                      "middle, two and a half times"),
         QT_TRANSLATE_NOOP("Motions", "pulse, scale, blow up, pump"), Turns},
        {29, "EffectShake", QT_TRANSLATE_NOOP("Motions", "Rock"), swaying,
         QT_TRANSLATE_NOOP(
             "Motions",
             "every character rocks by up to 45 degrees, on one foot and then on the other"),
         QT_TRANSLATE_NOOP("Motions", "shake, wobble, seesaw, tilt, dance"), Turns}};
    return effects;
}

const QList<Motion>& Scrolls()
{
    static const QList<Motion> scrolls{
        {0, "ContinueEffectLeft", QT_TRANSLATE_NOOP("Motions", "Scroll left"), scroll,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the line enters at the right edge and leaves at the left; the device moves it"),
         QT_TRANSLATE_NOOP("Motions", "marquee, ticker, crawl, running text, news"), Sideways},
        {1, "ContinueEffectRight", QT_TRANSLATE_NOOP("Motions", "Scroll right"), scroll,
         QT_TRANSLATE_NOOP(
             "Motions",
             "the line enters at the left edge and leaves at the right; the device moves it"),
         QT_TRANSLATE_NOOP("Motions", "marquee, ticker, crawl, running text"), Sideways},
        {2, "ContinueEffectUp", QT_TRANSLATE_NOOP("Motions", "Scroll up"), scroll,
         QT_TRANSLATE_NOOP(
             "Motions", "the characters, one above another, rise from the bottom edge without end"),
         QT_TRANSLATE_NOOP("Motions", "marquee, credits, vertical")},
        {3, "ContinueEffectDown", QT_TRANSLATE_NOOP("Motions", "Scroll down"), scroll,
         QT_TRANSLATE_NOOP("Motions",
                           "the characters, one above another, sink from the top edge without end"),
         QT_TRANSLATE_NOOP("Motions", "marquee, vertical")}};
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

bool Matches(const Motion& motion, const QString& search)
{
    QStringList texts{QLatin1String(motion.name),
                      QLatin1Char('#') + QString::number(motion.number)};
    for (const char* english : {motion.title, motion.family, motion.summary, motion.synonyms})
        texts << QLatin1String(english) << QCoreApplication::translate("Motions", english);
    const QString all = texts.join(QLatin1Char('\n'));
    const QStringList words = search.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return all.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace AnimText
