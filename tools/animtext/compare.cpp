#include "animtext/commands.h"
#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/progress.h"
#include "compare/deskplay.h"
#include "compare/difference.h"
#include "compare/expectation.h"
#include "files/wholefile.h"
#include "film/png.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace AnimText::animtext {

namespace {

/** Whether the file is a recording rather than a scene. */
bool IsRecording(const QString& path)
{
    QFile file(path);
    files::OpenToRead(&file);
    const QByteArray start = file.read(8);
    return start.startsWith("{\"call\"") || start.startsWith("{\"tick\"");
}

/** Where two recordings differ, in words. */
QString Tell(const compare::Difference& difference, const compare::Recording& a,
             const compare::Recording& b)
{
    const auto place = [&](const compare::Recording& recording) {
        const auto& calls = recording.sessions.value(difference.session);
        const int line = difference.call < calls.size() ? calls.at(difference.call).line : 0;
        return line > 0 ? QStringLiteral(", line %1 of %2").arg(line).arg(recording.name)
                        : QString();
    };
    const QString where = difference.session == 0
                              ? "before any session"
                              : QStringLiteral("session %1, call %2, at tick %3 (%4 s)")
                                    .arg(difference.session)
                                    .arg(difference.call + 1)
                                    .arg(difference.ms / player::tickLength)
                                    .arg(double(difference.ms) / 1000, 0, 'f', 2);
    return where + place(a) + place(b) + ": " + difference.words;
}

void Keep(const QImage& picture, const QString& path)
{
    files::FailUnless(!QFile::exists(path) || film::IsOurPng(path),
                      path + ": is not a picture of animtext and was kept");
    film::WritePng(path, film::PngOf(picture, true));
    cli::Print(path.toUtf8() + '\n');
}

/** Prints where two recordings differ; the command ends then, after @p save. */
void Report(const compare::Difference& difference, const compare::Recording& a,
            const compare::Recording& b, const std::function<void()>& save = {})
{
    const QString names = QStringLiteral("%1 and %2 ").arg(a.name, b.name);
    if (difference.words.isEmpty())
        return cli::Print((names + QStringLiteral("agree: %1 calls, %2 pictures\n")
                                       .arg(a.hasCalls ? a.All().size() : 0)
                                       .arg(std::min(a.Pictures(), b.Pictures())))
                              .toUtf8());
    cli::Print((names + "differ: " + Tell(difference, a, b) + '\n').toUtf8());
    if (save)
        save();
    cli::EndWith(files::FailedRun);
}

/**
 * Plays a scene on the desktop to compare it with a recording. Saves both pictures that differ, and
 * their difference, if the recording has the pixels.
 */
void CompareWithScene(const cli::CommandLine& line, const QString& log, const QString& scenePath,
                      qint64 tolerance)
{
    const scene::Scene scene = shared::OpenPlayableScene(line, scenePath);
    const std::unique_ptr<player::Player> player = shared::PlayerOf(line, scene);
    compare::Recording recorded = compare::ReadRecording(log);
    files::FailUnless(recorded.hasCalls,
                      log + " has pictures but no calls; record it with animtext trace --calls",
                      files::BadInput);
    cli::WatchForInterruption(); // not before: opening a pipe may wait without end
    QMap<int, QImage> differing;
    const compare::Recording played =
        compare::PlayOnDesk(player.get(), shared::SeedOf(line), &recorded, &differing);
    const compare::Difference difference = compare::FirstDifference(recorded, played, tolerance);
    Report(difference, recorded, played, [&] {
        const int number =
            recorded.sessions.value(difference.session).value(difference.call).pixels;
        if (!difference.isPicture || number < 0)
            return;
        const QImage desk = differing.value(difference.session);
        const QImage device = compare::ReadPam(QStringLiteral("%1-%2.pam").arg(log).arg(number));
        const QDir folder(line.IsSet("output") ? line.Value("output") : QFileInfo(log).path());
        files::MakeFolder(folder.path());
        const QString base = folder.filePath(QFileInfo(log).completeBaseName());
        Keep(device, base + "-device.png");
        Keep(desk, base + "-desk.png");
        Keep(compare::DifferenceOf(device, desk), base + "-difference.png");
    });
}

compare::Ticks Play(const cli::CommandLine& line, const scene::Scene& scene, int last)
{
    const std::unique_ptr<player::Player> player = shared::PlayerOf(line, scene);
    player->Start(shared::SeedOf(line));
    compare::Ticks ticks;
    for (;; player->Advance()) {
        cli::StopIfInterrupted();
        for (int node = 0; node < player->NodeCount(); ++node)
            ticks.append(player->Look(node));
        if (player->Tick() >= last)
            return ticks;
    }
}

scene::NodeMotion FirstMotion(const scene::Scene& scene)
{
    const QList<const scene::SceneNode*> nodes = scene.Nodes();
    return nodes.isEmpty() ? scene::NodeMotion{scene::Mode::Still, 0}
                           : scene::MotionOf(*nodes.first());
}

QVector<Option> FolderOptions()
{
    return {
        Option::Flag("record", "Save what the scenes of FOLDER show now as FOLDER/expected.txt."),
        Option::File("expected", "FILE", "File to use in place of FOLDER/expected.txt."),
        Option::Number("ticks", 0, 1000000000, "Last tick that --record saves.").Or("100")};
}

/** Plays the scenes of @p folder and compares, or records, what they show. */
void CompareFolder(const cli::CommandLine& line, const QString& folder)
{
    const QDir dir(folder);
    const QDir scenes(dir.exists("scenes") ? dir.filePath("scenes") : folder);
    const QString file =
        line.IsSet("expected") ? line.Value("expected") : dir.filePath("expected.txt");
    const bool records = line.IsSet("record");
    compare::Expectation expected;
    if (records)
        for (const QFileInfo& scene : scenes.entryInfoList({"*.json"}, QDir::Files))
            expected.insert(scene.completeBaseName(), {});
    else
        expected = compare::ReadExpectation(file);
    files::FailUnless(!expected.isEmpty(),
                      (records ? scenes.path() : file) + ": expected scenes, found none",
                      files::BadInput);

    cli::WatchForInterruption();
    cli::Progress progress;
    compare::Tally tally;
    int played = 0, ticks = 0;
    for (auto scene = expected.begin(); scene != expected.end(); ++scene) {
        const scene::Scene opened =
            shared::OpenReadableScene(line, scenes.filePath(scene.key() + ".json"));
        const compare::Ticks shown =
            Play(line, opened, records ? line.Get<int>("ticks") : scene->last().tick);
        if (records)
            *scene = shown;
        else
            tally.Add(scene.key(), FirstMotion(opened), *scene, shown);
        ticks += shown.size();
        progress.Show("playing, scenes", ++played, expected.size());
    }
    if (!records) {
        cli::Print(tally.Table());
        if (!tally.IsEqual())
            cli::EndWith(files::FailedRun);
        return;
    }
    files::WriteWhole(file, compare::ExpectationText(expected));
    cli::Print(
        QStringLiteral("%1: %2 scenes, %3 ticks\n").arg(file).arg(played).arg(ticks).toUtf8());
}

void Compare(const cli::CommandLine& line)
{
    const qint64 tolerance = line.IsSet("no-times") ? -1 : qint64(line.Get<double>("tolerance"));
    const QString first = line.Arguments().at(0);
    if (line.Arguments().size() == 1) {
        if (!QFileInfo(first).isDir())
            throw cli::Misuse{"expected a folder, or what to compare " + first + " with"};
        return CompareFolder(line, first);
    }
    for (const Option& option : FolderOptions())
        if (line.IsSet(option.name))
            throw cli::Misuse{QStringLiteral("--%1 is for a folder of scenes, the only word then")
                                  .arg(option.name)};
    const QString second = line.Arguments().at(1);
    if (!IsRecording(second))
        return CompareWithScene(line, first, second, tolerance);
    compare::Recording a = compare::ReadRecording(first);
    compare::Recording b = compare::ReadRecording(second);
    compare::DropStops(&a, compare::Stops::AtEnd);
    compare::DropStops(&b, compare::Stops::AtEnd);
    files::FailUnless(a.hasCalls == b.hasCalls,
                      "only one recording has calls; record both with animtext trace --calls",
                      files::BadInput);
    return Report(compare::FirstDifference(a, b, tolerance), a, b);
}

} // namespace

