/**
 * @file
 * Help and shell completions, made from the tables of commands.
 */
#pragma once

#include "cli/option.h"

#include <QByteArray>

namespace AnimText::cli {

/** The list of commands. */
QByteArray Overview(const QVector<Command>& commands);

/** What a command does, its options and examples. */
QByteArray HelpText(const Command& command);

/** @p word in single quotes, as shells read it. */
QString Quoted(QString word);

/** The completion scripts. */
QByteArray CompletionForBash(const QVector<Command>& commands);
QByteArray CompletionForZsh(const QVector<Command>& commands);
QByteArray CompletionForFish(const QVector<Command>& commands);

} // namespace AnimText::cli
