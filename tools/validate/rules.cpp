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
     QT_TRANSLATE_NOOP("Rules", "The host has no plugin for it and leaves it out.")},
    {Mistake::AreaEmpty, error, "area-empty",
     QT_TRANSLATE_NOOP("Rules", "Nothing can be painted.")},
    {Mistake::AreaOutside, warning, "area-outside",
     QT_TRANSLATE_NOOP("Rules", "What lies outside the display is not seen.")},
    {Mistake::AreasOverlap, warning, "areas-overlap",
     QT_TRANSLATE_NOOP("Rules", "One text covers another on the same page.")},
    {Mistake::CanvasLarge, error, "canvas-large",
     QT_TRANSLATE_NOOP("Rules", "The engine paints nothing into a picture above its limit.")},
    {Mistake::TextEmpty, warning, "text-empty",
     QT_TRANSLATE_NOOP("Rules", "The renderer answers that there is nothing to play.")},
    {Mistake::ModeUnknown, error, "mode-unknown",
     QT_TRANSLATE_NOOP("Rules", "One empty frame is shown, for ever.")},
    {Mistake::EffectUnknown, error, "effect-unknown",
     QT_TRANSLATE_NOOP("Rules", "Empty frames are shown and the item never ends.")},
    {Mistake::DirectionUnknown, error, "direction-unknown",
     QT_TRANSLATE_NOOP("Rules", "Empty frames are shown and the item never ends.")},
    {Mistake::SpeedRange, error, "speed-range",
     QT_TRANSLATE_NOOP("Rules", "The motion is timed for speeds 0 to 9; others stall or leap.")},
    {Mistake::PlaysRange, warning, "plays-range",
     QT_TRANSLATE_NOOP("Rules", "The item counts as finished with its first frame.")},
    {Mistake::HoldRange, warning, "hold-range",
     QT_TRANSLATE_NOOP("Rules", "Pages are not held at all.")},
    {Mistake::FlagValue, warning, "flag-value",
     QT_TRANSLATE_NOOP("Rules",
                       "Only 1 is on; the layers are stacked as if it were on all the same.")},
    {Mistake::ListLength, error, "list-length",
     QT_TRANSLATE_NOOP("Rules", "Characters without a row are 0 pixels wide and high, or red.")},
    {Mistake::ListSurplus, warning, "list-surplus",
     QT_TRANSLATE_NOOP("Rules",
                       "Rows beyond the text count in its width and in the largest character.")},
    {Mistake::RowValue, error, "row-value",
     QT_TRANSLATE_NOOP("Rules",
                       "What is no number counts as 0, and characters lie on one another.")},
    {Mistake::FileMissing, error, "file-missing",
     QT_TRANSLATE_NOOP("Rules", "Without outlines nothing is seen; without descents lines sink.")},
    {Mistake::PictureMissing, warning, "picture-missing",
     QT_TRANSLATE_NOOP("Rules", "The background stays without its picture.")},
    {Mistake::DataMalformed, error, "data-malformed",
     QT_TRANSLATE_NOOP("Rules", "The sign refuses the whole file and reads nothing from it.")},
    {Mistake::OutlineMalformed, error, "outline-malformed",
     QT_TRANSLATE_NOOP("Rules", "The sign refuses the outline; the character stays away.")},
    {Mistake::DataLength, error, "data-length",
     QT_TRANSLATE_NOOP("Rules",
                       "Characters without an outline stay away; without a descent they sink.")},
    {Mistake::DataSurplus, warning, "data-surplus",
     QT_TRANSLATE_NOOP("Rules", "The file may belong to another text.")},
    {Mistake::OutlineEmpty, warning, "outline-empty",
     QT_TRANSLATE_NOOP("Rules", "The character leaves a gap.")},
    {Mistake::CharacterWide, warning, "character-wide",
     QT_TRANSLATE_NOOP("Rules", "The character gets a page of its own and is cut off.")},
    {Mistake::TextHigh, warning, "text-high",
     QT_TRANSLATE_NOOP("Rules", "Letters are cut off at the top or bottom.")},
    {Mistake::LineLong, warning, "line-long",
     QT_TRANSLATE_NOOP(
         "Rules",
         "Beyond 31,999 pixels the painter needs a second picture, and it paints that one white.")},
    {Mistake::GradientIgnored, warning, "gradient-ignored",
     QT_TRANSLATE_NOOP("Rules",
                       "Gradients belong to the dazzle background; the text keeps its colour.")},
    {Mistake::PictureIgnored, warning, "picture-ignored",
     QT_TRANSLATE_NOOP("Rules",
                       "Pictures belong to the dazzle background; the text keeps its colour.")},
    {Mistake::StrokeIgnored, warning, "stroke-ignored",
     QT_TRANSLATE_NOOP("Rules", "Text is outlined in its own colour.")},
    {Mistake::ShadowIgnored, warning, "shadow-ignored",
     QT_TRANSLATE_NOOP("Rules", "Text is painted without shadows.")},
    {Mistake::ColorsIgnored, warning, "colors-ignored",
     QT_TRANSLATE_NOOP("Rules", "The whole text has the colour of its first character.")},
    {Mistake::ColorRange, warning, "color-range",
     QT_TRANSLATE_NOOP("Rules", "The sign takes the lowest 24 bits and shows another color.")},
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
