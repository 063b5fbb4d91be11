#include "animtext/shared/playoptions.h"

#include "player/plugin.h"
#include "validate/validate.h"

#include <limits>

namespace AnimText {

QVector<Option> WithPlayOptions(QVector<Option> own)
{
    return own + QVector<Option>{
                     Option::File(
                         "plugin", "FILE",
                         "Plugin library. Default: $ANIMATIONTEXT_PLUGIN, or the installed one."),
                     Option::Number("seed", 0, std::numeric_limits<int>::max(),
                                    "Seed for the tremble effect.")
                         .Or("1"),
                     Option::Flag("allow-missing-files",
                                  "Play even if files that the scene names are missing.")};
}

QVector<Option> WithShowOptions(QVector<Option> own)
{
    return WithPlayOptions(own) +
           QVector<Option>{
               Option::Flag("force", "Play even if errors in the scene leave nothing to show.")};
}

namespace {

/**
 * Reads a scene, and prints those of its errors that @p isTold. Throws Failure if it cannot be read
 * or has errors of the @p kinds that leave nothing to show, unless --force is set.
 */
Scene Open(const CommandLine& line, const QString& path, const QList<Mistake>& kinds,
           bool (*isTold)(const Finding& finding))
{
    const bool mayMiss = line.IsSet("allow-missing-files");
    Scene scene;
    QString error;
    FailUnless(ReadScene(path, &scene, &error,
                         mayMiss ? MissingFiles::AreAccepted : MissingFiles::AreErrors),
               error, BadInput);
    bool isPlayed = true;
    for (const Finding& finding : ValidateScene(scene)) {
        if (finding.GetRule().severity != Severity::Error || !isTold(finding))
            continue;
        Warn(QStringLiteral("%1: %2").arg(path, finding.Line()));
        isPlayed = isPlayed && !kinds.contains(finding.mistake);
    }
    FailUnless(
        isPlayed || line.IsSet("force") || mayMiss,
        QStringLiteral("%1: not played because of these errors; use --force to play it anyway")
            .arg(path),
        BadInput);
    return scene;
}

} // namespace

Scene OpenReadableScene(const CommandLine& line, const QString& path)
{
    static const QList<Mistake> unreadable{Mistake::FileMissing, Mistake::DataMalformed};
    return Open(line, path, unreadable, [](const Finding& finding) {
        return unreadable.contains(finding.mistake) &&
               finding.place.endsWith(QLatin1String(".files.PathData"));
    });
}

Scene OpenPlayableScene(const CommandLine& line, const QString& path)
{
    // With these the display stays dark or does not show the scene.
    static const QList<Mistake> nothingToShow{Mistake::NodeType,      Mistake::AreaEmpty,
                                              Mistake::CanvasLarge,   Mistake::ModeUnknown,
                                              Mistake::EffectUnknown, Mistake::DirectionUnknown,
                                              Mistake::FileMissing,   Mistake::DataMalformed};
    return Open(line, path, nothingToShow, [](const Finding&) { return true; });
}

Playing::Playing(const CommandLine& line)
    : seed(uint(line.Number("seed")))
{
    QString error;
    plugin = LoadPlugin(PluginPath(line.Value("plugin")), &error);
    FailUnless(plugin, error);
}

std::unique_ptr<Player> Playing::Load(const Scene& scene) const
{
    auto player = std::make_unique<Player>(VirtualDispatcher::Current(), plugin);
    QString error;
    FailUnless(player->Load(scene, &error), error, BadInput);
    return player;
}

} // namespace AnimText
