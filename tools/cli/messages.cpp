#include "cli/messages.h"

#include "cli/output.h"

#include <QSet>

#include <cstdio>

#include <unistd.h>

namespace AnimText::cli {

namespace {

bool silent = false;

void PrintOnce(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    static QSet<QString> printed;
    if (type == QtFatalMsg && message.contains(QLatin1String("platform plugin"))) {
        Warn(NoDisplay());
        _exit(files::FailedRun);
    }
    // NoDisplay() replaces what the platform plugins say.
    const bool isOfPlatform = context.category && qstrncmp(context.category, "qt.qpa.", 7) == 0;
    if (silent || isOfPlatform || message.startsWith(QLatin1String("QStandardPaths: ")) ||
        printed.contains(message))
        return;
    printed.insert(message);
    const QByteArray line = message.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

} // namespace

void InstallMessages()
{
    qInstallMessageHandler(PrintOnce);
}

QString NoDisplay()
{
    return "no display: run animtext in a desktop session or with xvfb-run, or set QT_QPA_PLATFORM "
           "to vnc for VNC viewers or to linuxfb for a board's own screen (/dev/fb0)";
}

void SuppressMessages()
{
    silent = true;
}

} // namespace AnimText::cli
