/**
 * @file
 * Manual pages, made from the same tables as the help.
 */
#ifndef ANIMTEXT_MANUAL_H
#define ANIMTEXT_MANUAL_H

#include "cli/option.h"

#include <QByteArray>

namespace AnimText {

/** The page animtext(1), for man's formatter. */
QByteArray ManualOverview(const QVector<Command>& commands);

/** The page animtext-COMMAND(1). */
QByteArray ManualPage(const Command& command);

/**
 * Writes all of them into @p folder, which is made when it is missing. Throws Failure when they
 * cannot be written.
 */
void WriteManual(const QVector<Command>& commands, const QString& folder);

} // namespace AnimText

#endif
