/**
 * @file
 * Exit statuses, errors and standard output.
 */
#ifndef ANIMTEXT_OUTPUT_H
#define ANIMTEXT_OUTPUT_H

#include <QByteArray>
#include <QString>

namespace AnimText {

/** Exit statuses. After a signal the status is 128 + signal. */
enum Status { Done = 0, FailedRun = 1, BadInput = 2 };

/** Thrown by a command that fails: the exit status and one line for standard error. */
struct Failure
{
    Status status;
    QString message;
};

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

} // namespace AnimText

#endif
