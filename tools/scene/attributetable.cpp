// Every attribute with what is known of it. A new one is a row here, and nothing else.
#include "scene/attributes.h"
#include "scene/catalog.h"
#include "scene/scene.h"

#include <QCoreApplication>

namespace AnimText::scene {

namespace {

class AttributeTable
{
    Q_DECLARE_TR_FUNCTIONS(Attributes)

public:
    static QList<Attribute> Make();

private:
    /** A row as a sentence: Number("hold").In(&SceneNode::hold).Unit(tenths).Range(0, most). */
    template <ValueKind kindOfRow>
    struct Of : Attribute
    {
        Of(const char* rowKey, const char* rowName, const char* rowMeaning)
        {
            kind = kindOfRow;
            key = rowKey;
            name = rowName;
            meaning = rowMeaning;
            use = {QT_TR_NOOP("every motion")};
            switch (kind) {
            case ValueKind::Number: Range(lowest, highest); break;
            case ValueKind::Flag: Range(0, 1); break;
            case ValueKind::Color:
                Range(0, 0xFFFFFF).Unit(QT_TR_NOOP("red × 65536 + green × 256 + blue"));
                break;
            case ValueKind::Pair: In(Home::Node); break;
            case ValueKind::File: In(Home::Files); break;
            default: break;
            }
        }

        Of& In(Home where) { return home = where, *this; }
        Of& In(int SceneNode::*member) { return field = member, In(Home::Node); }
        Of& Unit(const char* words) { return unit = words, *this; }
        Of& Range(int from, int to) { return least = from, most = to, *this; }
        Of& For(const Use& what) { return use = what, *this; }
        Of& Names(const QList<const char*>& names)
        {
            return choices = names, Range(0, int(names.size()) - 1);
        }
    };
    using Text = Of<ValueKind::Text>;
    using Number = Of<ValueKind::Number>;
    using Choice = Of<ValueKind::Choice>;
    using Flag = Of<ValueKind::Flag>;
    using Color = Of<ValueKind::Color>;
    using Pair = Of<ValueKind::Pair>;
    using File = Of<ValueKind::File>;

