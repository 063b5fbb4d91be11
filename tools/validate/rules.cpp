#include "validate/validate.h"

#include <cstring>

namespace AnimText {

const QList<Rule>& Rules()
{
    const Severity error = Severity::Error;
    const Severity warning = Severity::Warning;
    static const QList<Rule> rules = {
        {"scene-unreadable", error, "No tool can play it."},
        {"scene-empty", warning, "The display stays dark."},
        {"node-type", error, "The host has no plugin for it and leaves it out."},
        {"area-empty", error, "Nothing can be painted."},
        {"area-outside", warning, "What lies outside the display is not seen."},
        {"canvas-large", error, "The engine paints nothing into a picture above its limit."},
        {"text-empty", warning, "The renderer answers that there is nothing to play."},
        {"mode-unknown", error, "One empty frame is shown, for ever."},
        {"effect-unknown", error, "Empty frames are shown and the item never ends."},
        {"direction-unknown", error, "Empty frames are shown and the item never ends."},
        {"speed-range", error, "The motion is timed for speeds 0 to 9; others stall or leap."},
        {"plays-range", warning, "The item counts as finished with its first frame."},
        {"hold-range", warning, "Pages are not held at all."},
        {"flag-value", warning,
         "Only 1 is on; the layers are stacked as if it were on all the same."},
        {"list-length", error, "Characters without a row are 0 pixels wide and high, or red."},
        {"list-surplus", warning,
         "Rows beyond the text count in its width and in the largest character."},
        {"row-value", error, "What is no number counts as 0, and characters lie on one another."},
        {"file-missing", error, "Without outlines nothing is seen; without descents lines sink."},
        {"picture-missing", warning, "The background stays without its picture."},
        {"data-malformed", error, "The sign refuses the whole file and reads nothing from it."},
        {"outline-malformed", error, "The sign refuses the outline; the character stays away."},
        {"data-length", error,
         "Characters without an outline stay away; without a descent they sink."},
        {"data-surplus", warning, "The file may belong to another text."},
        {"outline-empty", warning, "The character leaves a gap."},
        {"character-wide", warning, "The character gets a page of its own and is cut off."},
        {"text-high", warning, "The text is cut off above and below."},
        {"line-long", warning,
         "Beyond 31,999 pixels the painter needs a second picture, and it paints that one white."},
        {"gradient-ignored", warning,
         "Gradients belong to the dazzle background; the text keeps its colour."},
        {"picture-ignored", warning,
         "Pictures belong to the dazzle background; the text keeps its colour."},
        {"stroke-ignored", warning, "Text is outlined in its own colour."},
        {"shadow-ignored", warning, "Text is painted without shadows."},
        {"colors-ignored", warning, "The whole text has the colour of its first character."},
    };
    return rules;
}

const Rule* RuleFor(const char* code)
{
    for (const Rule& rule : Rules()) {
        if (std::strcmp(rule.code, code) == 0)
            return &rule;
    }
    qFatal("there is no rule %s", code);
}

} // namespace AnimText
