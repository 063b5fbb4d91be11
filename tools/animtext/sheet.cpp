#include "animtext/commands.h"
#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/progress.h"
#include "film/contactsheet.h"
#include "film/film.h"
#include "film/png.h"

#include "scene/motion.h"

#include <QFileInfo>

namespace AnimText::animtext {

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

film::SheetRow RowOf(const cli::CommandLine& line, const scene::Scene& scene)
{
    const std::unique_ptr<player::Player> player = shared::PlayerOf(line, scene);
    film::FilmSettings settings;
    settings.seed = shared::SeedOf(line);
    settings.restAtEnd = false;
    film::Film film(player.get(), scene, settings,
                    [](film::FilmStage, qint64, qint64) { cli::StopIfInterrupted(); });

    film::SheetRow row;
    const scene::Motion* motion =
        scene.Nodes().isEmpty() ? nullptr : scene::MotionOf(*scene.Nodes().first()).Row();
    const bool scrolls = motion && motion->family == scene::Scrolls().first().family;
    row.title = QFileInfo(scene.path).completeBaseName();
    if (motion) {
        row.number = scrolls ? QString() : QString::number(motion->number);
        row.title = QString::fromLatin1(motion->title);
        row.remark = QStringLiteral("%1: %2").arg(QLatin1String(motion->name),
                                                  QLatin1String(motion->summary));
    }
    const int columns = line.Get<int>("columns");
    film.Play(Spread(film.FrameCount(), columns, !scrolls), [&](int frame, const QImage& picture) {
        cli::StopIfInterrupted();
        row.frames.append({picture, qint64(frame) * player::tickLength});
    });
    return row;
}

void DrawSheet(const cli::CommandLine& line)
{
    const QString output = line.Value("output");
    if (output != "-" && !output.endsWith(".png", Qt::CaseInsensitive))
        throw cli::Misuse{output + ": expected a name that ends with .png"};
    QVector<scene::Scene> scenes;
    for (const QString& path : line.Arguments())
        scenes.append(shared::OpenPlayableScene(line, path));
    cli::WatchForInterruption();
    QVector<film::SheetRow> rows;
    cli::Progress progress;
    for (const scene::Scene& scene : scenes) {
        rows.append(RowOf(line, scene));
        progress.Show("playing scene", rows.size(), scenes.size());
    }
    progress.Wipe();
    const QByteArray png = film::PngOf(film::DrawContactSheet(rows), false);
    if (output == QLatin1String("-"))
        cli::Print(png);
    else
        film::WritePng(output, png);
}

} // namespace

cli::Command SheetCommand()
{
    return {"sheet",
            "draw a contact sheet of scenes",
            {"SCENE.json...", 1, 1000},
            "Draws a contact sheet: a row of frames for each scene, evenly spaced in time.",
            shared::WithShowOptions(
                {Option::File("output", "SHEET.png", "PNG file to write; - is standard output.")
                     .Letter('o')
                     .Required(),
                 Option::Number("columns", 1, 50, "Frames per row.").Or("6")}),
            DrawSheet,
            {"animtext sheet sign.json -o sheet.png",
             "animtext sheet *.json --columns 10 -o sheet.png"}};
}

} // namespace AnimText::animtext
