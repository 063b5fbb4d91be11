#include "animtext/commands.h"
#include "animtext/interruption.h"
#include "animtext/opening.h"
#include "animtext/progress.h"
#include "player/film.h"
#include "player/filmfile.h"

#include <numeric>

namespace AnimText {

namespace {

FilmSettings SettingsFor(const CommandLine& line, const QString& output, uint seed)
{
    FilmSettings settings;
    settings.evenSize = IsOpaqueFilm(output);
    settings.scale = line.Number("scale");
    settings.seed = seed;
    if (line.IsSet("seconds"))
        settings.seconds = line.Time("seconds") / 1000;
    if (line.IsSet("background"))
        settings.background = line.Color("background");
    else if (IsOpaqueFilm(output))
        settings.background = Qt::black;
    return settings;
}

/** @param range the first and the last of the pictures that are wanted */
void Write(Film* film, QPair<int, int> range, FilmFile* file)
{
    QString error;
    const int frames = range.second - range.first + 1;
    const auto check = [&error](bool succeeded) {
        StopIfInterrupted();
        if (!succeeded)
            throw Failure{FailedRun, error};
    };
    check(file->Open({film->FrameSize(), frames, film->IsTransparent()}, &error));
    {
        Progress progress(QStringLiteral("rendering"), frames);
        QVector<int> wanted(frames);
        std::iota(wanted.begin(), wanted.end(), range.first);
        const auto take = [&](int index, const QImage& picture) {
            if (!file->Add(picture, &error))
                return false;
            progress.Show(index - range.first + 1);
            return !Interrupted();
        };
        check(film->Play(wanted, take, &error));
    }
    check(file->Finish([] { return !Interrupted(); }, &error));
}

int Render(const CommandLine& line)
{
    const QString output = line.Value("output");
    const std::unique_ptr<FilmFile> file = MakeFilmFile(output);
    if (!file)
        throw Misuse{QStringLiteral("%1: expected a name that ends with %2, or with / for a folder "
                                    "of PNGs")
                         .arg(output, FilmEndings().join(QStringLiteral(", ")))};
    const Scene scene = OpenScene(line, line.Arguments().first());
    const Playing playing(line);
    const std::unique_ptr<Player> player = playing.Load(scene);

    WatchForInterruption();
    Film film(player.get(), scene, SettingsFor(line, output, playing.Seed()));
    {
        QString error;
        Progress progress(QStringLiteral("finding the end"), 0);
        const auto watch = [&](qint64 done, qint64) {
            progress.Show(done);
            return !Interrupted();
        };
        if (!film.Plan(watch, &error))
            throw Failure{BadInput, error};
    }
    QPair<int, int> range(0, film.FrameCount() - 1);
    if (line.IsSet("frames"))
        range = line.Range("frames");
    if (range.second >= film.FrameCount())
        throw Misuse{QStringLiteral("the film has the pictures 0 to %1, not %2")
                         .arg(film.FrameCount() - 1)
                         .arg(line.Value("frames"))};
    Write(&film, range, file.get());
    return Done;
}

} // namespace

Command RenderCommand()
{
    return {"render",
            "plays a scene and writes it as GIF, APNG, WebP, MP4, WebM or PNGs",
            "SCENE.json",
            1,
            1,
            "Plays a scene on virtual time, as fast as it can be painted, and writes what the "
            "display shows, a picture for each tick of 66 ms. Without --seconds it plays until "
            "every text has finished and stood for one hold more; a text that the device scrolls "
            "goes through its area once. A name that ends with a slash becomes a folder of PNGs; "
            "all else needs the program ffmpeg. The output appears when it is whole.",
            WithPlayOptions(
                {Option::File("output", "OUT",
                              "Where the film goes; its ending (.gif, .apng, "
                              ".webp, .mp4, .webm or /) tells the format.")
                     .Letter('o')
                     .Required(),
                 Option::Time("seconds", 1000, 0.001, 86400, "S",
                              "Plays that long; in seconds, or as in 1500ms or 2min."),
                 Option::Range("frames", "Writes only these pictures, the first one being 0."),
                 Option::Number("scale", 1, 16, "Makes each pixel a square of N by N.").Or("1"),
                 Option::Color("background",
                               "Paints this color under the display. Without it the film is "
                               "transparent, MP4 black.")}),
            Render};
}

} // namespace AnimText
