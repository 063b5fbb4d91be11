/**
 * @file
 * Man pages, made from the tables of commands.
 */
#pragma once

#include "cli/option.h"

#include <QByteArray>

namespace AnimText::cli {

/** animtext(1), in man's format. */
QByteArray ManualOverview(const QVector<Command>& commands);

/** animtext-COMMAND(1). */
QByteArray ManualPage(const Command& command);

/**
 * Writes all pages to @p folder and creates it if necessary. Throws Failure when that fails.
 */
void WriteManual(const QVector<Command>& commands, const QString& folder);

} // namespace AnimText::cli
