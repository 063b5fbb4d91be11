/**
 * @file
 * The commands of animtext. They throw Failure or Misuse.
 */
#pragma once

#include "cli/option.h"

namespace AnimText::animtext {

using cli::Option;

cli::Command AuthorCommand();
cli::Command CompareCommand();
cli::Command DurationCommand();
cli::Command EffectsCommand();
cli::Command FontsCommand();
cli::Command GalleryCommand();
cli::Command ListCommand();
cli::Command PlayCommand();
cli::Command RemoveCommand();
cli::Command RenderCommand();
cli::Command SchemaCommand();
cli::Command SetCommand();
cli::Command SheetCommand();
cli::Command TidyCommand();
cli::Command TraceCommand();
cli::Command ValidateCommand();

} // namespace AnimText::animtext
