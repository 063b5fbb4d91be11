#include "studio/worker/workerlink.h"

#include <QCoreApplication>
#include <QFile>

#include <unistd.h>

namespace AnimText {
namespace {

// A worker that has not answered for that long has hung. Processor time counts, because on a busy
// machine it may just have been waiting.
constexpr double longestWork = 20;     // seconds of processor time
constexpr int longestSilence = 300000; // milliseconds
constexpr int lookTime = 1000;         // milliseconds

/** Processor time of the process @p id in seconds. */
double WorkOf(qint64 id)
{
    QFile state(QStringLiteral("/proc/%1/stat").arg(id));
    if (!state.open(QIODevice::ReadOnly))
        return 0;
    // The name in parentheses may contain spaces and parentheses.
    const QByteArray all = state.readAll();
    const QList<QByteArray> words = all.mid(all.lastIndexOf(')') + 2).split(' ');
    return (words.value(11).toDouble() + words.value(12).toDouble()) / double(sysconf(_SC_CLK_TCK));
}

QString& ProgramPath()
{
    static QString path;
    return path;
}

} // namespace

WorkerLink::WorkerLink(const QString& plugin, Haste haste, QObject* parent)
    : QObject(parent)
    , plugin(plugin)
    , haste(haste)
{
}

WorkerLink::~WorkerLink()
{
    Stop();
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
    if (process)
        return;
    process = new QProcess(this);
    // The plugin's messages go to the studio's terminal.
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(process, &QProcess::readyReadStandardOutput, this, &WorkerLink::Read);
    connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &WorkerLink::Ended);
    if (!patience) {
        patience = new QTimer(this);
        patience->setInterval(lookTime);
        connect(patience, &QTimer::timeout, this, [this] {
            hangs = silence.elapsed() > longestSilence ||
                    WorkOf(process->processId()) - workBefore > longestWork;
            if (hangs)
                process->kill();
        });
    }
    received.clear();
    hangs = false;
    QStringList words{QStringLiteral("--worker")};
    if (!plugin.isEmpty())
        words += {QStringLiteral("--plugin"), plugin};
    if (haste == Haste::None)
        words += QStringLiteral("--no-haste");
    process->start(Program(), words);
}

void WorkerLink::Stop()
{
    if (!process)
        return;
    process->disconnect(this);
    patience->stop();
    process->closeWriteChannel();
    process->kill();
    process->waitForFinished();
    delete process;
    process = nullptr;
}

void WorkerLink::Send(const QByteArray& message)
{
    Start();
    process->write(message);
    Expect();
}

/** Starts waiting for an answer. */
void WorkerLink::Expect()
{
    silence.start();
    workBefore = WorkOf(process->processId());
    patience->start();
}

void WorkerLink::Load(const LoadOrder& order)
{
    Send(Packed(Message::Load, order));
}

void WorkerLink::Play(int from, int to)
{
    Send(Packed(Message::Play, qint32(from), qint32(to)));
}

void WorkerLink::Measure(const LoadOrder& order)
{
    Send(Packed(Message::Measure, order));
}

void WorkerLink::Read()
{
    received += process->readAllStandardOutput();
    Message kind;
    QByteArray body;
    while (TakeMessage(&received, &kind, &body))
        Handle(kind, body);
}

void WorkerLink::Handle(Message kind, const QByteArray& body)
{
    quint32 generation = 0;
    QString text;
    switch (kind) {
    case Message::Ready:
        Expect();
        Unpack(body, &text);
        emit Ready(text);
        break;
    case Message::Loaded:
        patience->stop();
        Unpack(body, &generation, &text);
        emit Loaded(generation, text);
        break;
    case Message::Picture: {
        Expect();
        TickPicture picture;
        Unpack(body, &picture);
        if (picture.picture.isNull())
            picture.picture = lastPicture;
        lastPicture = picture.picture;
        emit Picture(picture);
        break;
    }
    case Message::Measured: {
        patience->stop();
        Timing timing;
        Unpack(body, &generation, &timing);
        emit Measured(generation, timing);
        break;
    }
    case Message::Idle:
        patience->stop();
        Unpack(body, &generation);
        emit Idle(generation);
        break;
    default: break;
    }
}

void WorkerLink::Ended()
{
    Read();
    const bool crashed = process->exitStatus() == QProcess::CrashExit;
    process->deleteLater();
    process = nullptr;
    patience->stop();
    emit Died(hangs     ? tr("The plugin stopped responding and was terminated.")
              : crashed ? tr("The plugin crashed.")
                        : tr("The playback process ended unexpectedly."));
}

} // namespace AnimText
