#include "cli/output.h"

#include "files/wholefile.h"

#include <cstdio>

namespace AnimText::cli {

namespace {

[[noreturn]] void FailToPrint()
{
    throw files::Failure{files::FailedRun,
                         "cannot write to standard output: " + files::SystemError()};
}

} // namespace

void Warn(const QString& message)
{
    // Writes file names as the bytes they were given in.
    const QByteArray line = "animtext: " + message.toLocal8Bit() + '\n';
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

void Print(const QByteArray& text)
{
    const size_t size = size_t(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size)
        FailToPrint();
}

void FlushOutput()
{
    if (std::fflush(stdout) != 0)
        FailToPrint();
}

void EndWith(files::Status status)
{
    FlushOutput();
    throw files::Failure{status, QString()};
}

} // namespace AnimText::cli
