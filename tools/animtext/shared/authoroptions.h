/**
 * @file
 * The options of animtext author.
 */
#pragma once

#include "author/authorscene.h"
#include "cli/commandline.h"

namespace AnimText::animtext::shared {

QVector<cli::Option> LayoutOptions();

/** The text's font, size and color, without its words. */
author::WrittenText ReadWritten(const cli::CommandLine& line);
/** Area, hollow and hold. */
scene::SceneNode ReadLook(const cli::CommandLine& line);

/** Reads all options; throws Misuse if they cannot be combined. */
author::AuthorRequest ReadRequest(const cli::CommandLine& line);

} // namespace AnimText::animtext::shared
