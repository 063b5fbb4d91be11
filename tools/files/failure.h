/**
 * @file
 * How work ends, for whoever started the program.
 */
#pragma once

#include <QFile>
#include <QString>

namespace AnimText::files {

/** Exit statuses. After a signal the status is 128 + signal. */
enum Status { Done = 0, FailedRun = 1, BadInput = 2 };

/** Thrown by what fails: the exit status and one line for standard error, if there is more to say.
 */
struct Failure
{
    Status status;
    QString message;
};

/** Throws Failure with @p error unless it @p succeeded. */
inline void FailUnless(bool succeeded, const QString& error, Status status = FailedRun)
{
    if (!succeeded)
        throw Failure{status, error};
}

/** Opens @p file to read it; throws Failure if that fails. */
inline void OpenToRead(QFile* file)
{
    if (!file->open(QIODevice::ReadOnly))
        throw Failure{
            BadInput,
            QStringLiteral("%1: cannot be read: %2").arg(file->fileName(), file->errorString())};
}

} // namespace AnimText::files
