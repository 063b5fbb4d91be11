#include "scene/catalog.h"

#include <QCoreApplication>

#include <algorithm>

namespace AnimText::scene {

namespace {

class Catalog
{
    Q_DECLARE_TR_FUNCTIONS(Motions)

public:
    static QList<Motion> Effects();
    static QList<Motion> Scrolls();

private:
    static constexpr const char* flyIn = QT_TR_NOOP("fly in");
    static constexpr const char* letterByLetter = QT_TR_NOOP("letter by letter");
    static constexpr const char* swaying = QT_TR_NOOP("sway and shake");
    static constexpr const char* turning = QT_TR_NOOP("spin and flip");
    static constexpr const char* inTurn = QT_TR_NOOP("one after another");
    static constexpr const char* stretching = QT_TR_NOOP("stretch and slide");
    static constexpr const char* zooming = QT_TR_NOOP("zoom");
    static constexpr const char* frogs = QT_TR_NOOP("frogs");
    static constexpr const char* scroll = QT_TR_NOOP("scroll");
};

QList<Motion> Catalog::Effects()
{
    return {
        {0, "FlyFromLeftEffect", QT_TR_NOOP("Fly in from the right"), flyIn,
         QT_TR_NOOP("characters fly in from the right edge to their places, one at a time"),
         QT_TR_NOOP("fly left, slide, swoosh")},
        {1, "FlyFromRightEffect", QT_TR_NOOP("Fly in from the left"), flyIn,
         QT_TR_NOOP("characters fly in from the left edge, the last one first; pages end at the "
                    "right edge"),
         QT_TR_NOOP("fly right, slide, swoosh, reverse, backwards"), FromEnd},
        {2, "FlyFromTopEffect", QT_TR_NOOP("Rise one by one"), flyIn,
         QT_TR_NOOP("characters rise from below the bottom edge to their places, one at a time"),
         QT_TR_NOOP("fly up, from below, lift, elevator"), ReachesTop},
        {3, "FlyFromBottomEffect", QT_TR_NOOP("Drop one by one"), flyIn,
         QT_TR_NOOP("characters drop from the top edge to their places, one at a time"),
         QT_TR_NOOP("fly down, fall, from above")},
        {4, "WordForWordOutputEffect", QT_TR_NOOP("Typewriter"), letterByLetter,
         QT_TR_NOOP("characters appear one at a time, as if typed"),
         QT_TR_NOOP("type, teletype, reveal, appear")},
        {5, "WavesEffect", QT_TR_NOOP("Wave"), swaying,
         QT_TR_NOOP("a wave as high as the area runs through the row from left to right"),
         QT_TR_NOOP("undulate, ripple, roller coaster, up and down"), ReachesTop},
        {6, "SwingEffect", QT_TR_NOOP("Sway"), swaying,
         QT_TR_NOOP("the whole row sways from side to side and leans as it goes"),
         QT_TR_NOOP("swing, lean, slant, skew, pendulum")},
        {7, "BeforeAfterScalEffect", QT_TR_NOOP("Pulse"), swaying,
         QT_TR_NOOP("every character grows to one and a half times its size and back"),
         QT_TR_NOOP("beat, heartbeat, throb, breathe, scale, zoom"), Turns},
        {8, "TrembleEffect", QT_TR_NOOP("Tremble"), swaying,
         QT_TR_NOOP("every character jitters at random by a few pixels, for 61 frames per page"),
         QT_TR_NOOP("shake, jitter, shiver, vibrate, nervous, random")},
        {9, "WordForWordAmplificationEffect", QT_TR_NOOP("Grow one by one"), letterByLetter,
         QT_TR_NOOP("characters grow from nothing in their places, one at a time"),
         QT_TR_NOOP("zoom in, enlarge, pop up, scale up"), Turns},
        {10, "WordForWordNarrowEffect", QT_TR_NOOP("Shrink to size"), letterByLetter,
         QT_TR_NOOP("characters appear at double size and shrink to their own, one at a time"),
         QT_TR_NOOP("zoom out, stamp, reduce, scale down"), Turns},
        {11, "RotationEffect", QT_TR_NOOP("Spin"), turning,
         QT_TR_NOOP("every character turns clockwise once, around a point near its top"),
         QT_TR_NOOP("rotate, turn, whirl"), Turns},
        {12, "RotationTrundleEffect", QT_TR_NOOP("Roll in"), turning,
         QT_TR_NOOP("characters roll in from the right edge and turn counterclockwise"),
         QT_TR_NOOP("rotate, spin, wheel, tumble"), Turns},
        {13, "AngleRotationEffect", QT_TR_NOOP("Spin on the baseline"), turning,
         QT_TR_NOOP("every character turns clockwise once, around the middle of its baseline"),
         QT_TR_NOOP("rotate, turn, whirl"), Turns},
        {14, "EffectInTurnFlips", QT_TR_NOOP("Flip upright"), turning,
         QT_TR_NOOP(
             "characters start upside down and flip upright over the baseline, one after another"),
         QT_TR_NOOP("mirror, turn over, unfold, somersault")},
        {15, "EffectInTurnUpwardZoom", QT_TR_NOOP("Stretch and sink"), inTurn,
         QT_TR_NOOP(
             "characters stretch upward and sink to nothing in turn, like grass in the wind"),
         QT_TR_NOOP("grow, squash, wave, zoom, swell")},
        {16, "EffectInTurnDrop", QT_TR_NOOP("Drop in a cascade"), inTurn,
         QT_TR_NOOP("characters drop from the top edge, each a little after its left neighbor"),
         QT_TR_NOOP("fall, rain, waterfall, domino")},
        {17, "Effect45DegreeAngleDrop", QT_TR_NOOP("Drop and bounce"), inTurn,
         QT_TR_NOOP("characters tilted by 45 degrees drop in turn, bounce once and settle upright"),
         QT_TR_NOOP("fall, ball, jump, tilt, tumble"), Turns},
        {18, "EffectZoomIn", QT_TR_NOOP("Slide in and widen"), stretching,
         QT_TR_NOOP(
             "characters slide in diagonally from the top right corner and widen from nothing"),
         QT_TR_NOOP("zoom in, diagonal, slant, stretch"), Turns | ReachesTop},
        {19, "EffectTopWithFrogAppearsVerbatim", QT_TR_NOOP("Frog uncovers letters"), frogs,
         QT_TR_NOOP(
             "a frog hops along the top edge and uncovers each character from top to bottom"),
         QT_TR_NOOP("animal, hop, jump, reveal, cartoon, fun")},
        {20, "EffectTopWithFrog", QT_TR_NOOP("Frog drops letters"), frogs,
         QT_TR_NOOP(
             "a frog hops along the top edge and drops each character into place in five steps"),
         QT_TR_NOOP("animal, hop, jump, fall, cartoon, fun")},
        {21, "EffectRightToEnlarge", QT_TR_NOOP("Widen to the right"), stretching,
         QT_TR_NOOP("every character widens to the right, from nothing to its full width"),
         QT_TR_NOOP("stretch, unfold, open, expand"), Turns | EvenWidths},
        {22, "EffectDiagonalMoves", QT_TR_NOOP("Slide in diagonally"), stretching,
         QT_TR_NOOP("characters slide in diagonally from the top right corner, one after another"),
         QT_TR_NOOP("slant, fly in"), ReachesTop},
        {23, "EffectRepeatTheWhereabouts", QT_TR_NOOP("Climb over and over"), stretching,
         QT_TR_NOOP("every character climbs from the bottom edge to the top again and again; those "
                    "on the right lead"),
         QT_TR_NOOP("rise, repeat, loop, elevator, stairs"), ReachesTop},
        {24, "EffectFromBothSidesInOrderToEnlarge", QT_TR_NOOP("Grow from both ends"), stretching,
         QT_TR_NOOP("characters grow in pairs from both ends of the page to its middle, twice"),
         QT_TR_NOOP("enlarge, zoom in, outside in, scale up"), Turns | EvenWidths},
        {25, "Effect3DHorizontalRotation", QT_TR_NOOP("Mirror and back"), turning,
         QT_TR_NOOP("the row shrinks to its middle, opens mirrored, and returns the same way"),
         QT_TR_NOOP("3D, turn around, revolve, flip, spin")},
        {26, "EffectFlipsInto", QT_TR_NOOP("Gather and flip"), turning,
         QT_TR_NOOP("the row closes up from five times its width while slanted characters narrow "
                    "and widen"),
         QT_TR_NOOP("converge, assemble, squeeze, 3D"), Turns},
        {27, "EffectRotateInto", QT_TR_NOOP("Gather and spin"), turning,
         QT_TR_NOOP("the row closes up from five times its width while each character turns "
                    "counterclockwise once"),
         QT_TR_NOOP("converge, assemble, rotate, whirl"), Turns},
        {28, "EffectTextZoom", QT_TR_NOOP("Zoom in and out"), zooming,
         QT_TR_NOOP("the page grows from nothing and shrinks back around its middle, two and a "
                    "half times"),
         QT_TR_NOOP("pulse, scale, blow up, pump"), Turns},
        {29, "EffectShake", QT_TR_NOOP("Rock"), swaying,
         QT_TR_NOOP("every character rocks by up to 45 degrees, on one foot and then on the other"),
         QT_TR_NOOP("shake, wobble, seesaw, tilt, dance"), Turns}};
}

QList<Motion> Catalog::Scrolls()
{
    return {{0, "ContinueEffectLeft", QT_TR_NOOP("Scroll left"), scroll,
             QT_TR_NOOP(
                 "the line enters at the right edge and leaves at the left; the device moves it"),
             QT_TR_NOOP("marquee, ticker, crawl, running text, news"), Sideways},
            {1, "ContinueEffectRight", QT_TR_NOOP("Scroll right"), scroll,
             QT_TR_NOOP(
                 "the line enters at the left edge and leaves at the right; the device moves it"),
             QT_TR_NOOP("marquee, ticker, crawl, running text"), Sideways},
            {2, "ContinueEffectUp", QT_TR_NOOP("Scroll up"), scroll,
             QT_TR_NOOP("the characters, one above another, rise from the bottom edge without end"),
             QT_TR_NOOP("marquee, credits, vertical")},
            {3, "ContinueEffectDown", QT_TR_NOOP("Scroll down"), scroll,
             QT_TR_NOOP("the characters, one above another, sink from the top edge without end"),
             QT_TR_NOOP("marquee, vertical")}};
}

const Motion* Find(const QList<Motion>& motions, const QString& numberOrName)
{
    bool isNumber = false;
    const int number = numberOrName.toInt(&isNumber);
    const auto found = std::find_if(motions.begin(), motions.end(), [&](const Motion& motion) {
        return isNumber
                   ? motion.number == number
                   : numberOrName.compare(QLatin1String(motion.name), Qt::CaseInsensitive) == 0;
    });
    return found == motions.end() ? nullptr : &*found;
}

} // namespace

const QList<Motion>& Effects()
{
    static const QList<Motion> effects = Catalog::Effects();
    return effects;
}

const QList<Motion>& Scrolls()
{
    static const QList<Motion> scrolls = Catalog::Scrolls();
    return scrolls;
}

const QStringList& Directions()
{
    static const QStringList directions{"left", "right", "up", "down"};
    return directions;
}

const Motion* FindEffect(const QString& numberOrName)
{
    return Find(Effects(), numberOrName);
}

const Motion* FindScroll(const QString& numberOrName)
{
    const int direction = Directions().indexOf(numberOrName.toLower());
    return Find(Scrolls(), direction < 0 ? numberOrName : QString::number(direction));
}

bool Matches(const Motion& motion, const QString& search)
{
    QStringList texts{QLatin1String(motion.name),
                      QLatin1Char('#') + QString::number(motion.number)};
    for (const char* english : {motion.title, motion.family, motion.summary, motion.synonyms})
        texts << QLatin1String(english) << Catalog::tr(english);
    const QString all = texts.join(QLatin1Char('\n'));
    const QStringList words = search.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return all.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace AnimText::scene
