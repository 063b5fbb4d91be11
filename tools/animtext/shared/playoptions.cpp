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

/** Reads a scene; throws Failure if it cannot be read. */
Scene OpenScene(const CommandLine& line, const QString& path)
{
    const MissingFiles missing =
        line.IsSet("allow-missing-files") ? MissingFiles::AreAccepted : MissingFiles::AreErrors;
    Scene scene;
    QString error;
    FailUnless(ReadScene(path, &scene, &error, missing), error, BadInput);
    return scene;
}

/** Prints @p findings about @p path; throws Failure for those of @p kinds unless --force is set. */
void Judge(const CommandLine& line, const QString& path, const QList<Finding>& findings,
           const QList<Mistake>& kinds)
{
    bool isPlayed = true;
    for (const Finding& finding : findings) {
        Warn(QStringLiteral("%1: %2").arg(path, finding.Line()));
        isPlayed = isPlayed && !kinds.contains(finding.mistake);
    }
    FailUnless(
        isPlayed || line.IsSet("force") || line.IsSet("allow-missing-files"),
        QStringLiteral("%1: not played because of these errors; use --force to play it anyway")
            .arg(path),
        BadInput);
}

} // namespace

Scene OpenReadableScene(const CommandLine& line, const QString& path)
{
    static const QList<Mistake> unreadable{Mistake::FileMissing, Mistake::DataMalformed};
    const Scene scene = OpenScene(line, path);
    QList<Finding> findings;
    for (const Finding& finding : ErrorsOf(scene)) {
        if (unreadable.contains(finding.mistake) &&
            finding.place.endsWith(QLatin1String(".files.PathData")))
            findings.append(finding);
    }
    Judge(line, path, findings, unreadable);
    return scene;
}

Scene OpenPlayableScene(const CommandLine& line, const QString& path)
{
    // With these the display stays dark or does not show the scene.
    static const QList<Mistake> nothingToShow{Mistake::NodeType,      Mistake::AreaEmpty,
                                              Mistake::CanvasLarge,   Mistake::ModeUnknown,
                                              Mistake::EffectUnknown, Mistake::DirectionUnknown,
                                              Mistake::FileMissing,   Mistake::DataMalformed};
    const Scene scene = OpenScene(line, path);
    Judge(line, path, ErrorsOf(scene), nothingToShow);
    return scene;
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
