/**
 * @file
 * The options of animtext author.
 */
#ifndef ANIMTEXT_AUTHOROPTIONS_H
#define ANIMTEXT_AUTHOROPTIONS_H

#include "author/author.h"
#include "cli/commandline.h"

#include <QStringList>

namespace AnimText {

QVector<Option> LayoutOptions();

/** Reads font, color, hollow and hold; throws Misuse. */
void ReadLook(const CommandLine& line, AuthorOptions* options);

/**
 * Reads all options; throws Misuse if they cannot be combined.
 * @param notes gets a line for each change that the text needed
 */
AuthorOptions ReadOptions(const CommandLine& line, QStringList* notes);

} // namespace AnimText

#endif