    /** The attributes that a form shows together, in its order. */
    static QList<Attribute> In(Group group, QList<Attribute> rows)
    {
        for (Attribute& row : rows)
            row.group = group;
        return rows;
    }
};

// clang-format off
QList<Attribute> AttributeTable::Make()
{
    constexpr int most = Attribute::highest;
    constexpr int largestSide = 16384;     // what video and picture formats can hold
    constexpr int farthestPlace = 1000000; // pixels
    constexpr int lastBorder = 28;         // of the neon styles; those above show a picture

    const char* const pixels = QT_TR_NOOP("pixels");
    const char* const tenths = QT_TR_NOOP("units of 100 ms");
    const char* const steps = QT_TR_NOOP("steps");
    const char* const times = QT_TR_NOOP("times");
    const char* const points = QT_TR_NOOP("points");

    QList<const char*> effects;
    for (const Motion& motion : Effects())
        effects.append(motion.name);

    const Need hasDazzle{"CheckDazzle", 1, 1};
    const Need hasNeon{"CheckNeonBg", 1, 1};
    const Need never{"EffectType", 1, 0};
    const Use authoring{QT_TR_NOOP("authoring tools; the sign uses the outlines")};
    const Use wholeText{QT_TR_NOOP("the whole text, from its first row")};
    const Use entrance{
        QT_TR_NOOP("entrance effects"),
        QT_TR_NOOP("Applies only to entrance effects; this text scrolls."),
        {{"EffectType", 0, 0}}};
    const Use scrolling{
        QT_TR_NOOP("scrolling"),
        QT_TR_NOOP("Applies only to scrolling; this text has an entrance effect."),
        {{"EffectType", 1, 1}}};
    const Use dazzle{
        QT_TR_NOOP("the dazzle background"),
        QT_TR_NOOP("Applies only to the dazzle background, which is off; the text keeps its "
                   "color."),
        {hasDazzle}};
    const Use dazzleGradient{
        QT_TR_NOOP("the dazzle background with a gradient"),
        QT_TR_NOOP("The gradient is off."),
        {hasDazzle, {"CheckColorGradient", 1, 1}}};
    const Use dazzlePicture{
        QT_TR_NOOP("the dazzle background with a picture"),
        QT_TR_NOOP("The picture is off."),
        {hasDazzle, {"CheckPictureFills", 1, 1}}};
    const Use neon{
        QT_TR_NOOP("the neon background"),
        QT_TR_NOOP("The neon background is off."),
        {hasNeon}};
    const Use neonPicture{
        QT_TR_NOOP("the neon background with a style above 28"),
        QT_TR_NOOP("Only styles above 28 show a picture."),
        {hasNeon, {"neonEffect", lastBorder + 1, most}}};
    const Use stroke{
        QT_TR_NOOP("nothing"), QT_TR_NOOP("The sign outlines text in its own color."), {never}};
    const Use shadow{
        QT_TR_NOOP("nothing"), QT_TR_NOOP("The sign paints text without shadows."), {never}};

    return In(Group::Place, {
        Text("type", QT_TR_NOOP("Type"), QT_TR_NOOP("the plugin that shows the text"))
            .In(Home::Node),
        Pair("pos", QT_TR_NOOP("Position"),
             QT_TR_NOOP("the area's top left corner on the display: x, y"))
            .Unit(pixels).Range(-farthestPlace, farthestPlace),
        Pair("size", QT_TR_NOOP("Size"),
             QT_TR_NOOP("the area in which the text is shown: width, height"))
            .Unit(pixels).Range(1, largestSide),
    }) + In(Group::Text, {
        Text("Text", QT_TR_NOOP("Text"),
             QT_TR_NOOP("the text; each of its UTF-16 units is a character")),
        Flag("Hollow", QT_TR_NOOP("Hollow"),
             QT_TR_NOOP("only the outlines of the characters are painted")),
        Text("fontName", QT_TR_NOOP("Font"), QT_TR_NOOP("the font family of the outline"))
            .In(Home::TextAttribute).For(authoring),
        Number("fontSize", QT_TR_NOOP("Size"), QT_TR_NOOP("the font size of the outline"))
            .In(Home::TextAttribute).Unit(points).Range(1, most).For(authoring),
        Flag("bold", QT_TR_NOOP("Bold"), QT_TR_NOOP("the outline is bold"))
            .In(Home::TextAttribute).For(authoring),
        Flag("italic", QT_TR_NOOP("Italic"), QT_TR_NOOP("the outline is italic"))
            .In(Home::TextAttribute).For(authoring),
        Flag("underline", QT_TR_NOOP("Underline"), QT_TR_NOOP("the outline is underlined"))
            .In(Home::TextAttribute).For(authoring),
        Color("Color", QT_TR_NOOP("Color"), QT_TR_NOOP("the color of the character"))
            .In(Home::TextAttribute).For(wholeText),
        Number("text_width", QT_TR_NOOP("Width"),
               QT_TR_NOOP("the distance to the next character"))
            .In(Home::TextWidth).Unit(pixels).Range(0, most),
        Number("text_height", QT_TR_NOOP("Height"), QT_TR_NOOP("the height of the character's line"))
            .In(Home::TextHeight).Unit(pixels).Range(0, most),
        File("PathData", QT_TR_NOOP("Outlines"), QT_TR_NOOP("the outlines of the characters")),
        File("DescentVector", QT_TR_NOOP("Descents"),
             QT_TR_NOOP("how far each character reaches below its baseline")),
        Flag("Stroke", QT_TR_NOOP("Stroke"), QT_TR_NOOP("requests an outline in another color"))
            .For(stroke),
        Color("StrokeColor", QT_TR_NOOP("Stroke color"), QT_TR_NOOP("the color of that outline"))
            .For(stroke),
        Flag("CheckShadowEffect", QT_TR_NOOP("Shadow"), QT_TR_NOOP("requests a shadow")).For(shadow),
        Number("TextShadowBox", QT_TR_NOOP("Kind of shadow"), QT_TR_NOOP("the kind of that shadow"))
            .For(shadow),
    }) + In(Group::Motion, {
        Choice("EffectType", QT_TR_NOOP("Motion"), QT_TR_NOOP("how the text appears"))
            .Names({QT_TR_NOOP("entrance effect"), QT_TR_NOOP("scrolling")}),
        Choice("AnimationEffect", QT_TR_NOOP("Effect"), QT_TR_NOOP("the entrance effect"))
            .Names(effects).For(entrance),
        Number("AnimationSpeed", QT_TR_NOOP("Speed"),
               QT_TR_NOOP("the speed of the entrance effect; 9 is fastest"))
            .Unit(steps).Range(0, 9).For(entrance),
        Choice("ContinueStyle", QT_TR_NOOP("Direction"), QT_TR_NOOP("the direction of scrolling"))
            .Names({QT_TR_NOOP("left"), QT_TR_NOOP("right"), QT_TR_NOOP("up"), QT_TR_NOOP("down")})
            .For(scrolling),
        Number("ContinueSpeed", QT_TR_NOOP("Scroll speed"),
               QT_TR_NOOP("the speed of scrolling; 9 is fastest"))
            .Unit(steps).Range(0, 9).For(scrolling),
        Number("PlayTimes", QT_TR_NOOP("Repeats"),
               QT_TR_NOOP("how many times the whole text is shown"))
            .Unit(times).Range(1, most),
        Number("hold", QT_TR_NOOP("Hold"),
               QT_TR_NOOP("how long each page stays after its entrance"))
            .In(&SceneNode::hold).Unit(tenths).Range(0, most).For(entrance),
    }) + In(Group::Background, {
        Flag("CheckDazzle", QT_TR_NOOP("Dazzle"), QT_TR_NOOP("colors move behind the text")),
        Flag("CheckColorGradient", QT_TR_NOOP("Gradient"),
             QT_TR_NOOP("the colors blend into each other"))
            .For(dazzle),
        Choice("ColorGradient", QT_TR_NOOP("Kind of gradient"),
               QT_TR_NOOP("the shape of the gradient"))
            .Names({QT_TR_NOOP("linear"), QT_TR_NOOP("radial"), QT_TR_NOOP("conical")})
            .For(dazzleGradient),
        Flag("CheckPictureFills", QT_TR_NOOP("Picture"),
             QT_TR_NOOP("a picture frames the background"))
            .For(dazzle),
        File("FillImage", QT_TR_NOOP("Picture file"),
             QT_TR_NOOP("the picture that frames the background"))
            .For(dazzlePicture),
        Flag("CheckNeonBg", QT_TR_NOOP("Neon"), QT_TR_NOOP("lights run around the text")),
        Number("neonEffect", QT_TR_NOOP("Neon style"),
               QT_TR_NOOP("the style of the lights: up to 28, drawn borders; above, a picture"))
            .In(&SceneNode::neonEffect).Range(0, most).For(neon),
        File("NeonGifPath", QT_TR_NOOP("Neon picture"),
             QT_TR_NOOP("the animated picture of the neon background"))
            .For(neonPicture),
    });
}
// clang-format on

} // namespace

const QList<Attribute>& Attributes()
{
    static const QList<Attribute> table = AttributeTable::Make();
    return table;
}

} // namespace AnimText::scene
