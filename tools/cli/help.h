/**
 * @file
 * Help and shell completions, made from the tables of commands.
 */
#ifndef ANIMTEXT_HELP_H
#define ANIMTEXT_HELP_H

#include "cli/option.h"

#include <QByteArray>

namespace AnimText::cli {

/** The list of commands. */
QByteArray Overview(const QVector<Command>& commands);

/** What a command does, its options and examples. */
QByteArray HelpText(const Command& command);

/** The completion scripts. */
QByteArray CompletionForBash(const QVector<Command>& commands);
QByteArray CompletionForZsh(const QVector<Command>& commands);
QByteArray CompletionForFish(const QVector<Command>& commands);

} // namespace AnimText::cli

#endif
