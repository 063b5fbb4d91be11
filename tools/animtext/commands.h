/**
 * @file
 * The commands of animtext. They throw Failure or Misuse.
 */
#ifndef ANIMTEXT_COMMANDS_H
#define ANIMTEXT_COMMANDS_H

#include "cli/option.h"

namespace AnimText {

Command AuthorCommand();
Command CompareCommand();
Command DurationCommand();
Command EffectsCommand();
Command FontsCommand();
Command GalleryCommand();
Command ListCommand();
Command PlayCommand();
Command RemoveCommand();
Command RenderCommand();
Command SchemaCommand();
Command SetCommand();
Command SheetCommand();
Command TidyCommand();
Command TraceCommand();
Command ValidateCommand();

} // namespace AnimText

#endif
