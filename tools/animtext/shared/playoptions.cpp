#include "animtext/shared/playoptions.h"

#include "player/plugin.h"
#include "validate/validate.h"

#include <limits>

namespace AnimText::animtext::shared {

QVector<cli::Option> WithPlayOptions(QVector<cli::Option> own)
{
    return own + QVector<cli::Option>{
                     cli::Option::File(
                         "plugin", "FILE",
                         "Plugin library. Default: $ANIMATIONTEXT_PLUGIN, or the installed one."),
                     cli::Option::Number("seed", 0, std::numeric_limits<int>::max(),
                                         "Seed for the tremble effect.")
                         .Or("1"),
                     cli::Option::Flag("allow-missing-files",
                                       "Play even if files that the scene names are missing.")};
}

QVector<cli::Option> WithShowOptions(QVector<cli::Option> own)
{
    return WithPlayOptions(own) +
           QVector<cli::Option>{cli::Option::Flag(
               "force", "Play even if errors in the scene leave nothing to show.")};
}

namespace {

/** Prints the scene's errors, or only those because of which its outlines cannot be read. */
scene::Scene Open(const cli::CommandLine& line, const QString& path, bool needsOutlinesOnly)
{
    // With these the display stays dark or does not show the scene.
    static const QList<validate::Mistake> nothingToShow{
        validate::Mistake::NodeType,      validate::Mistake::AreaEmpty,
        validate::Mistake::CanvasLarge,   validate::Mistake::ModeUnknown,
        validate::Mistake::EffectUnknown, validate::Mistake::DirectionUnknown,
        validate::Mistake::FileMissing,   validate::Mistake::DataMalformed};
    const bool mayMiss = line.IsSet("allow-missing-files");
    scene::Scene scene;
    QString error;
    files::FailUnless(scene::ReadScene(path, &scene, &error,
                                       mayMiss ? scene::MissingFiles::AreAccepted
                                               : scene::MissingFiles::AreErrors),
                      error, files::BadInput);
    bool isPlayed = true;
    for (const validate::Finding& finding : validate::ValidateScene(scene)) {
        const bool lacksOutlines = finding.place.endsWith(".files.PathData") &&
                                   (finding.mistake == validate::Mistake::FileMissing ||
                                    finding.mistake == validate::Mistake::DataMalformed);
        if (finding.GetRule().severity != validate::Severity::Error ||
            (needsOutlinesOnly && !lacksOutlines))
            continue;
        cli::Warn(QStringLiteral("%1: %2").arg(path, finding.Line()));
        isPlayed = isPlayed && !nothingToShow.contains(finding.mistake);
    }
    files::FailUnless(isPlayed || line.IsSet("force") || mayMiss,
                      path + ": not played because of these errors; use --force to play it anyway",
                      files::BadInput);
    return scene;
}

} // namespace

scene::Scene OpenReadableScene(const cli::CommandLine& line, const QString& path)
{
    return Open(line, path, true);
}

scene::Scene OpenPlayableScene(const cli::CommandLine& line, const QString& path)
{
    return Open(line, path, false);
}

Lw::INodePlugin* PluginOf(const cli::CommandLine& line)
{
    return player::LoadPlugin(player::PluginPath(line.Value("plugin")));
}

std::unique_ptr<player::Player> PlayerOf(const cli::CommandLine& line, const scene::Scene& scene)
{
    auto player =
        std::make_unique<player::Player>(player::VirtualDispatcher::Current(), PluginOf(line));
    player->Load(scene);
    return player;
}

} // namespace AnimText::animtext::shared
