#include "animtext/progress.h"

#include <QByteArray>

#include <csignal>
#include <cstdio>

#include <unistd.h>

namespace AnimText {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void Interrupt(int)
{
    interrupted = 1;
}

constexpr int barWidth = 30;
constexpr int quietTime = 1000; // milliseconds before the bar appears
constexpr int redrawTime = 100; // milliseconds from one drawing to the next

} // namespace

Progress::Progress(const QString& what, qint64 total)
    : what(what)
    , total(total)
    , terminal(isatty(STDERR_FILENO) == 1)
{
    sinceStart.start();
}

Progress::~Progress()
{
    if (drawn)
        std::fputs("\r\033[K", stderr);
}

void Progress::Show(qint64 done)
{
    const qint64 now = sinceStart.elapsed();
    if (!terminal || now < quietTime || now - lastDrawn < redrawTime)
        return;
    lastDrawn = now;
    drawn = true;
    QString text = what + QLatin1Char(' ');
    if (total > 0) {
        const int filled = int(barWidth * qMin(done, total) / total);
        text += QString(filled, QChar(0x2588)) + QString(barWidth - filled, QChar(0x2591)) +
                QStringLiteral(" %1 of %2").arg(done).arg(total);
    } else {
        text += QString::number(done);
    }
    std::fprintf(stderr, "\r\033[K%s", text.toUtf8().constData());
    std::fflush(stderr);
}

void WatchForInterruption()
{
    for (int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action = {};
        action.sa_handler = Interrupt;
        sigaction(signal, &action, nullptr);
    }
}

bool Interrupted()
{
    return interrupted != 0;
}

} // namespace AnimText
