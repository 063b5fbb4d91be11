#include "animtext/shared/playoptions.h"

#include "player/plugin.h"
#include "validate/validate.h"

#include <limits>

namespace AnimText {

QVector<Option> WithPlayOptions(QVector<Option> own)
{
    return own + QVector<Option>{
                     Option::File("plugin", "FILE",
                                  "The plugin library, in place of the one beside this program."),
                     Option::Number("seed", 0, std::numeric_limits<int>::max(),
                                    "What the random numbers of the trembling start from.")
                         .Or("1"),
                     Option::Flag("allow-missing-files",
                                  "Plays on although a file that the scene names is missing.")};
}

QVector<Option> WithShowOptions(QVector<Option> own)
{
    return WithPlayOptions(own) +
           QVector<Option>{Option::Flag(
               "force", "Plays a scene although it has errors that leave nothing to show.")};
}

namespace {

/** Reads a scene as the options say; throws Failure when it cannot be read. */
Scene OpenScene(const CommandLine& line, const QString& path)
{
    const MissingFiles missing =
        line.IsSet("allow-missing-files") ? MissingFiles::AreAccepted : MissingFiles::AreErrors;
    Scene scene;
    QString error;
    if (!ReadScene(path, &scene, &error, missing))
        throw Failure{BadInput, error};
    return scene;
}

/** Reports @p findings about @p path; throws Failure for those of @p kinds, unless told to go on.
 */
void Judge(const CommandLine& line, const QString& path, const QList<Finding>& findings,
           const QList<Mistake>& kinds)
{
    bool isPlayed = true;
    for (const Finding& finding : findings) {
        Warn(QStringLiteral("%1: %2").arg(path, finding.Line()));
        isPlayed = isPlayed && !kinds.contains(finding.mistake);
    }
    if (!isPlayed && !line.IsSet("force") && !line.IsSet("allow-missing-files"))
        throw Failure{BadInput,
                      QStringLiteral("%1 is not played; --force plays it all the same").arg(path)};
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
    // With these the display stays dark, or what it shows is not the scene.
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
    const QString named = line.IsSet("plugin") ? line.Value("plugin") : QString();
    QString error;
    plugin = LoadPlugin(PluginPath(named), &error);
    if (!plugin)
        throw Failure{FailedRun, error};
}

std::unique_ptr<Player> Playing::Load(const Scene& scene) const
{
    auto player = std::make_unique<Player>(VirtualDispatcher::Current(), plugin);
    QString error;
    if (!player->Load(scene, &error))
        throw Failure{BadInput, error};
    return player;
}

} // namespace AnimText
