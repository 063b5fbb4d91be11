#include "animtext/commands.h"
#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/progress.h"
#include "film/contactsheet.h"
#include "film/film.h"
#include "film/png.h"

#include "scene/motion.h"

#include <QFileInfo>

namespace AnimText {

namespace {

/**
 * Picks @p count of @p frames, evenly spaced, with @p toTheEnd including the last one. The last
 * frame of a scroll is empty.
 */
QVector<int> Spread(int frames, int count, bool toTheEnd)
{
    QVector<int> picked;
    for (int i = 1; i <= count; ++i)
        picked.append(int(qint64(frames - 1) * i / (toTheEnd ? count : count + 1)));
    return picked;
}

SheetRow RowOf(const Playing& playing, const Scene& scene, int columns)
{
    const std::unique_ptr<Player> player = playing.Load(scene);
    FilmSettings settings;
    settings.seed = playing.Seed();
    settings.restAtEnd = false;
    Film film(player.get(), scene, settings,
              [](FilmStage, qint64, qint64) { StopIfInterrupted(); });

    SheetRow row;
    const Motion* motion =
        scene.Nodes().isEmpty() ? nullptr : MotionOf(*scene.Nodes().first()).Row();
    const bool scrolls = motion && motion->family == Scrolls().first().family;
    row.title = QFileInfo(scene.path).completeBaseName();
    if (motion) {
        row.number = scrolls ? QString() : QString::number(motion->number);
        row.title = QString::fromLatin1(motion->title);
        row.remark = QStringLiteral("%1: %2").arg(QLatin1String(motion->name),
                                                  QLatin1String(motion->summary));
    }
    film.Play(Spread(film.FrameCount(), columns, !scrolls), [&](int frame, const QImage& picture) {
        StopIfInterrupted();
        row.frames.append({picture, qint64(frame) * tickLength});
    });
    return row;
}

int DrawSheet(const CommandLine& line)
{
    const QString output = line.Value("output");
    if (output != QLatin1String("-") &&
        !output.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        throw Misuse{QStringLiteral("%1: expected a name that ends with .png").arg(output)};
    QVector<Scene> scenes;
    for (const QString& path : line.Arguments())
        scenes.append(OpenPlayableScene(line, path));
    const Playing playing(line);

    WatchForInterruption();
    QVector<SheetRow> rows;
    {
        Progress progress("playing scene", scenes.size());
        for (int i = 0; i < scenes.size(); ++i) {
            rows.append(RowOf(playing, scenes.at(i), line.Number("columns")));
            progress.Show(i + 1);
        }
    }
    const QByteArray png = PngOf(DrawContactSheet(rows), false);
    if (output == QLatin1String("-"))
        Print(png);
    else
        WritePng(output, png);
    return Done;
}

} // namespace

Command SheetCommand()
{
    return {"sheet",
            "draw a contact sheet of scenes",
            "SCENE.json...",
            1,
            1000,
            "Draws a contact sheet: a row of frames for each scene, evenly spaced in time.",
            WithShowOptions(
                {Option::File("output", "SHEET.png", "PNG file to write; - is standard output.")
                     .Letter('o')
                     .Required(),
                 Option::Number("columns", 1, 50, "Frames per row.").Or("6")}),
            DrawSheet,
            {"animtext sheet sign.json -o sheet.png",
             "animtext sheet *.json --columns 10 -o sheet.png"}};
}

} // namespace AnimText
