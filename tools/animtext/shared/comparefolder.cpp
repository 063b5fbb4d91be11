#include "animtext/shared/comparefolder.h"

#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/progress.h"
#include "compare/expectation.h"
#include "files/wholefile.h"

#include <QDir>
#include <QFileInfo>

namespace AnimText {

namespace {

Ticks Play(const Playing& playing, const Scene& scene, int last)
{
    const std::unique_ptr<Player> player = playing.Load(scene);
    player->Start(playing.Seed());
    Ticks ticks;
    for (;; player->Advance()) {
        StopIfInterrupted();
        for (int node = 0; node < player->NodeCount(); ++node)
            ticks.append(player->Look(node));
        if (player->Tick() >= last)
            return ticks;
    }
}

NodeMotion FirstMotion(const Scene& scene)
{
    const QList<const SceneNode*> nodes = scene.Nodes();
    return nodes.isEmpty() ? NodeMotion{Mode::Still, 0} : MotionOf(*nodes.first());
}

} // namespace

QVector<Option> FolderOptions()
{
    return {
        Option::Flag("record", "Save what the scenes of FOLDER show now as FOLDER/expected.txt."),
        Option::File("expected", "FILE", "File to use in place of FOLDER/expected.txt."),
        Option::Number("ticks", 0, 1000000000, "Last tick that --record saves.").Or("100")};
}

int CompareFolder(const CommandLine& line, const QString& folder)
{
    const QDir dir(folder);
    const QDir scenes(dir.exists("scenes") ? dir.filePath("scenes") : folder);
    const QString file =
        line.IsSet("expected") ? line.Value("expected") : dir.filePath("expected.txt");
    const bool records = line.IsSet("record");
    Expectation expected;
    QString error;
    if (records)
        for (const QFileInfo& scene : scenes.entryInfoList({"*.json"}, QDir::Files))
            expected.insert(scene.completeBaseName(), {});
    else
        FailUnless(ReadExpectation(file, &expected, &error), error, BadInput);
    FailUnless(!expected.isEmpty(),
               (records ? scenes.path() : file) + ": expected scenes, found none", BadInput);

    WatchForInterruption();
    const Playing playing(line);
    Progress progress("playing, scenes", expected.size());
    Tally tally;
    int played = 0, ticks = 0;
    for (auto scene = expected.begin(); scene != expected.end(); ++scene) {
        const Scene opened =
            OpenReadableScene(line, scenes.filePath(scene.key() + QStringLiteral(".json")));
        const Ticks shown =
            Play(playing, opened, records ? line.Number("ticks") : scene->last().tick);
        if (records)
            *scene = shown;
        else
            tally.Add(scene.key(), FirstMotion(opened), *scene, shown);
        ticks += shown.size();
        progress.Show(++played);
    }
    if (!records) {
        Print(tally.Table());
        return tally.IsEqual() ? Done : FailedRun;
    }
    FailUnless(WriteWhole(file, ExpectationText(expected), &error), error);
    Print(QStringLiteral("%1: %2 scenes, %3 ticks\n").arg(file).arg(played).arg(ticks).toUtf8());
    return Done;
}

} // namespace AnimText
