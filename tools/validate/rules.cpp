#include "validate/rules.h"

#include <QtGlobal>

#include <iterator>

namespace AnimText {

namespace {

constexpr Severity error = Severity::Error;
constexpr Severity warning = Severity::Warning;

constexpr Rule rules[] = {
    {Mistake::SceneUnreadable, error, "scene-unreadable",
     QT_TRANSLATE_NOOP("Rules", "No tool can play it.")},
    {Mistake::SceneEmpty, warning, "scene-empty",
     QT_TRANSLATE_NOOP("Rules", "The display stays dark.")},
    {Mistake::NodeType, error, "node-type",
     QT_TRANSLATE_NOOP("Rules", "The host has no plugin for this type and skips the text.")},
    {Mistake::AreaEmpty, error, "area-empty",
     QT_TRANSLATE_NOOP("Rules", "Nothing can be painted.")},
    {Mistake::AreaOutside, warning, "area-outside",
     QT_TRANSLATE_NOOP("Rules", "The part outside the display is not visible.")},
    {Mistake::AreasOverlap, warning, "areas-overlap",
     QT_TRANSLATE_NOOP("Rules", "One text covers another on the same page.")},
    {Mistake::CanvasLarge, error, "canvas-large",
     QT_TRANSLATE_NOOP("Rules",
                       "The picture is larger than the plugin's limit, so nothing is painted.")},
    {Mistake::TextEmpty, warning, "text-empty", QT_TRANSLATE_NOOP("Rules", "This text is empty.")},
    {Mistake::ModeUnknown, error, "mode-unknown",
     QT_TRANSLATE_NOOP("Rules", "One empty frame is shown forever.")},
    {Mistake::EffectUnknown, error, "effect-unknown",
     QT_TRANSLATE_NOOP("Rules", "Empty frames are shown, and the text never ends.")},
    {Mistake::DirectionUnknown, error, "direction-unknown",
     QT_TRANSLATE_NOOP("Rules", "Empty frames are shown, and the text never ends.")},
    {Mistake::SpeedRange, error, "speed-range",
     QT_TRANSLATE_NOOP("Rules",
                       "Motions are made for speeds 0 to 9; at others they stall or jump.")},
    {Mistake::PlaysRange, warning, "plays-range",
     QT_TRANSLATE_NOOP("Rules", "The text counts as finished after its first frame.")},
    {Mistake::HoldRange, warning, "hold-range",
     QT_TRANSLATE_NOOP("Rules", "Each page disappears as soon as it is complete.")},
    {Mistake::FlagValue, warning, "flag-value",
     QT_TRANSLATE_NOOP("Rules",
                       "Only 1 turns it on, but the layers are stacked as if it were on.")},
    {Mistake::ListLength, error, "list-length",
     QT_TRANSLATE_NOOP("Rules", "Characters without a row are 0 pixels wide and high, or red.")},
    {Mistake::ListSurplus, warning, "list-surplus",
     QT_TRANSLATE_NOOP("Rules",
                       "Surplus rows count toward the text's width and its largest character.")},
    {Mistake::RowValue, error, "row-value",
     QT_TRANSLATE_NOOP("Rules", "Non-numeric values count as 0, so characters overlap.")},
    {Mistake::FileMissing, error, "file-missing",
     QT_TRANSLATE_NOOP(
         "Rules", "Without outlines the text is invisible; without descents it sits too low.")},
    {Mistake::PictureMissing, warning, "picture-missing",
     QT_TRANSLATE_NOOP("Rules", "The background is shown without its picture.")},
    {Mistake::DataMalformed, error, "data-malformed",
     QT_TRANSLATE_NOOP("Rules", "The sign rejects the whole file.")},
    {Mistake::OutlineMalformed, error, "outline-malformed",
     QT_TRANSLATE_NOOP("Rules", "The sign rejects the outline, so the character is missing.")},
    {Mistake::DataLength, error, "data-length",
     QT_TRANSLATE_NOOP(
         "Rules",
         "Characters without an outline are missing; those without a descent sit too low.")},
    {Mistake::DataSurplus, warning, "data-surplus",
     QT_TRANSLATE_NOOP("Rules", "The file may belong to another text.")},
    {Mistake::OutlineEmpty, warning, "outline-empty",
     QT_TRANSLATE_NOOP("Rules", "The character leaves a gap.")},
    {Mistake::CharacterWide, warning, "character-wide",
     QT_TRANSLATE_NOOP("Rules", "The character gets its own page and is cut off.")},
    {Mistake::TextHigh, warning, "text-high",
     QT_TRANSLATE_NOOP("Rules", "Letters are cut off at the top or bottom.")},
    {Mistake::LineLong, warning, "line-long",
     QT_TRANSLATE_NOOP("Rules", "The part beyond pixel 31,999 is painted white.")},
    {Mistake::GradientIgnored, warning, "gradient-ignored",
     QT_TRANSLATE_NOOP(
         "Rules", "Gradients work only with the dazzle background; the text keeps its color.")},
    {Mistake::PictureIgnored, warning, "picture-ignored",
     QT_TRANSLATE_NOOP("Rules",
                       "Pictures work only with the dazzle background; the text keeps its color.")},
    {Mistake::StrokeIgnored, warning, "stroke-ignored",
     QT_TRANSLATE_NOOP("Rules", "The sign outlines text in its own color.")},
    {Mistake::ShadowIgnored, warning, "shadow-ignored",
     QT_TRANSLATE_NOOP("Rules", "The sign paints text without shadows.")},
    {Mistake::ColorsIgnored, warning, "colors-ignored",
     QT_TRANSLATE_NOOP("Rules", "The whole text has the color of its first character.")},
    {Mistake::ColorRange, warning, "color-range",
     QT_TRANSLATE_NOOP("Rules", "The sign uses only the lowest 24 bits, which are another color.")},
};

constexpr bool StandInOrder()
{
    for (int i = 0; i < int(std::size(rules)); ++i) {
        if (int(rules[i].mistake) != i)
            return false;
    }
    return true;
}
static_assert(int(std::size(rules)) == mistakeCount && StandInOrder(),
              "a rule for each mistake, in their order");

} // namespace

const Rule& RuleFor(Mistake mistake)
{
    return rules[int(mistake)];
}

} // namespace AnimText
