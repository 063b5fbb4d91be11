/**
 * @file
 * The options that play has for LED controllers.
 */
#ifndef ANIMTEXT_LIGHTOPTIONS_H
#define ANIMTEXT_LIGHTOPTIONS_H

#include "cli/commandline.h"

namespace AnimText {

class Lights;

QVector<Option> LightOptions();

/** Throws Misuse where options are given without those that they need. */
void CheckLightOptions(const CommandLine& line);

/**
 * Adds the controllers of --to, for a display of that size, and prints where their packets go.
 * Throws Failure where that is not possible; nothing has been sent then.
 */
void AddLights(const CommandLine& line, QSize display, Lights* lights);

/** Plays the test pattern until the time is over or the program is to end. */
int PlayTestPattern(const CommandLine& line);

} // namespace AnimText

#endif
