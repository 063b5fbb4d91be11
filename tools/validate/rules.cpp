#include "validate/rules.h"

#include <iterator>

namespace AnimText {

namespace {

constexpr Severity error = Severity::Error;
constexpr Severity warning = Severity::Warning;

constexpr Rule rules[] = {
    {Mistake::SceneUnreadable, "scene-unreadable", error, "No tool can play it."},
    {Mistake::SceneEmpty, "scene-empty", warning, "The display stays dark."},
    {Mistake::NodeType, "node-type", error, "The host has no plugin for it and leaves it out."},
    {Mistake::AreaEmpty, "area-empty", error, "Nothing can be painted."},
    {Mistake::AreaOutside, "area-outside", warning, "What lies outside the display is not seen."},
    {Mistake::CanvasLarge, "canvas-large", error,
     "The engine paints nothing into a picture above its limit."},
    {Mistake::TextEmpty, "text-empty", warning,
     "The renderer answers that there is nothing to play."},
    {Mistake::ModeUnknown, "mode-unknown", error, "One empty frame is shown, for ever."},
    {Mistake::EffectUnknown, "effect-unknown", error,
     "Empty frames are shown and the item never ends."},
    {Mistake::DirectionUnknown, "direction-unknown", error,
     "Empty frames are shown and the item never ends."},
    {Mistake::SpeedRange, "speed-range", error,
     "The motion is timed for speeds 0 to 9; others stall or leap."},
    {Mistake::PlaysRange, "plays-range", warning,
     "The item counts as finished with its first frame."},
    {Mistake::HoldRange, "hold-range", warning, "Pages are not held at all."},
    {Mistake::FlagValue, "flag-value", warning,
     "Only 1 is on; the layers are stacked as if it were on all the same."},
    {Mistake::ListLength, "list-length", error,
     "Characters without a row are 0 pixels wide and high, or red."},
    {Mistake::ListSurplus, "list-surplus", warning,
     "Rows beyond the text count in its width and in the largest character."},
    {Mistake::RowValue, "row-value", error,
     "What is no number counts as 0, and characters lie on one another."},
    {Mistake::FileMissing, "file-missing", error,
     "Without outlines nothing is seen; without descents lines sink."},
    {Mistake::PictureMissing, "picture-missing", warning,
     "The background stays without its picture."},
    {Mistake::DataMalformed, "data-malformed", error,
     "The sign refuses the whole file and reads nothing from it."},
    {Mistake::OutlineMalformed, "outline-malformed", error,
     "The sign refuses the outline; the character stays away."},
    {Mistake::DataLength, "data-length", error,
     "Characters without an outline stay away; without a descent they sink."},
    {Mistake::DataSurplus, "data-surplus", warning, "The file may belong to another text."},
    {Mistake::OutlineEmpty, "outline-empty", warning, "The character leaves a gap."},
    {Mistake::CharacterWide, "character-wide", warning,
     "The character gets a page of its own and is cut off."},
    {Mistake::TextHigh, "text-high", warning, "The text is cut off above and below."},
    {Mistake::LineLong, "line-long", warning,
     "Beyond 31,999 pixels the painter needs a second picture, and it paints that one white."},
    {Mistake::GradientIgnored, "gradient-ignored", warning,
     "Gradients belong to the dazzle background; the text keeps its colour."},
    {Mistake::PictureIgnored, "picture-ignored", warning,
     "Pictures belong to the dazzle background; the text keeps its colour."},
    {Mistake::StrokeIgnored, "stroke-ignored", warning, "Text is outlined in its own colour."},
    {Mistake::ShadowIgnored, "shadow-ignored", warning, "Text is painted without shadows."},
    {Mistake::ColorsIgnored, "colors-ignored", warning,
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
