/**
 * @file
 * What is told of the commands, made from their tables.
 */
#ifndef ANIMTEXT_HELP_H
#define ANIMTEXT_HELP_H

#include "cli/option.h"

#include <QByteArray>

namespace AnimText {

/** The list of commands. */
QByteArray Overview(const QVector<Command>& commands);

/** What a command does, and its options. */
QByteArray HelpText(const Command& command);

/** The script with which bash, zsh or fish completes the program's words. */
QByteArray CompletionForBash(const QVector<Command>& commands);
QByteArray CompletionForZsh(const QVector<Command>& commands);
QByteArray CompletionForFish(const QVector<Command>& commands);

} // namespace AnimText

#endif
