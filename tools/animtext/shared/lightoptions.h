/**
 * @file
 * Options of animtext play for LED controllers.
 */
#pragma once

#include "cli/commandline.h"

namespace AnimText::lights {
class Lights;
}

namespace AnimText::animtext::shared {

QVector<cli::Option> LightOptions();

/** Throws Misuse if an option is set without another one that it needs. */
void CheckLightOptions(const cli::CommandLine& line);

/**
 * Adds the controllers of --to and prints where their packets go. On an error, throws Failure
 * before anything is sent.
 */
void AddLights(const cli::CommandLine& line, QSize display, lights::Lights* lights);

/** Plays the test pattern until --seconds are over or a signal comes. */
void PlayTestPattern(const cli::CommandLine& line);

} // namespace AnimText::animtext::shared
