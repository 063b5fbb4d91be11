/**
 * @file
 * The patterns of a neon border: each tells the light at one place at one time.
 */
#ifndef LW_NEONPATTERNS_H
#define LW_NEONPATTERNS_H

#include "neonlight.h"

namespace Lw {

/** A border is a closed loop of light. */
struct NeonLoop
{
    double length;     ///< pixels round the middle of the band
    double thickness;  ///< pixels, of the band
    double corners[4]; ///< where the corners are, pixels along the loop
};

/** A place in the band. */
struct NeonSpot
{
    double along;  ///< pixels clockwise from the left end of the top edge
    double across; ///< -1 at the outer edge, 0 in the middle, 1 at the inner edge
};

/** What a pattern is told. */
struct NeonScene
{
    const NeonLoop& loop;
    const NeonSpot& spot;
    const NeonPalette& palette;
    double tick; ///< how many pictures there have been before
    double unit; ///< pixels; patterns are as large as the band is thick
};

/** The whole palette runs round. */
NeonLight Rainbow(const NeonScene& scene);

/** Lamps that stand still; every third one is lit in turn. */
NeonLight ChasingDots(const NeonScene& scene);

/** Blocks of alternating colour that march. */
NeonLight MarqueeBlocks(const NeonScene& scene);

/** Comets with long tails, all one way. */
NeonLight Comets(const NeonScene& scene);

/** Two comets that meet. */
NeonLight TwinComets(const NeonScene& scene);

/** The whole tube breathes while its colour drifts. */
NeonLight Breathing(const NeonScene& scene);

/** Dashes with a sharp front and a fading end flow round. */
NeonLight DashedFlow(const NeonScene& scene);

/** A star that twinkles in every corner and sends a glint along both edges. */
NeonLight CornerSparkles(const NeonScene& scene);

/** Two strands wound round each other. */
NeonLight Braid(const NeonScene& scene);

/** Rings that run from the middle of the top and of the bottom to the sides, where they meet. */
NeonLight Ripples(const NeonScene& scene);

/** Lamps that light up here and there. */
NeonLight Fireflies(const NeonScene& scene);

/** A line draws itself round the area and is taken back from where it began. */
NeonLight SelfDrawing(const NeonScene& scene);

/** Slanted stripes turn like a barber's pole. */
NeonLight BarberPole(const NeonScene& scene);

/** An arc of lightning that leaps within the band. */
NeonLight Lightning(const NeonScene& scene);

} // namespace Lw

#endif
