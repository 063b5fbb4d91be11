#include "scene/attributes.h"

#include "scene/catalogue.h"
#include "scene/scene.h"

#include <QCoreApplication>

#include <limits>

namespace AnimText {

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
constexpr int largestSide = 16384;     // what video and picture formats can hold
constexpr int farthestPlace = 1000000; // pixels
constexpr int white = 0xFFFFFF;
constexpr int lastBorder = 28; // of the neon styles; those above show a picture

constexpr Need never{"EffectType", 1, 0};
constexpr Need entrance{"EffectType", 0, 0};
constexpr Need scrolling{"EffectType", 1, 1};
constexpr Need dazzle{"CheckDazzle", 1, 1};
constexpr Need gradient{"CheckColorGradient", 1, 1};
constexpr Need picture{"CheckPictureFills", 1, 1};
constexpr Need neon{"CheckNeonBg", 1, 1};
constexpr Need neonPicture{"neonEffect", lastBorder + 1, highest};

const char always[] = QT_TRANSLATE_NOOP("Attributes", "every motion");
const char nothing[] = QT_TRANSLATE_NOOP("Attributes", "nothing");
const char entrances[] = QT_TRANSLATE_NOOP("Attributes", "entrance effects");
const char scrolls[] = QT_TRANSLATE_NOOP("Attributes", "scrolling");
const char dazzles[] = QT_TRANSLATE_NOOP("Attributes", "the dazzle background");
const char dazzleGradients[] =
    QT_TRANSLATE_NOOP("Attributes", "the dazzle background with a gradient");
const char dazzlePictures[] =
    QT_TRANSLATE_NOOP("Attributes", "the dazzle background with a picture");
const char neons[] = QT_TRANSLATE_NOOP("Attributes", "the neon background");
const char neonPictures[] =
    QT_TRANSLATE_NOOP("Attributes", "the neon background with a style above 28");
const char authoring[] =
    QT_TRANSLATE_NOOP("Attributes", "authoring tools; on the sign the outlines decide");
const char firstCharacter[] = QT_TRANSLATE_NOOP("Attributes", "the whole text, from its first row");

const char pixels[] = QT_TRANSLATE_NOOP("Attributes", "pixels");
const char tenths[] = QT_TRANSLATE_NOOP("Attributes", "units of 100 ms");
const char steps[] = QT_TRANSLATE_NOOP("Attributes", "steps");
const char times[] = QT_TRANSLATE_NOOP("Attributes", "times");
const char points[] = QT_TRANSLATE_NOOP("Attributes", "points");
const char color[] = QT_TRANSLATE_NOOP("Attributes", "red × 65536 + green × 256 + blue");

const char onlyEntrances[] =
    QT_TRANSLATE_NOOP("Attributes", "The text scrolls; only entrance effects heed this.");
const char onlyScrolls[] =
    QT_TRANSLATE_NOOP("Attributes", "The text comes in by an entrance effect; only scrolling heeds "
                                    "this.");
const char onlyDazzle[] = QT_TRANSLATE_NOOP(
    "Attributes", "Gradients and pictures belong to the dazzle background, which is "
                  "off; the text keeps its color.");
const char onlyGradient[] =
    QT_TRANSLATE_NOOP("Attributes", "The dazzle background shows no gradient.");
const char onlyPicture[] =
    QT_TRANSLATE_NOOP("Attributes", "The dazzle background shows no picture.");
const char onlyNeon[] = QT_TRANSLATE_NOOP("Attributes", "The neon background is off.");
const char onlyNeonPicture[] =
    QT_TRANSLATE_NOOP("Attributes", "The neon background shows a picture only with a style above "
                                    "28.");
const char noShadow[] = QT_TRANSLATE_NOOP("Attributes", "The sign paints text without shadows.");
const char noStroke[] = QT_TRANSLATE_NOOP("Attributes", "The sign outlines text in its own color.");

QList<Attribute> Table()
{
    using H = Home;
    using G = Group;
    using K = ValueKind;
    // clang-format off
    return {
        {"Text", H::Attributes, G::Text, K::Text,
         QT_TRANSLATE_NOOP("Attributes", "Text"),
         QT_TRANSLATE_NOOP("Attributes", "the text; each of its UTF-16 units is a character"),
         "", 0, 0, 0, always},
        {"Hollow", H::Attributes, G::Text, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Hollow"),
         QT_TRANSLATE_NOOP("Attributes", "characters are outlined, with nothing inside"),
         "", 0, 1, 0, always},
        {"fontName", H::TextAttribute, G::Text, K::Text,
         QT_TRANSLATE_NOOP("Attributes", "Font"),
         QT_TRANSLATE_NOOP("Attributes", "the family that the outline was made from"),
         "", 0, 0, 0, authoring},
        {"fontSize", H::TextAttribute, G::Text, K::Number,
         QT_TRANSLATE_NOOP("Attributes", "Size"),
         QT_TRANSLATE_NOOP("Attributes", "the size that the outline was made in"),
         points, 1, highest, 0, authoring},
        {"bold", H::TextAttribute, G::Text, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Bold"),
         QT_TRANSLATE_NOOP("Attributes", "the outline was made bold"),
         "", 0, 1, 0, authoring},
        {"italic", H::TextAttribute, G::Text, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Italic"),
         QT_TRANSLATE_NOOP("Attributes", "the outline was made slanted"),
         "", 0, 1, 0, authoring},
        {"underline", H::TextAttribute, G::Text, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Underline"),
         QT_TRANSLATE_NOOP("Attributes", "the outline has a bar under it"),
         "", 0, 1, 0, authoring},
        {"Color", H::TextAttribute, G::Text, K::Color,
         QT_TRANSLATE_NOOP("Attributes", "Color"),
         QT_TRANSLATE_NOOP("Attributes", "the color of the character"),
         color, 0, white, 0, firstCharacter},
        {"text_width", H::TextWidth, G::Text, K::Number,
         QT_TRANSLATE_NOOP("Attributes", "Width"),
         QT_TRANSLATE_NOOP("Attributes", "how far the next character stands to the right"),
         pixels, 0, highest, 0, always},
        {"text_height", H::TextHeight, G::Text, K::Number,
         QT_TRANSLATE_NOOP("Attributes", "Height"),
         QT_TRANSLATE_NOOP("Attributes", "the height of the character's line"),
         pixels, 0, highest, 0, always},
        {"PathData", H::Files, G::Text, K::File,
         QT_TRANSLATE_NOOP("Attributes", "Outlines"),
         QT_TRANSLATE_NOOP("Attributes", "the outlines of the characters"),
         "", 0, 0, 0, always},
        {"DescentVector", H::Files, G::Text, K::File,
         QT_TRANSLATE_NOOP("Attributes", "Descents"),
         QT_TRANSLATE_NOOP("Attributes", "how far each character reaches below its baseline"),
         "", 0, 0, 0, always},
        {"Stroke", H::Attributes, G::Text, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Stroke"),
         QT_TRANSLATE_NOOP("Attributes", "asks for an outline in a color of its own"),
         "", 0, 1, 0, nothing, noStroke, {never}},
        {"StrokeColor", H::Attributes, G::Text, K::Color,
         QT_TRANSLATE_NOOP("Attributes", "Stroke color"),
         QT_TRANSLATE_NOOP("Attributes", "the color of that outline"),
         color, 0, white, 0, nothing, noStroke, {never}},
        {"CheckShadowEffect", H::Attributes, G::Text, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Shadow"),
         QT_TRANSLATE_NOOP("Attributes", "asks for a shadow"),
         "", 0, 1, 0, nothing, noShadow, {never}},
        {"TextShadowBox", H::Attributes, G::Text, K::Number,
         QT_TRANSLATE_NOOP("Attributes", "Kind of shadow"),
         QT_TRANSLATE_NOOP("Attributes", "how the shadow would be"),
         "", lowest, highest, 0, nothing, noShadow, {never}},

        {"EffectType", H::Attributes, G::Motion, K::Choice,
         QT_TRANSLATE_NOOP("Attributes", "Motion"),
         QT_TRANSLATE_NOOP("Attributes", "how the text comes to be seen"),
         "", 0, 1, 0, always},
        {"AnimationEffect", H::Attributes, G::Motion, K::Choice,
         QT_TRANSLATE_NOOP("Attributes", "Effect"),
         QT_TRANSLATE_NOOP("Attributes", "the entrance effect"),
         "", 0, int(Effects().size()) - 1, 0, entrances, onlyEntrances, {entrance}},
        {"AnimationSpeed", H::Attributes, G::Motion, K::Number,
         QT_TRANSLATE_NOOP("Attributes", "Speed"),
         QT_TRANSLATE_NOOP("Attributes", "the speed of the entrance effect, 9 the fastest"),
         steps, 0, 9, 0, entrances, onlyEntrances, {entrance}},
        {"ContinueStyle", H::Attributes, G::Motion, K::Choice,
         QT_TRANSLATE_NOOP("Attributes", "Direction"),
         QT_TRANSLATE_NOOP("Attributes", "where the text scrolls to"),
         "", 0, int(Scrolls().size()) - 1, 0, scrolls, onlyScrolls, {scrolling}},
        {"ContinueSpeed", H::Attributes, G::Motion, K::Number,
         QT_TRANSLATE_NOOP("Attributes", "Scroll speed"),
         QT_TRANSLATE_NOOP("Attributes", "the speed of scrolling, 9 the fastest"),
         steps, 0, 9, 0, scrolls, onlyScrolls, {scrolling}},
        {"PlayTimes", H::Attributes, G::Motion, K::Number,
         QT_TRANSLATE_NOOP("Attributes", "Repeats"),
         QT_TRANSLATE_NOOP("Attributes", "how often the whole text is shown"),
         times, 1, highest, 0, always},
        {"hold", H::Node, G::Motion, K::Number,
         QT_TRANSLATE_NOOP("Attributes", "Pause"),
         QT_TRANSLATE_NOOP("Attributes", "how long each page stands still once it has come in"),
         tenths, 0, highest, 0, entrances, onlyEntrances, {entrance}},

        {"type", H::Node, G::Place, K::Text,
         QT_TRANSLATE_NOOP("Attributes", "Type"),
         QT_TRANSLATE_NOOP("Attributes", "which plugin shows it"),
         "", 0, 0, 0, always},
        {"pos", H::Node, G::Place, K::Pair,
         QT_TRANSLATE_NOOP("Attributes", "Position"),
         QT_TRANSLATE_NOOP("Attributes", "the area's top left corner on the display: x, y"),
         pixels, -farthestPlace, farthestPlace, 0, always},
        {"size", H::Node, G::Place, K::Pair,
         QT_TRANSLATE_NOOP("Attributes", "Size"),
         QT_TRANSLATE_NOOP("Attributes", "the area in which the text is shown: width, height"),
         pixels, 1, largestSide, 0, always},

        {"CheckDazzle", H::Attributes, G::Background, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Dazzle"),
         QT_TRANSLATE_NOOP("Attributes", "colors travel behind the text"),
         "", 0, 1, 0, always},
        {"CheckColorGradient", H::Attributes, G::Background, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Gradient"),
         QT_TRANSLATE_NOOP("Attributes", "the colors flow into one another"),
         "", 0, 1, 0, dazzles, onlyDazzle, {dazzle}},
        {"ColorGradient", H::Attributes, G::Background, K::Choice,
         QT_TRANSLATE_NOOP("Attributes", "Kind of gradient"),
         QT_TRANSLATE_NOOP("Attributes", "which way the colors flow"),
         "", 0, 2, 0, dazzleGradients, onlyGradient, {dazzle, gradient}},
        {"CheckPictureFills", H::Attributes, G::Background, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Picture"),
         QT_TRANSLATE_NOOP("Attributes", "a picture frames the background"),
         "", 0, 1, 0, dazzles, onlyDazzle, {dazzle}},
        {"FillImage", H::Files, G::Background, K::File,
         QT_TRANSLATE_NOOP("Attributes", "Picture file"),
         QT_TRANSLATE_NOOP("Attributes", "the picture that frames the background"),
         "", 0, 0, 0, dazzlePictures, onlyPicture, {dazzle, picture}},
        {"CheckNeonBg", H::Attributes, G::Background, K::Flag,
         QT_TRANSLATE_NOOP("Attributes", "Neon"),
         QT_TRANSLATE_NOOP("Attributes", "lights run around the text"),
         "", 0, 1, 0, always},
        {"neonEffect", H::Node, G::Background, K::Number,
         QT_TRANSLATE_NOOP("Attributes", "Neon style"),
         QT_TRANSLATE_NOOP("Attributes", "the style of the lights: up to 28 borders that are "
                                         "drawn, above them a picture"),
         "", 0, highest, 0, neons, onlyNeon, {neon}},
        {"NeonGifPath", H::Files, G::Background, K::File,
         QT_TRANSLATE_NOOP("Attributes", "Neon picture"),
         QT_TRANSLATE_NOOP("Attributes", "the moving picture of the neon background"),
         "", 0, 0, 0, neonPictures, onlyNeonPicture, {neon, neonPicture}},
    };
    // clang-format on
}

QStringList NamesOf(const QList<Motion>& motions)
{
    QStringList names;
    for (const Motion& motion : motions)
        names.append(QLatin1String(motion.name));
    return names;
}

bool Holds(const Need& need, const SceneNode& node)
{
    if (!need.key)
        return true;
    const QString key = QLatin1String(need.key);
    const int value =
        key == QLatin1String("neonEffect") ? node.neonEffect : node.attributes.value(key).toInt();
    return value >= need.least && value <= need.most;
}

} // namespace

