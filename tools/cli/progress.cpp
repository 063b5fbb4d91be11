#include "cli/progress.h"

#include "cli/output.h"

#include <cstdio>

#include <unistd.h>

namespace AnimText::cli {

namespace {

constexpr int barWidth = 30;
constexpr int quietTime = 1000; // milliseconds before the bar appears
constexpr int redrawTime = 100; // milliseconds from one drawing to the next

} // namespace

Progress::Progress(Form form)
    : form(form)
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
    if (form == Form::Bar && !shown.isEmpty())
        std::fputs("\r\033[K", stderr);
    shown.clear();
}

void Progress::Show(const QString& what, qint64 done, qint64 total)
{
    const qint64 now = sinceStart.elapsed();
    const bool isSeen = form == Form::Lines || (terminal && now >= quietTime);
    if (!isSeen || (now - lastDrawn < redrawTime && done != total))
        return;
    QString text = QStringLiteral("%1 %2 %3\n").arg(done).arg(total).arg(what);
    if (form == Form::Bar && total > 0) {
        const int filled = int(barWidth * qMin(done, total) / total);
        text = QStringLiteral("%1 %2%3 %4 of %5")
                   .arg(what, QString(filled, QChar(0x2588)),
                        QString(barWidth - filled, QChar(0x2591)))
                   .arg(done)
                   .arg(total);
    } else if (form == Form::Bar) {
        text = QStringLiteral("%1 %2").arg(what).arg(done);
    }
    if (text == shown)
        return;
    lastDrawn = now;
    shown = text;
    if (form == Form::Lines) {
        Print(text.toUtf8());
        FlushOutput();
    } else {
        std::fprintf(stderr, "\r\033[K%s", text.toUtf8().constData());
        std::fflush(stderr);
    }
}

} // namespace AnimText::cli
