#include "validate/rules.h"

#include <QCoreApplication>

#include <iterator>

namespace AnimText::validate {

namespace {

constexpr Severity error = Severity::Error;
constexpr Severity warning = Severity::Warning;

struct Rules
{
    Q_DECLARE_TR_FUNCTIONS(Rules)

public:
    /** Of each Mistake, in their order. */
    static constexpr Rule all[] = {
        {error, "scene-unreadable", QT_TR_NOOP("No tool can play it.")},
        {warning, "scene-empty", QT_TR_NOOP("The display stays dark.")},
        {error, "node-type",
         QT_TR_NOOP("The host has no plugin for this type and skips the text.")},
        {error, "area-empty", QT_TR_NOOP("Nothing can be painted.")},
        {warning, "area-outside", QT_TR_NOOP("The part outside the display is not visible.")},
        {warning, "areas-overlap", QT_TR_NOOP("One text covers another on the same page.")},
        {error, "canvas-large",
         QT_TR_NOOP("The picture is larger than the plugin's limit, so nothing is painted.")},
        {warning, "text-empty", QT_TR_NOOP("This text is empty.")},
        {error, "mode-unknown", QT_TR_NOOP("One empty frame is shown forever.")},
        {error, "effect-unknown", QT_TR_NOOP("Empty frames are shown, and the text never ends.")},
        {error, "direction-unknown",
         QT_TR_NOOP("Empty frames are shown, and the text never ends.")},
        {error, "speed-range",
         QT_TR_NOOP("Motions are made for speeds 0 to 9; at others they stall or jump.")},
        {warning, "plays-range", QT_TR_NOOP("The text counts as finished after its first frame.")},
        {warning, "hold-range", QT_TR_NOOP("Each page disappears as soon as it is complete.")},
        {warning, "flag-value",
         QT_TR_NOOP("Only 1 turns it on, but the layers are stacked as if it were on.")},
        {error, "list-length",
         QT_TR_NOOP("Characters without a row are 0 pixels wide and high, or red.")},
        {warning, "list-surplus",
         QT_TR_NOOP("Surplus rows count toward the text's width and its largest character.")},
        {error, "row-value", QT_TR_NOOP("Non-numeric values count as 0, so characters overlap.")},
        {error, "file-missing",
         QT_TR_NOOP("Without outlines the text is invisible; without descents it sits too low.")},
        {warning, "picture-missing", QT_TR_NOOP("The background is shown without its picture.")},
        {error, "data-malformed", QT_TR_NOOP("The sign rejects the whole file.")},
        {error, "outline-malformed",
         QT_TR_NOOP("The sign rejects the outline, so the character is missing.")},
        {error, "data-length",
         QT_TR_NOOP(
             "Characters without an outline are missing; those without a descent sit too low.")},
        {warning, "data-surplus", QT_TR_NOOP("The file may belong to another text.")},
        {warning, "outline-empty", QT_TR_NOOP("The character leaves a gap.")},
        {warning, "character-wide", QT_TR_NOOP("The character gets its own page and is cut off.")},
        {warning, "text-high", QT_TR_NOOP("Letters are cut off at the top or bottom.")},
        {warning, "line-long", QT_TR_NOOP("The part beyond pixel 31,999 is painted white.")},
        {warning, "gradient-ignored",
         QT_TR_NOOP("Gradients work only with the dazzle background; the text keeps its color.")},
        {warning, "picture-ignored",
         QT_TR_NOOP("Pictures work only with the dazzle background; the text keeps its color.")},
        {warning, "stroke-ignored", QT_TR_NOOP("The sign outlines text in its own color.")},
        {warning, "shadow-ignored", QT_TR_NOOP("The sign paints text without shadows.")},
        {warning, "colors-ignored",
         QT_TR_NOOP("The whole text has the color of its first character.")},
        {warning, "color-range",
         QT_TR_NOOP("The sign uses only the lowest 24 bits, which are another color.")},
    };
};
static_assert(std::size(Rules::all) == size_t(Mistake::ColorRange) + 1, "a rule for each mistake");

} // namespace

const Rule& RuleFor(Mistake mistake)
{
    return Rules::all[int(mistake)];
}

} // namespace AnimText::validate