const QList<Attribute>& Attributes()
{
    static const QList<Attribute> table = Table();
    return table;
}

const Attribute* FindAttribute(Home home, const QString& key)
{
    for (const Attribute& attribute : Attributes()) {
        if (attribute.home == home && key == QLatin1String(attribute.key))
            return &attribute;
    }
    return nullptr;
}

QStringList KeysOf(Home home)
{
    QStringList keys;
    for (const Attribute& attribute : Attributes()) {
        if (attribute.home == home)
            keys.append(QLatin1String(attribute.key));
    }
    return keys;
}

QStringList ChoicesOf(const Attribute& attribute)
{
    const QString key = QLatin1String(attribute.key);
    if (key == QLatin1String("AnimationEffect"))
        return NamesOf(Effects());
    if (key == QLatin1String("EffectType"))
        return {Translated(QT_TRANSLATE_NOOP("Attributes", "entrance effect")),
                Translated(QT_TRANSLATE_NOOP("Attributes", "scrolling"))};
    if (key == QLatin1String("ContinueStyle"))
        return {Translated(QT_TRANSLATE_NOOP("Attributes", "left")),
                Translated(QT_TRANSLATE_NOOP("Attributes", "right")),
                Translated(QT_TRANSLATE_NOOP("Attributes", "up")),
                Translated(QT_TRANSLATE_NOOP("Attributes", "down"))};
    if (key == QLatin1String("ColorGradient"))
        return {Translated(QT_TRANSLATE_NOOP("Attributes", "linear")),
                Translated(QT_TRANSLATE_NOOP("Attributes", "radial")),
                Translated(QT_TRANSLATE_NOOP("Attributes", "conical"))};
    return {};
}

