#include "animtext/shared/comparefolder.h"

#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/progress.h"
#include "compare/expectation.h"
#include "files/wholefile.h"

#include <QDir>
#include <QFileInfo>

namespace AnimText::animtext::shared {

namespace {

compare::Ticks Play(const Playing& playing, const scene::Scene& scene, int last)
{
    const std::unique_ptr<player::Player> player = playing.Load(scene);
    player->Start(playing.Seed());
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

} // namespace

QVector<cli::Option> FolderOptions()
{
    return {
        cli::Option::Flag("record",
                          "Save what the scenes of FOLDER show now as FOLDER/expected.txt."),
        cli::Option::File("expected", "FILE", "File to use in place of FOLDER/expected.txt."),
        cli::Option::Number("ticks", 0, 1000000000, "Last tick that --record saves.").Or("100")};
}

int CompareFolder(const cli::CommandLine& line, const QString& folder)
{
    const QDir dir(folder);
    const QDir scenes(dir.exists("scenes") ? dir.filePath("scenes") : folder);
    const QString file =
        line.IsSet("expected") ? line.Value("expected") : dir.filePath("expected.txt");
    const bool records = line.IsSet("record");
    compare::Expectation expected;
    QString error;
    if (records)
        for (const QFileInfo& scene : scenes.entryInfoList({"*.json"}, QDir::Files))
            expected.insert(scene.completeBaseName(), {});
    else
        files::FailUnless(compare::ReadExpectation(file, &expected, &error), error,
                          files::BadInput);
    files::FailUnless(!expected.isEmpty(),
                      (records ? scenes.path() : file) + ": expected scenes, found none",
                      files::BadInput);

    cli::WatchForInterruption();
    const Playing playing(line);
    cli::Progress progress("playing, scenes", expected.size());
    compare::Tally tally;
    int played = 0, ticks = 0;
    for (auto scene = expected.begin(); scene != expected.end(); ++scene) {
        const scene::Scene opened = OpenReadableScene(line, scenes.filePath(scene.key() + ".json"));
        const compare::Ticks shown =
            Play(playing, opened, records ? line.Get<int>("ticks") : scene->last().tick);
        if (records)
            *scene = shown;
        else
            tally.Add(scene.key(), FirstMotion(opened), *scene, shown);
        ticks += shown.size();
        progress.Show(++played);
    }
    if (!records) {
        cli::Print(tally.Table());
        return tally.IsEqual() ? files::Done : files::FailedRun;
    }
    files::FailUnless(files::WriteWhole(file, compare::ExpectationText(expected), &error), error);
    cli::Print(
        QStringLiteral("%1: %2 scenes, %3 ticks\n").arg(file).arg(played).arg(ticks).toUtf8());
    return files::Done;
}

} // namespace AnimText::animtext::shared
