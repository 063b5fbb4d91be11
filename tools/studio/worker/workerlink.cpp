#include "studio/worker/workerlink.h"

#include <QCoreApplication>

#include <ctime>

namespace AnimText::studio::worker {
namespace {

// A worker that has not answered for that long has hung. Processor time counts, because on a busy
// machine it may just have been waiting.
constexpr double longestWork = 20;     // seconds of processor time
constexpr int longestSilence = 300000; // milliseconds
constexpr int lookTime = 1000;         // milliseconds

QString& ProgramPath()
{
    static QString path;
    return path;
}

} // namespace

double ProcessorTimeOf(qint64 id)
{
    clockid_t clock{};
    timespec time{};
    if (clock_getcpuclockid(pid_t(id), &clock) != 0 || clock_gettime(clock, &time) != 0)
        return 0;
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

WorkerLink::WorkerLink(const QString& plugin, Haste haste)
    : plugin(plugin)
    , haste(haste)
{
    // The plugin's messages go to the studio's terminal.
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&process, &QProcess::readyReadStandardOutput, this, &WorkerLink::Read);
    connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &WorkerLink::End);
    const auto fail = [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) // then it never finishes
            End(0, QProcess::NormalExit);
    };
    connect(&process, &QProcess::errorOccurred, this, fail, Qt::QueuedConnection); // it tidies up
    patience.setInterval(lookTime);
    connect(&patience, &QTimer::timeout, this, [this] {
        hangs = silence.elapsed() > longestSilence ||
                ProcessorTimeOf(process.processId()) - workBefore > longestWork;
        if (hangs)
            process.kill();
    });
}

WorkerLink::~WorkerLink()
{
    process.disconnect(this);
    process.kill();
    process.waitForFinished();
}

void WorkerLink::SetProgram(const QString& path)
{
    ProgramPath() = path;
}

QString WorkerLink::Program()
{
    return ProgramPath().isEmpty() ? QCoreApplication::applicationFilePath() : ProgramPath();
}

void WorkerLink::Start()
{
    if (process.state() != QProcess::NotRunning)
        return;
    received.clear();
    hangs = false;
    QStringList words{"--worker"};
    if (!plugin.isEmpty())
        words += {"--plugin", plugin};
    if (haste == Haste::None)
        words += "--no-haste";
    process.start(Program(), words);
}

void WorkerLink::Send(const Order& next)
{
    if (next.generation != order.generation)
        deaths = 0;
    order = next;
    Write();
}

void WorkerLink::Write()
{
    Start();
    process.write(Packed(order));
    Expect();
}

/** Starts waiting for an answer. */
void WorkerLink::Expect()
{
    silence.start();
    workBefore = ProcessorTimeOf(process.processId());
    patience.start();
}

void WorkerLink::Read()
{
    received += process.readAllStandardOutput();
    Answer answer;
    while (Take(&received, &answer)) {
        const bool isFinished = answer.kind == Answer::Idle && answer.tick != order.last;
        if (answer.kind != Answer::Ready && (answer.generation != order.generation || isFinished))
            continue; // to an earlier order; the present one is still owed
        if (answer.kind == Answer::Picture) {
            if (answer.picture.isNull())
                answer.picture = lastPicture;
            lastPicture = answer.picture;
        }
        const bool isLast = answer.kind == Answer::Idle || answer.kind == Answer::Measured ||
                            !answer.error.isEmpty();
        if (isLast)
            patience.stop();
        if (!isLast && answer.kind != Answer::Ready)
            Expect();
        emit Answered(answer);
    }
}

void WorkerLink::End(int, QProcess::ExitStatus how)
{
    Read();
    const bool isOwed = patience.isActive();
    patience.stop();
    if (!isOwed)
        return;
    if (++deaths == 1) {
        Write();
        return;
    }
    emit Died(hangs                        ? tr("The plugin stopped responding and was terminated.")
              : how == QProcess::CrashExit ? tr("The plugin crashed.")
                                           : tr("The playback process ended unexpectedly."));
}

} // namespace AnimText::studio::worker
