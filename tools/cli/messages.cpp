#include "cli/messages.h"

#include "cli/output.h"

#include <QSet>

#include <cstdio>

#include <unistd.h>

namespace AnimText {

namespace {

bool silent = false;

void Tell(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    static QSet<QString> told;
    if (type == QtFatalMsg && message.contains(QLatin1String("platform plugin"))) {
        Warn(NoDisplay());
        _exit(FailedRun);
    }
    // What leads to that end is told by it.
    const bool isOfPlatform = context.category && qstrncmp(context.category, "qt.qpa.", 7) == 0;
    if (silent || isOfPlatform || message.startsWith(QLatin1String("QStandardPaths: ")) ||
        told.contains(message))
        return;
    told.insert(message);
    const QByteArray line = message.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

} // namespace

void InstallMessages()
{
    qInstallMessageHandler(Tell);
}

QString NoDisplay()
{
    return QStringLiteral(
        "there is no display: run it in a desktop session, or within xvfb-run; or "
        "set QT_QPA_PLATFORM=vnc for VNC viewers, or QT_QPA_PLATFORM=linuxfb for "
        "a board's own screen, /dev/fb0");
}

Silence::Silence()
{
    silent = true;
}

Silence::~Silence()
{
    silent = false;
}

} // namespace AnimText
