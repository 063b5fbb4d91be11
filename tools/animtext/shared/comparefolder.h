/**
 * @file
 * The scenes of a folder against what was recorded of them.
 */
#pragma once

#include "cli/commandline.h"

namespace AnimText::animtext::shared {

/** The options of animtext compare that go with a folder. */
QVector<cli::Option> FolderOptions();

/** Compares, or records. @return the exit status; throws Failure where a scene cannot be played */
int CompareFolder(const cli::CommandLine& line, const QString& folder);

} // namespace AnimText::animtext::shared
