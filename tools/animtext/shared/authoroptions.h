/**
 * @file
 * What an author asks for on the command line.
 */
#ifndef ANIMTEXT_AUTHOROPTIONS_H
#define ANIMTEXT_AUTHOROPTIONS_H

#include "author/author.h"
#include "cli/commandline.h"

#include <QStringList>

namespace AnimText {

/** The options of animtext author. */
QVector<Option> WishOptions();

/** Reads the font, the color, whether letters are hollow and the hold; throws Misuse. */
void ReadLook(const CommandLine& line, AuthorOptions* options);

/**
 * Reads them all; throws Misuse when they do not go together.
 * @param notes takes a line on each change that the text needed
 */
AuthorOptions ReadWishes(const CommandLine& line, QStringList* notes);

} // namespace AnimText

#endif
