#include "animtext/opening.h"

#include "player/plugin.h"

#include <limits>

namespace AnimText {

void AddPlayOptions(CommandLine* line)
{
    line->AddOption({QStringLiteral("plugin")},
                    QStringLiteral("The plugin library, in place of the one beside this program."),
                    QStringLiteral("FILE"));
    line->AddOption({QStringLiteral("seed")},
                    QStringLiteral("What the random numbers of the trembling start from."),
                    QStringLiteral("N"), QString::number(standardSeed));
    line->AddOption({QStringLiteral("allow-missing-files")},
                    QStringLiteral("Plays on although a file that the scene names is missing."));
}

Status OpenScene(const CommandLine& line, const QString& path, Scene* scene)
{
    const MissingFiles missing = line.IsSet(QStringLiteral("allow-missing-files"))
                                     ? MissingFiles::AreAccepted
                                     : MissingFiles::AreErrors;
    QString error;
    if (!ReadScene(path, scene, &error, missing))
        return Status(Fail(BadInput, error));
    return Done;
}

Status OpenPlugin(CommandLine* line, Playing* playing)
{
    int seed = 0;
    if (!line->Number(QStringLiteral("seed"), 0, std::numeric_limits<int>::max(), &seed))
        return BadInput;
    playing->seed = uint(seed);
    QString error;
    playing->plugin = LoadPlugin(PluginPath(line->Value(QStringLiteral("plugin"))), &error);
    if (!playing->plugin)
        return Status(Fail(FailedRun, error));
    playing->dispatcher = VirtualDispatcher::Current();
    return Done;
}

Status OpenSceneAndPlugin(CommandLine* line, Scene* scene, Playing* playing)
{
    const Status status = OpenScene(*line, line->Arguments().first(), scene);
    return status == Done ? OpenPlugin(line, playing) : status;
}

std::unique_ptr<Player> Playing::Load(const Scene& scene) const
{
    auto player = std::make_unique<Player>(dispatcher, plugin);
    QString error;
    if (player->Load(scene, &error))
        return player;
    Fail(BadInput, error);
    return nullptr;
}

} // namespace AnimText
