/**
 * @file
 * What the program says and how it ends: exit statuses, errors, standard output.
 */
#ifndef ANIMTEXT_OUTPUT_H
#define ANIMTEXT_OUTPUT_H

#include <QByteArray>
#include <QString>

namespace AnimText {

/** Exit statuses. One that a signal ended has 128 and the signal's number. */
enum Status { Done = 0, FailedRun = 1, BadInput = 2 };

/** Thrown by a command that cannot go on: the exit status and one line for standard error. */
struct Failure
{
    Status status;
    QString message;
};

/** Thrown where the words of the command line are wrong. */
struct Misuse
{
    QString message;
};

/** Says "animtext: @p message" on standard error. */
void Warn(const QString& message);

/** Writes to standard output. Throws Failure when it cannot take it, say because a disk is full. */
void Print(const QByteArray& text);

/** Waits until standard output has taken everything. Throws Failure when it cannot. */
void FlushOutput();

} // namespace AnimText

#endif
