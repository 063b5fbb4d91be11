#include "film/filmprogram.h"

#include "files/failure.h"
#include "files/wholefile.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <cstring>

namespace AnimText::film {

namespace {

constexpr qint64 mostWaiting = 16 << 20; // bytes that the program has not read yet
constexpr int glance = 50;               // milliseconds between two checks of the program

} // namespace

FilmProgram::FilmProgram(const QString& film, const GoOn& goOn, int patience,
                         const QString& program, const QStringList& words, const QString& output)
    : film(film)
    , goOn(goOn)
    , patience(patience)
    , output(output)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        Fail(QStringLiteral("the program %1, which films need, is not installed: apt-get install "
                            "ffmpeg, or name a folder for PNGs")
                 .arg(program));
    process.start(path, words);
    if (!process.waitForStarted(-1))
        Fail(QStringLiteral("%1 does not start: %2").arg(program, process.errorString()));
}

FilmProgram::~FilmProgram()
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.kill();
    process.waitForFinished(-1);
}

QStringList FilmProgram::Reading(QSize size, const char* pixelFormat)
{
    return QStringLiteral("-nostdin -v error -f rawvideo -framerate 500/33 -pix_fmt %1 -s %2x%3 "
                          "-i pipe:0")
        .arg(QLatin1String(pixelFormat))
        .arg(size.width())
        .arg(size.height())
        .split(QLatin1Char(' '));
}

/** A number that changes while the program makes progress. */
qint64 FilmProgram::Progress() const
{
    return (output.isEmpty() ? 0 : QFileInfo(output).size()) - process.bytesToWrite() +
           process.bytesAvailable();
}

void FilmProgram::WaitUntil(const std::function<bool()>& done)
{
    QElapsedTimer standing;
    standing.start();
    qint64 progress = Progress();
    while (!done() && process.state() != QProcess::NotRunning) {
        goOn();
        if (process.bytesToWrite() > 0)
            process.waitForBytesWritten(glance);
        else
            process.waitForFinished(glance);
        const qint64 now = Progress();
        if (now != progress) {
            progress = now;
            standing.start();
        } else if (standing.hasExpired(patience)) {
            Fail(QStringLiteral("%1 has stood still for %2 s and was ended")
                     .arg(QFileInfo(process.program()).fileName())
                     .arg(patience / 1000.0));
        }
    }
}

void FilmProgram::Take(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y)
        process.write(reinterpret_cast<const char*>(picture.constScanLine(y)),
                      qint64(picture.width()) * picture.depth() / 8);
    WaitUntil([this] { return process.bytesToWrite() <= mostWaiting; });
    if (process.state() != QProcess::Running)
        Fail(process.readAllStandardError());
}

QByteArray FilmProgram::Finish()
{
    WaitUntil([this] { return process.bytesToWrite() == 0; });
    process.closeWriteChannel();
    WaitUntil([] { return false; });
    const QByteArray said = process.readAllStandardError();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 || !said.isEmpty())
        Fail(said);
    return process.readAllStandardOutput();
}

void FilmProgram::Fail(const QString& problem) const
{
    throw files::Failure{files::FailedRun, files::CannotWrite(film, problem)};
}

/** With the most telling part of what the program @p said, on one line. */
void FilmProgram::Fail(const QByteArray& said) const
{
    goOn(); // Ctrl+C in a terminal also ends the program
    const QString name = QFileInfo(process.program()).fileName();
    // Later messages are consequences of a full disk.
    for (int cause : {ENOSPC, EFBIG, EDQUOT, EIO}) {
        if (said.contains(std::strerror(cause)))
            Fail(QStringLiteral("%1 failed: %2").arg(name, std::strerror(cause)));
    }
    const QString all = QString::fromLocal8Bit(said).trimmed();
    const QString last = all.mid(all.lastIndexOf(QLatin1Char('\n')) + 1).trimmed();
    Fail(QStringLiteral("%1 failed: %2").arg(name, last.isEmpty() ? process.errorString() : last));
}

} // namespace AnimText::film
