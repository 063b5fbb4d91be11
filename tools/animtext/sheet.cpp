#include "animtext/commands.h"
#include "animtext/contactsheet.h"
#include "animtext/opening.h"
#include "animtext/progress.h"
#include "player/film.h"

#include "scene/catalogue.h"

#include <QFileInfo>
#include <QSaveFile>

namespace AnimText {

namespace {

/** What a scene's first text does, for its title. */
const Motion* MotionOf(const Scene& scene)
{
    if (scene.Nodes().isEmpty())
        return nullptr;
    const auto& attributes = scene.Nodes().first()->attributes;
    const int mode = attributes.value(QStringLiteral("EffectType")).toInt();
    const int effect = attributes.value(QStringLiteral("AnimationEffect")).toInt();
    const int style = attributes.value(QStringLiteral("ContinueStyle")).toInt();
    if (mode == 0)
        return FindEffect(QString::number(effect));
    return mode == 1 && style >= 0 && style < Scrolls().size() ? &Scrolls().at(style) : nullptr;
}

/**
 * @p count frames of @p frames, evenly spaced. A film that comes to an end shows it; the last frame
 * of a scroll, like its first, is empty.
 */
QVector<int> Spread(int frames, int count, bool toTheEnd)
{
    QVector<int> picked;
    for (int i = 1; i <= count; ++i)
        picked.append(int(qint64(frames - 1) * i / (toTheEnd ? count : count + 1)));
    return picked;
}

Status AddRow(const Playing& playing, const Scene& scene, int columns, ContactSheet* sheet)
{
    const std::unique_ptr<Player> player = playing.Load(scene);
    if (!player)
        return BadInput;
    FilmSettings settings;
    settings.seed = playing.seed;
    settings.restAtEnd = false;
    Film film(player.get(), scene, settings);
    QString error;
    if (!film.Plan([](qint64, qint64) { return !Interrupted(); }, &error))
        return Status(Fail(Interrupted() ? FailedRun : BadInput, error));

    SheetRow row;
    const Motion* motion = MotionOf(scene);
    const bool scrolls = motion && motion->family == Scrolls().first().family;
    row.title = QFileInfo(scene.path).completeBaseName();
    if (motion) {
        row.number = scrolls ? QString() : QString::number(motion->number);
        row.title = QString::fromLatin1(motion->name);
        row.remark = QString::fromLatin1(motion->summary);
    }
    const auto take = [&](int frame, const QImage& picture) {
        row.frames.append({picture, qint64(frame) * tickLength});
        return !Interrupted();
    };
    if (!film.Play(Spread(film.FrameCount(), columns, !scrolls), take, &error))
        return Status(Fail(FailedRun, Interrupted() ? QStringLiteral("interrupted") : error));
    sheet->Add(row);
    return Done;
}

Status Save(const QImage& picture, const QString& path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit())
        return Done;
    return Status(
        Fail(FailedRun, QStringLiteral("%1 cannot be written: %2").arg(path, file.errorString())));
}

} // namespace

int RunSheet(const QStringList& words)
{
    CommandLine line(QStringLiteral("sheet"), QStringLiteral("SCENE.json... -o SHEET.png"),
                     QStringLiteral("Draws a contact sheet: for each scene a row of frames, evenly "
                                    "spaced over its play."));
    line.AddOption({QStringLiteral("o"), QStringLiteral("output")},
                   QStringLiteral("Where the sheet goes, a PNG."), QStringLiteral("SHEET.png"));
    line.AddOption({QStringLiteral("columns")}, QStringLiteral("Frames in a row."),
                   QStringLiteral("N"), QStringLiteral("6"));
    AddPlayOptions(&line);
    if (!line.Parse(words, 1, 1000))
        return line.ExitStatus();
    int columns = 0;
    const QString output = line.Value(QStringLiteral("output"));
    if (output.isEmpty())
        return line.Misused(QStringLiteral("expected -o and the name of the sheet"));
    if (!output.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        return line.Misused(QStringLiteral("%1: expected a name that ends with .png").arg(output));
    if (!line.Number(QStringLiteral("columns"), 1, 50, &columns))
        return BadInput;

    Playing playing;
    const QStringList paths = line.Arguments();
    QVector<Scene> scenes(paths.size());
    for (int i = 0; i < paths.size(); ++i) {
        if (const Status status = OpenScene(line, paths.at(i), &scenes[i]))
            return status;
    }
    if (const Status status = OpenPlugin(&line, &playing))
        return status;

    WatchForInterruption();
    ContactSheet sheet;
    {
        Progress progress(QStringLiteral("playing scene"), paths.size());
        for (int i = 0; i < paths.size(); ++i) {
            if (const Status status = AddRow(playing, scenes.at(i), columns, &sheet))
                return status;
            progress.Show(i + 1);
        }
    }
    return Save(sheet.Draw(), output);
}

} // namespace AnimText
