/**
 * @file
 * Help, man pages and shell completions, made from the tables of commands.
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

/** The completion script for bash, zsh or fish; throws Misuse for other shells. */
QByteArray Completion(const QString& shell, const QVector<Command>& commands);

/**
 * Writes animtext(1) and animtext-COMMAND(1), in man's format, to @p folder and creates it if
 * necessary. Throws Failure when that fails.
 */
void WriteManual(const QVector<Command>& commands, const QString& folder);

} // namespace AnimText::cli
