/**
 * @file
 * The kinds of mistakes that validate finds.
 */
#pragma once

namespace AnimText::validate {

enum class Severity { Warning, Error };

enum class Mistake {
    SceneUnreadable,
    SceneEmpty,
    NodeType,
    AreaEmpty,
    AreaOutside,
    AreasOverlap,
    CanvasLarge,
    TextEmpty,
    ModeUnknown,
    EffectUnknown,
    DirectionUnknown,
    SpeedRange,
    PlaysRange,
    HoldRange,
    FlagValue,
    ListLength,
    ListSurplus,
    RowValue,
    FileMissing,
    PictureMissing,
    DataMalformed,
    OutlineMalformed,
    DataLength,
    DataSurplus,
    OutlineEmpty,
    CharacterWide,
    TextHigh,
    LineLong,
    GradientIgnored,
    PictureIgnored,
    StrokeIgnored,
    ShadowIgnored,
    ColorsIgnored,
    ColorRange,
};

/** One kind of mistake. */
struct Rule
{
    Severity severity; ///< an error shows nothing or something wrong; a warning may be intended
    const char* code;  ///< keeps its meaning from version to version, e.g. "speed-range"
    const char* why;   ///< what it does on the sign
};

const Rule& RuleFor(Mistake mistake);

} // namespace AnimText::validate
