/**
 * @file
 * Options of animtext play for LED controllers.
 */
#ifndef ANIMTEXT_LIGHTOPTIONS_H
#define ANIMTEXT_LIGHTOPTIONS_H

#include "cli/commandline.h"

namespace AnimText {

class Lights;

QVector<Option> LightOptions();

/** Throws Misuse if an option is set without another one that it needs. */
void CheckLightOptions(const CommandLine& line);

/**
 * Adds the controllers of --to and prints where their packets go. On an error, throws Failure
 * before anything is sent.
 */
void AddLights(const CommandLine& line, QSize display, Lights* lights);

/** Plays the test pattern until --seconds are over or a signal comes. */
int PlayTestPattern(const CommandLine& line);

} // namespace AnimText

#endif
