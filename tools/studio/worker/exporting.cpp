#include "studio/worker/exporting.h"

#include "studio/worker/workerlink.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <cstdio>

namespace AnimText::studio::worker {
namespace {

/** The program beside the studio, else the one in PATH. */
QString RenderProgram()
{
    const QString name = "animtext";
    const QString beside = QFileInfo(WorkerLink::Program()).dir().filePath(name);
    return QFileInfo(beside).isExecutable() ? beside : name;
}

QStringList RenderOptions(const ExportSettings& settings)
{
    QStringList options{"-o", settings.output};
    if (settings.scale != 1)
        options += {"--scale", QString::number(settings.scale)};
    if (settings.schedule)
        options += "--schedule";
    if (settings.last >= 0) {
        options += {"--frames", QStringLiteral("%1-%2").arg(settings.first).arg(settings.last)};
        // The window shows more than the film has that ends with the last text.
        if (!settings.schedule)
            options += {"--seconds", QStringLiteral("%1t").arg(settings.last + 1)};
    }
    if (settings.pitch > 0)
        options += QStringLiteral("--leds=%1").arg(settings.pitch);
    if (settings.transparent)
        options += "--transparent";
    if (settings.lossless)
        options += "--lossless";
    return options;
}

QString Quoted(QString word)
{
    static const QRegularExpression plain("^[A-Za-z0-9_./=:,+@%-]+$");
    if (plain.match(word).hasMatch())
        return word;
    return QLatin1Char('\'') + word.replace(QLatin1Char('\''), "'\\''") + QLatin1Char('\'');
}

} // namespace

QString RenderCommandLine(const QString& scene, const ExportSettings& settings)
{
    QStringList words{"animtext", "render", Quoted(scene)};
    for (const QString& option : RenderOptions(settings))
        words.append(Quoted(option));
    return words.join(QLatin1Char(' '));
}

Export::Export()
{
    connect(&process, &QProcess::readyReadStandardOutput, this, &Export::ReadProgress);
    connect(&process, &QProcess::readyReadStandardError, this, &Export::ReadErrors);
    connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &Export::Finish);
    connect(&process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            emit Ended(tr("The program animtext, which makes films, was not found. Install it "
                          "beside the studio."),
                       false);
    });
}

Export::~Export()
{
    process.disconnect(this);
    if (!IsRunning())
        return;
    Cancel();
    process.waitForFinished();
}

void Export::Start(const QString& plugin, const QString& path, const ExportSettings& settings)
{
    scene = path;
    complaints.clear();
    canceled = false;
    QStringList words{"render", scene, "--progress", "--force", "--allow-missing-files"};
    if (!plugin.isEmpty())
        words += {"--plugin", plugin};
    process.start(RenderProgram(), words + RenderOptions(settings));
}

void Export::Cancel()
{
    if (canceled)
        return; // a second signal would keep it from tidying up
    canceled = true;
    process.waitForStarted(); // until then, the signal would reach a copy of the studio
    process.terminate();
}

void Export::ReadProgress()
{
    static const QRegularExpression step("^(\\d+) (\\d+) (.+)$");
    while (process.canReadLine()) {
        const QString line = QString::fromUtf8(process.readLine()).trimmed();
        const QRegularExpressionMatch match = step.match(line);
        if (match.hasMatch())
            emit Progress(match.captured(1).toLongLong(), match.captured(2).toLongLong(),
                          match.captured(3));
    }
}

/** What the program says is also for the terminal that the studio was started from. */
void Export::ReadErrors()
{
    const QByteArray said = process.readAllStandardError();
    std::fwrite(said.constData(), 1, size_t(said.size()), stderr);
    complaints += said;
}

/** Why the program failed, in its own words; warnings may come before. */
QString Export::Complaint() const
{
    const QByteArray name("animtext: ");
    const QList<QByteArray> lines = complaints.trimmed().split('\n');
    if (process.exitStatus() != QProcess::NormalExit || !lines.last().startsWith(name))
        return tr("The export ended unexpectedly.");
    QString complaint = QString::fromLocal8Bit(lines.last().mid(name.size()));
    complaint.remove(" (see animtext help render)");
    return complaint.remove(scene + ": "); // nobody knows that temporary file
}

void Export::Finish()
{
    ReadProgress();
    ReadErrors();
    const bool failed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    emit Ended(failed ? Complaint() : QString(), failed && canceled);
}

} // namespace AnimText::studio::worker
