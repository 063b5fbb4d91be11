#ifndef MOTIONS_H
#define MOTIONS_H

namespace Lw {
namespace HNodeAnimationText {

/** The modes, by the numbers of "EffectType". Any other is static text. */
struct Mode
{
    enum Number { Entrance = 0, Scroll = 1 };
};

/** The directions of scrolling, by the numbers of "ContinueStyle". */
struct Scroll
{
    enum Number { Left = 0, Right = 1, Up = 2, Down = 3 };
};

/**
 * The entrance effects, by the numbers of "AnimationEffect": the engine plays each with
 * the member of the same name.
 */
struct Entrance
{
    enum Number {
        FlyFromLeft = 0,
        FlyFromRight = 1,
        FlyFromTop = 2,
        FlyFromBottom = 3,
        WordForWordOutput = 4,
        Waves = 5,
        Swing = 6,
        BeforeAfterScal = 7,
        Tremble = 8,
        WordForWordAmplification = 9,
        WordForWordNarrow = 10,
        Rotation = 11,
        RotationTrundle = 12,
        AngleRotation = 13,
        InTurnFlips = 14,
        InTurnUpwardZoom = 15,
        InTurnDrop = 16,
        AngleDrop45Degree = 17,
        ZoomIn = 18,
        TopWithFrogAppearsVerbatim = 19,
        TopWithFrog = 20,
        RightToEnlarge = 21,
        DiagonalMoves = 22,
        RepeatTheWhereabouts = 23,
        FromBothSidesInOrderToEnlarge = 24,
        HorizontalRotation3D = 25,
        FlipsInto = 26,
        RotateInto = 27,
        TextZoom = 28,
        Shake = 29,
        Last = Shake
    };
};

/** Text that the device moves, as one picture. */
inline bool IsScrolledByDevice(int mode, int direction)
{
    return mode == Mode::Scroll && (direction == Scroll::Left || direction == Scroll::Right);
}

/** The effects in which a frog brings the characters; they draw the dazzle background themselves.
 */
inline bool PlaysFrogs(int mode, int effect)
{
    return mode == Mode::Entrance &&
           (effect == Entrance::TopWithFrogAppearsVerbatim || effect == Entrance::TopWithFrog);
}

/** Characters that appear or shake at once: paced by the ticks between two frames. */
inline bool IsPacedByTicks(int mode, int effect)
{
    return mode == Mode::Entrance && (effect == Entrance::WordForWordOutput ||
                                      effect == Entrance::Tremble || PlaysFrogs(mode, effect));
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
