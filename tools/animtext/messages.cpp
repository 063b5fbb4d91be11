#include "animtext/messages.h"

#include <QSet>
#include <QString>

#include <cstdio>

namespace AnimText {

namespace {

bool silent = false;

void Tell(QtMsgType, const QMessageLogContext&, const QString& message)
{
    static QSet<QString> told;
    if (silent || message.startsWith(QLatin1String("QStandardPaths: ")) || told.contains(message))
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

Silence::Silence()
{
    silent = true;
}

Silence::~Silence()
{
    silent = false;
}

} // namespace AnimText