cli::Command CompareCommand()
{
    return {
        "compare",
        "find the first difference between a recording and a scene",
        {"RECORDING SCENE.json|RECORDING or FOLDER", 1, 2},
        "Finds the first difference between a recording, made with librecord or animtext "
        "trace, and what the plugin does with the scene on the desktop, or between two "
        "recordings. Compares calls, their order, arguments, pictures and times. The exit "
        "status is 1 if they differ. If the recording has the pixels of a picture that "
        "differs, both pictures and their difference are saved. With a folder, plays the scenes "
        "FOLDER/scenes/*.json or FOLDER/*.json and counts, motion by motion, how many pictures "
        "are as in FOLDER/expected.txt. A line of that file is a tick: scene, tick, whether a "
        "new picture was shown (0 or 1), its width and height, the first 16 digits of its SHA-1 "
        "(-: not compared), the renderer's state and, if it is known, the start of the "
        "background's SHA-1.",
        shared::WithShowOptions(
            FolderOptions() +
            QVector<Option>{
                Option::Time("tolerance", 0, 1e6,
                             "Allowed difference of times, counted from a session's first call.")
                    .Or("66ms"),
                Option::Flag("no-times", "Ignore times."),
                Option::File("output", "DIR",
                             "Folder for pictures. Default: beside the first recording.")
                    .Letter('o')}),
        Compare,
        {"animtext compare device.log sign.json --no-times -o differences",
         "animtext compare --record ."}};
}

} // namespace AnimText::animtext
