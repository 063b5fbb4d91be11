#include "studio/worker/exporting.h"

#include "studio/worker/workerlink.h"

#include <QRegularExpression>

namespace AnimText {
namespace {

QString Quoted(QString word)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_./=:,+@%-]+$"));
    if (plain.match(word).hasMatch())
        return word;
    return QLatin1Char('\'') + word.replace(QLatin1Char('\''), QStringLiteral("'\\''")) +
           QLatin1Char('\'');
}

} // namespace

QStringList RenderOptions(const ExportWishes& wishes)
{
    QStringList options{QStringLiteral("-o"), wishes.output};
    if (wishes.scale != 1)
        options += {QStringLiteral("--scale"), QString::number(wishes.scale)};
    if (wishes.schedule)
        options += QStringLiteral("--schedule");
    if (wishes.last >= 0)
        options += {QStringLiteral("--frames"),
                    QStringLiteral("%1-%2").arg(wishes.first).arg(wishes.last)};
    if (wishes.lamps > 0)
        options += {QStringLiteral("--lamps"), QString::number(wishes.lamps)};
    if (wishes.transparent)
        options += QStringLiteral("--transparent");
    if (wishes.lossless)
        options += QStringLiteral("--lossless");
    return options;
}

QString RenderCommandLine(const QString& scene, const ExportWishes& wishes)
{
    QStringList words{QStringLiteral("animtext"), QStringLiteral("render"), Quoted(scene)};
    for (const QString& option : RenderOptions(wishes))
        words.append(Quoted(option));
    return words.join(QLatin1Char(' '));
}

Export::Export(QObject* parent)
    : QObject(parent)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&process, &QProcess::readyReadStandardOutput, this, &Export::Read);
    connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &Export::Finish);
}

Export::~Export()
{
    process.disconnect(this);
    if (!IsRunning())
        return;
    process.closeWriteChannel();
    process.waitForFinished();
}

void Export::Start(const QString& plugin, const QString& scene, const ExportWishes& wishes)
{
    error.clear();
    cancelled = false;
    QStringList words{QStringLiteral("--export"), scene};
    if (!plugin.isEmpty())
        words += {QStringLiteral("--plugin"), plugin};
    process.start(WorkerLink::Program(), words + RenderOptions(wishes));
}

void Export::Cancel()
{
    cancelled = true;
    process.closeWriteChannel(); // it ends when nobody wants its film any more
}

void Export::Read()
{
    while (process.canReadLine()) {
        const QString line = QString::fromUtf8(process.readLine()).trimmed();
        if (line.startsWith(QLatin1String("error ")))
            error = line.mid(6);
        else
            emit Progress(line.section(QLatin1Char(' '), 0, 0).toLongLong(),
                          line.section(QLatin1Char(' '), 1, 1).toLongLong());
    }
}

void Export::Finish()
{
    Read();
    const bool failed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    if (failed && error.isEmpty())
        error = tr("the export has ended before its time");
    emit Ended(failed || cancelled ? error : QString(), cancelled);
}

} // namespace AnimText
