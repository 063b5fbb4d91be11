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

/**
 * Reads a scene, and prints those of its errors that @p isTold. Throws Failure if it cannot be read
 * or has errors of the @p kinds that leave nothing to show, unless --force is set.
 */
scene::Scene Open(const cli::CommandLine& line, const QString& path,
                  const QList<validate::Mistake>& kinds,
                  bool (*isTold)(const validate::Finding& finding))
{
    const bool mayMiss = line.IsSet("allow-missing-files");
    scene::Scene scene;
    QString error;
    files::FailUnless(scene::ReadScene(path, &scene, &error,
                                       mayMiss ? scene::MissingFiles::AreAccepted
                                               : scene::MissingFiles::AreErrors),
                      error, files::BadInput);
    bool isPlayed = true;
    for (const validate::Finding& finding : validate::ValidateScene(scene)) {
        if (finding.GetRule().severity != validate::Severity::Error || !isTold(finding))
            continue;
        cli::Warn(QStringLiteral("%1: %2").arg(path, finding.Line()));
        isPlayed = isPlayed && !kinds.contains(finding.mistake);
    }
    files::FailUnless(
        isPlayed || line.IsSet("force") || mayMiss,
        QStringLiteral("%1: not played because of these errors; use --force to play it anyway")
            .arg(path),
        files::BadInput);
    return scene;
}

} // namespace

scene::Scene OpenReadableScene(const cli::CommandLine& line, const QString& path)
{
    static const QList<validate::Mistake> unreadable{validate::Mistake::FileMissing,
                                                     validate::Mistake::DataMalformed};
    return Open(line, path, unreadable, [](const validate::Finding& finding) {
        return unreadable.contains(finding.mistake) &&
               finding.place.endsWith(QLatin1String(".files.PathData"));
    });
}

scene::Scene OpenPlayableScene(const cli::CommandLine& line, const QString& path)
{
    // With these the display stays dark or does not show the scene.
    static const QList<validate::Mistake> nothingToShow{
        validate::Mistake::NodeType,      validate::Mistake::AreaEmpty,
        validate::Mistake::CanvasLarge,   validate::Mistake::ModeUnknown,
        validate::Mistake::EffectUnknown, validate::Mistake::DirectionUnknown,
        validate::Mistake::FileMissing,   validate::Mistake::DataMalformed};
    return Open(line, path, nothingToShow, [](const validate::Finding&) { return true; });
}

Playing::Playing(const cli::CommandLine& line)
    : seed(uint(line.Get<int>("seed")))
{
    QString error;
    plugin = player::LoadPlugin(player::PluginPath(line.Value("plugin")), &error);
    files::FailUnless(plugin, error);
}

std::unique_ptr<player::Player> Playing::Load(const scene::Scene& scene) const
{
    auto player = std::make_unique<player::Player>(player::VirtualDispatcher::Current(), plugin);
    QString error;
    files::FailUnless(player->Load(scene, &error), error, files::BadInput);
    return player;
}

} // namespace AnimText::animtext::shared
