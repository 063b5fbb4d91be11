#include "animtext/shared/batch.h"

#include "cli/interruption.h"
#include "files/wholefile.h"
#include "player/plugin.h"
#include "scene/scene.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace AnimText::animtext::shared {

namespace {

struct Job
{
    QString scene;
    QString film;
};

/** Whether the film is younger than everything that it is made from. */
bool IsDone(const Job& job, const QString& plugin)
{
    scene::Scene scene;
    QString error;
    const QFileInfo film(job.film);
    if (!film.exists() || !scene::ReadScene(job.scene, &scene, &error))
        return false;
    QStringList inputs{job.scene, plugin, QCoreApplication::applicationFilePath()};
    for (const scene::SceneNode* node : scene.Nodes()) {
        for (const QString& file : node->files)
            inputs.append(scene.FullName(file));
    }
    return std::all_of(inputs.begin(), inputs.end(), [&](const QString& input) {
        return QFileInfo(input).lastModified() < film.lastModified();
    });
}

/** Throws Misuse when two films would have one name. */
QList<Job> PlanJobs(const cli::CommandLine& line, const QString& ending)
{
    const QDir folder(line.Value("output"));
    const QString plugin = player::PluginPath(line.Value("plugin"));
    QList<Job> jobs;
    QMap<QString, QString> sceneOf;
    for (const QString& scene : line.Arguments()) {
        const QString name = QFileInfo(scene).completeBaseName() + ending;
        if (sceneOf.contains(name))
            throw cli::Misuse{
                QStringLiteral("%1 and %2 would both become %3; render them into two folders")
                    .arg(sceneOf.value(name), scene, name)};
        sceneOf.insert(name, scene);
        const Job job{scene, folder.filePath(name)};
        if (!line.IsSet("resume") || !IsDone(job, plugin))
            jobs.append(job);
    }
    return jobs;
}

/** Interrupts a renderer that still runs, and waits until what it has not finished is gone. */
struct Interrupt
{
    void operator()(QProcess* renderer) const
    {
        renderer->terminate();
        renderer->waitForFinished(-1);
        delete renderer;
    }
};

using Renderer = std::unique_ptr<QProcess, Interrupt>;

/** Starts without the terminal, so that one Ctrl+C reaches it once: from here. */
Renderer Start(const Job& job, const QStringList& options)
{
    Renderer renderer(new QProcess);
    renderer->setObjectName(job.scene);
    renderer->start("setsid",
                    QStringList{QCoreApplication::applicationFilePath(), "render", "-o", job.film} +
                        options + QStringList{"--", job.scene});
    return renderer;
}

/** Prints what it printed. @return whether the film is there */
bool Succeeded(QProcess* renderer)
{
    const QByteArray said = renderer->readAllStandardError();
    std::fwrite(said.constData(), 1, size_t(said.size()), stderr);
    cli::Print(renderer->readAllStandardOutput());
    if (renderer->exitStatus() == QProcess::NormalExit &&
        renderer->error() != QProcess::FailedToStart)
        return renderer->exitCode() == files::Done;
    cli::Warn(QStringLiteral("%1: %2").arg(renderer->objectName(), renderer->errorString()));
    return false;
}

/** Runs the jobs, @p most of them at once. @return how many failed */
int RunJobs(QList<Job> jobs, int most, const QStringList& options, cli::Progress::Form form)
{
    constexpr int glance = 20; // milliseconds
    cli::Progress progress(form);
    const int all = jobs.size();
    int failed = 0;
    std::vector<Renderer> running;
    while (!running.empty() || !jobs.isEmpty()) {
        while (!jobs.isEmpty() && int(running.size()) < most)
            running.push_back(Start(jobs.takeFirst(), options));
        cli::StopIfInterrupted();
        for (size_t i = running.size(); i-- > 0;) {
            if (!running[i]->waitForFinished(glance) && running[i]->state() != QProcess::NotRunning)
                continue;
            progress.Wipe();
            failed += Succeeded(running[i].get()) ? 0 : 1;
            running.erase(running.begin() + ptrdiff_t(i));
        }
        progress.Show("rendering scene", all - jobs.size() - int(running.size()), all);
    }
    return failed;
}

} // namespace

void RenderAll(const cli::CommandLine& line, const QString& ending, const QStringList& options,
               cli::Progress::Form form)
{
    const QList<Job> jobs = PlanJobs(line, ending);
    files::MakeFolder(line.Value("output"));
    const int most = line.IsSet("jobs") ? line.Get<int>("jobs") : QThread::idealThreadCount();
    const int failed = RunJobs(jobs, most, options, form);
    files::FailUnless(failed == 0, QStringLiteral("%1 of %2 scenes were not rendered")
                                       .arg(failed)
                                       .arg(line.Arguments().size()));
}

} // namespace AnimText::animtext::shared
