/**
 * @file
 * Many scenes rendered side by side, each by a process of its own.
 */
#pragma once

#include "cli/commandline.h"
#include "cli/progress.h"

namespace AnimText::animtext::shared {

/**
 * Renders the scenes of @p line into its folder, as films whose names have that @p ending, see
 * FilmKind, and with these @p options of animtext render. One that fails tells its errors and does
 * not keep the others. Throws Failure unless all films are there in the end.
 */
void RenderAll(const cli::CommandLine& line, const QString& ending, const QStringList& options,
               cli::Progress::Form form);

} // namespace AnimText::animtext::shared
