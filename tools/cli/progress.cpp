#include "cli/progress.h"

#include "cli/output.h"

#include <QByteArray>

#include <cstdio>

#include <unistd.h>

namespace AnimText::cli {

namespace {

constexpr int barWidth = 30;
constexpr int quietTime = 1000; // milliseconds before the bar appears
constexpr int redrawTime = 100; // milliseconds from one drawing to the next

} // namespace

Progress::Progress(const QString& what, qint64 total, Form form)
    : what(what)
    , total(total)
    , form(form)
    , terminal(isatty(STDERR_FILENO) == 1)
{
    sinceStart.start();
}

Progress::~Progress()
{
    Wipe();
}

void Progress::Wipe()
{
    if (drawn)
        std::fputs("\r\033[K", stderr);
    drawn = false;
    lastDone = -1;
}

void Progress::Show(qint64 done)
{
    const qint64 now = sinceStart.elapsed();
    const bool isSeen = form == Form::Lines || (terminal && now >= quietTime);
    if (!isSeen || done == lastDone || (now - lastDrawn < redrawTime && done != total))
        return;
    lastDrawn = now;
    lastDone = done;
    if (form == Form::Lines) {
        Print(QStringLiteral("%1 %2 %3\n").arg(done).arg(total).arg(what).toUtf8());
        FlushOutput();
        return;
    }
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

} // namespace AnimText::cli
