/**
 * @file
 * Errors and standard output.
 */
#pragma once

#include "files/failure.h"

#include <QByteArray>

namespace AnimText::cli {

/** Thrown if the command line is wrong. */
struct Misuse
{
    QString message;
};

/** Prints "animtext: @p message" on standard error. */
void Warn(const QString& message);

/** Writes to standard output. Throws Failure if that fails. */
void Print(const QByteArray& text);

/** Flushes standard output. Throws Failure if that fails. */
void FlushOutput();

/** Throws a Failure without a message, for standard output says what is wrong. */
[[noreturn]] void EndWith(files::Status status);

} // namespace AnimText::cli