QString RangeInWords(const Attribute& attribute)
{
    const auto translated = [](const char* words) { return Translated(words); };
    if (attribute.least == attribute.most)
        return QString();
    if (attribute.least == lowest && attribute.most == highest)
        return translated(QT_TRANSLATE_NOOP("Attributes", "any whole number"));
    if (attribute.most == highest)
        return translated(QT_TRANSLATE_NOOP("Attributes", "%1 or more")).arg(attribute.least);
    if (attribute.most - attribute.least == 1)
        return translated(QT_TRANSLATE_NOOP("Attributes", "%1 or %2"))
            .arg(attribute.least)
            .arg(attribute.most);
    return translated(QT_TRANSLATE_NOOP("Attributes", "%1 to %2"))
        .arg(attribute.least)
        .arg(attribute.most);
}

bool IsInRange(const Attribute& attribute, int value)
{
    return value >= attribute.least && value <= attribute.most;
}

bool IsHeeded(const Attribute& attribute, const SceneNode& node, QString* why)
{
    for (const Need& need : attribute.needs) {
        if (Holds(need, node))
            continue;
        if (why)
            *why = Translated(attribute.elseSaid);
        return false;
    }
    return true;
}

QString Translated(const char* words)
{
    return QCoreApplication::translate("Attributes", words);
}

} // namespace AnimText
