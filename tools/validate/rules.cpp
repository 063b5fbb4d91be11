#include "validate/rules.h"

#include <iterator>

namespace AnimText {

namespace {

constexpr Severity error = Severity::Error;
constexpr Severity warning = Severity::Warning;

constexpr Rule rules[] = {
    {Mistake::SceneUnreadable, error, "scene-unreadable", "No tool can play it."},
    {Mistake::SceneEmpty, warning, "scene-empty", "The display stays dark."},
    {Mistake::NodeType, error, "node-type", "The host has no plugin for it and leaves it out."},
    {Mistake::AreaEmpty, error, "area-empty", "Nothing can be painted."},
    {Mistake::AreaOutside, warning, "area-outside", "What lies outside the display is not seen."},
    {Mistake::CanvasLarge, error, "canvas-large",
     "The engine paints nothing into a picture above its limit."},
    {Mistake::TextEmpty, warning, "text-empty",
     "The renderer answers that there is nothing to play."},
    {Mistake::ModeUnknown, error, "mode-unknown", "One empty frame is shown, for ever."},
    {Mistake::EffectUnknown, error, "effect-unknown",
     "Empty frames are shown and the item never ends."},
    {Mistake::DirectionUnknown, error, "direction-unknown",
     "Empty frames are shown and the item never ends."},
    {Mistake::SpeedRange, error, "speed-range",
     "The motion is timed for speeds 0 to 9; others stall or leap."},
    {Mistake::PlaysRange, warning, "plays-range",
     "The item counts as finished with its first frame."},
    {Mistake::HoldRange, warning, "hold-range", "Pages are not held at all."},
    {Mistake::FlagValue, warning, "flag-value",
     "Only 1 is on; the layers are stacked as if it were on all the same."},
    {Mistake::ListLength, error, "list-length",
     "Characters without a row are 0 pixels wide and high, or red."},
    {Mistake::ListSurplus, warning, "list-surplus",
     "Rows beyond the text count in its width and in the largest character."},
    {Mistake::RowValue, error, "row-value",
     "What is no number counts as 0, and characters lie on one another."},
    {Mistake::FileMissing, error, "file-missing",
     "Without outlines nothing is seen; without descents lines sink."},
    {Mistake::PictureMissing, warning, "picture-missing",
     "The background stays without its picture."},
    {Mistake::DataMalformed, error, "data-malformed",
     "The sign refuses the whole file and reads nothing from it."},
    {Mistake::OutlineMalformed, error, "outline-malformed",
     "The sign refuses the outline; the character stays away."},
    {Mistake::DataLength, error, "data-length",
     "Characters without an outline stay away; without a descent they sink."},
    {Mistake::DataSurplus, warning, "data-surplus", "The file may belong to another text."},
    {Mistake::OutlineEmpty, warning, "outline-empty", "The character leaves a gap."},
    {Mistake::CharacterWide, warning, "character-wide",
     "The character gets a page of its own and is cut off."},
    {Mistake::TextHigh, warning, "text-high", "The text is cut off above and below."},
    {Mistake::LineLong, warning, "line-long",
     "Beyond 31,999 pixels the painter needs a second picture, and it paints that one white."},
    {Mistake::GradientIgnored, warning, "gradient-ignored",
     "Gradients belong to the dazzle background; the text keeps its colour."},
    {Mistake::PictureIgnored, warning, "picture-ignored",
     "Pictures belong to the dazzle background; the text keeps its colour."},
    {Mistake::StrokeIgnored, warning, "stroke-ignored", "Text is outlined in its own colour."},
    {Mistake::ShadowIgnored, warning, "shadow-ignored", "Text is painted without shadows."},
    {Mistake::ColorsIgnored, warning, "colors-ignored",
     "The whole text has the colour of its first character."},
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
