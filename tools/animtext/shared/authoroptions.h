/**
 * @file
 * The options of animtext author.
 */
#ifndef ANIMTEXT_AUTHOROPTIONS_H
#define ANIMTEXT_AUTHOROPTIONS_H

#include "author/authorscene.h"
#include "cli/commandline.h"

namespace AnimText {

QVector<Option> LayoutOptions();

/** The text's font, size and color, without its words. */
WrittenText ReadWritten(const CommandLine& line);
/** Area, hollow and hold. */
SceneNode ReadLook(const CommandLine& line);

/** Reads all options; throws Misuse if they cannot be combined. */
AuthorRequest ReadRequest(const CommandLine& line);

} // namespace AnimText

#endif
