#include "animtext/commands.h"
#include "animtext/shared/batch.h"
#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/progress.h"
#include "film/kinds.h"
#include "film/lamps.h"
#include "film/writefilm.h"

#include <QLocale>

#include <algorithm>
#include <csignal>
#include <memory>

namespace AnimText::animtext {

namespace {

const film::FilmKind& KindOf(const QString& output)
{
    if (const film::FilmKind* kind = film::FilmKindOf(output))
        return *kind;
    QStringList endings;
    for (const film::FilmKind& kind : film::FilmKinds())
        endings.append(QLatin1String(kind.ending));
    endings.removeLast();
    throw cli::Misuse{
        QStringLiteral("%1: expected a name that ends with %2, or with / for a folder of PNGs")
            .arg(output, endings.join(", "))};
}

/** Throws Misuse when films of that kind cannot be what the options ask for. */
void CheckKind(const cli::CommandLine& line, const film::FilmKind& kind)
{
    const QString films = QString(kind.ending) + " films";
    const bool transparent = line.IsSet("transparent");
    const bool lossless = line.IsSet("lossless");
    const bool leds = line.IsSet("leds");
    const auto frames = line.Get<QPair<int, int>>("frames");
    const bool isOne = line.IsSet("at") || (line.IsSet("frames") && frames.first == frames.second);
    if (transparent && line.IsSet("background"))
        throw cli::Misuse{"--transparent and --background cannot be combined"};
    if (transparent && leds)
        throw cli::Misuse{"--transparent and --leds cannot be combined; LEDs are drawn on black"};
    if (leds && line.IsSet("scale") && line.Get<int>("scale") < film::smallestLamp)
        throw cli::Misuse{"--leds needs a --scale of at least 4"};
    if (transparent && !kind.Has(film::FilmKind::Transparent))
        throw cli::Misuse{films + " cannot be transparent"};
    if (lossless && !kind.Has(film::FilmKind::Lossless))
        throw cli::Misuse{films + " lose colors; use .apng, .webp or .mp4"};
    if (lossless && transparent && !kind.Has(film::FilmKind::LosslessAlpha))
        throw cli::Misuse{"transparent " + films + " lose colors; use .apng or .webp"};
    if (line.IsSet("at") && line.IsSet("frames"))
        throw cli::Misuse{"--at and --frames cannot be combined"};
    if (kind.Has(film::FilmKind::Still) && !isOne)
        throw cli::Misuse{"a PNG is one picture; choose it with --at or --frames"};
}

film::FilmSettings SettingsFor(const cli::CommandLine& line, const film::FilmKind& kind)
{
    film::FilmSettings settings;
    settings.evenSize = kind.Has(film::FilmKind::EvenSides) && !line.IsSet("lossless");
    settings.scale = line.Get<int>("scale");
    if (line.IsSet("leds")) {
        settings.pitch = line.Get<double>("leds");
        settings.scale = std::max(settings.scale, film::smallestLamp);
    }
    settings.seed = shared::SeedOf(line);
    settings.schedule = line.IsSet("schedule");
    if (line.IsSet("seconds"))
        settings.seconds = line.Get<double>("seconds") / 1000;
    if (line.IsSet("background"))
        settings.background = line.Get<QColor>("background");
    else if (line.IsSet("transparent"))
        settings.background = QColor();
    return settings;
}

/** The first and the last of the pictures that are wanted, of @p frames that there are. */
QPair<int, int> RangeFor(const cli::CommandLine& line, int frames)
{
    QPair<int, int> range(0, frames - 1);
    if (line.IsSet("frames"))
        range = line.Get<QPair<int, int>>("frames");
    if (line.IsSet("at")) {
        // Times as people write them can lie a hair before their tick.
        const int tick = int(line.Get<double>("at") / player::tickLength + 1e-6);
        range = {tick, tick};
    }
    if (range.second >= frames)
        throw cli::Misuse{
            QStringLiteral("the film has no picture %3; it has 0 to %1 and ends after %2 s")
                .arg(frames - 1)
                .arg(double(frames) * player::tickLength / 1000)
                .arg(range.second)};
    return range;
}

cli::Progress::Form FormOf(const cli::CommandLine& line)
{
    return line.IsSet("progress") ? cli::Progress::Form::Lines : cli::Progress::Form::Bar;
}

/** "Wrote sign.gif: 512 x 64, 14.2 s, 215 frames, 1.3 MB" */
QString Summary(const QString& output, const film::FilmKind& kind, const film::WrittenFilm& film)
{
    QStringList facts{QStringLiteral("%1 x %2").arg(film.size.width()).arg(film.size.height())};
    if (!kind.Has(film::FilmKind::Still)) {
        facts +=
            QStringLiteral("%1 s").arg(double(film.frames) * player::tickLength / 1000, 0, 'f', 1);
        facts += scene::Counted(film.frames, "frame");
    }
    facts += QLocale::c().formattedDataSize(film.bytes, 1, QLocale::DataSizeSIFormat);
    return QStringLiteral("Wrote %1: %2\n").arg(output, facts.join(", "));
}

void RenderOne(const cli::CommandLine& line, const QString& output)
{
    const film::FilmKind& kind = KindOf(output);
    CheckKind(line, kind);
    const scene::Scene scene = shared::OpenPlayableScene(line, line.Arguments().first());
    const std::unique_ptr<player::Player> player = shared::PlayerOf(line, scene);
    cli::Progress progress(FormOf(line));
    const film::FilmWatch watch = [&](film::FilmStage stage, qint64 done, qint64 total) {
        static const char* const names[] = {"finding the end", "collecting colors", "rendering"};
        progress.Show(names[int(stage)], done, total);
        cli::StopIfInterrupted();
    };
    film::Film film(player.get(), scene, SettingsFor(line, kind), watch);
    const film::WrittenFilm written = film::WriteFilm(&film, RangeFor(line, film.FrameCount()),
                                                      output, line.IsSet("lossless"), watch);
    progress.Wipe();
    if (written.halvesColors)
        cli::Warn(
            QStringLiteral("%1: such a film stores colors at half the resolution (4:2:0), which "
                           "blurs colored text; --lossless keeps every pixel")
                .arg(output));
    cli::Print(Summary(output, kind, written).toLocal8Bit());
}

void RenderMany(const cli::CommandLine& line)
{
    const QString kind = line.Value("as");
    const QString ending = kind == QLatin1String("frames") ? "/" : QLatin1Char('.') + kind;
    CheckKind(line, KindOf(ending));
    QStringList options;
    for (const Option& option : RenderCommand().options) {
        static const QStringList ours{"output", "as", "jobs", "resume", "progress"};
        if (!line.IsSet(option.name) || ours.contains(option.name))
            continue;
        options.append(QString("--") + option.name);
        if (option.kind != cli::Kind::Flag)
            options.last() += QLatin1Char('=') + line.Value(option.name);
    }
    shared::RenderAll(line, ending, options, FormOf(line));
}

void Render(const cli::CommandLine& line)
{
    cli::WatchForInterruption();
    if (line.IsSet("progress"))
        std::signal(SIGPIPE, SIG_IGN); // so that what is unfinished goes away
    if (line.Arguments().size() > 1 || line.IsSet("as"))
        RenderMany(line);
    else
        RenderOne(line, line.Value("output"));
}

QVector<Option> Options()
{
    return {
        Option::File("output", "OUT",
                     "File to write. Its name ends with the format: .gif, .apng, .webp, .mp4, "
                     ".webm or .png; or with / for a folder of PNGs.")
            .Letter('o')
            .Required(),
        Option::Time("seconds", 0.001, 86400,
                     "Play for this time, such as 10s, 1500ms or 2min. Default: to the end."),
        Option::Flag("schedule", "Play like the host: pages, and texts in an area, one after "
                                 "another, each for its planned time. Default: all texts at once."),
        Option::Range("frames", "Write only these pictures, counted from 0, or one of them."),
        Option::Time("at", 0, 86400, "Write the picture at this time: 2.5s, or 40t for tick 40."),
        Option::Number("scale", 1, 16, "Film pixels per display pixel.").Or("1"),
        Option::Fraction("leds", 1, 4, "PITCH",
                         "Draw round LEDs on black, PITCH times their diameter apart. Without "
                         "PITCH: 1.25. The default of --scale is then 4.")
            .Alone("1.25"),
        Option::Color("background", "Background color under the display. Default: black."),
        Option::Flag("transparent", "Transparent background. Not for MP4."),
        Option::Flag("lossless",
                     "Keep every pixel of an MP4 or WebM. Not all players support this."),
        Option::Choice("as", "KIND", {"gif", "apng", "webp", "mp4", "webm", "png", "frames"},
                       "Render each scene into the folder OUT as gif, apng, webp, mp4, webm, png "
                       "or frames (a folder of PNGs).")
            .Or("gif"),
        Option::Number("jobs", 1, 1000,
                       "How many scenes to render at once. Default: the number of processors."),
        Option::Flag("resume", "Skip films that are newer than their scene, its data files, the "
                               "plugin and this program."),
        Option::Flag("progress",
                     "Print progress as lines such as \"12 426 rendering\", for other programs.")};
}

} // namespace

cli::Command RenderCommand()
{
    return {"render",
            "render scenes as GIF, APNG, WebP, MP4, WebM or PNGs",
            {"SCENE.json...", 1, 100000},
            "Plays a scene on virtual time and writes what the display shows, a picture for each "
            "tick of 66 ms. Without --seconds it plays until every text has finished and was held "
            "once more, or has scrolled through its area once. All formats except PNG need ffmpeg. "
            "The output appears only when it is complete. With several scenes, or --as, each scene "
            "is rendered into the folder OUT.",
            shared::WithShowOptions(Options()),
            Render,
            {"animtext render sign.json -o sign.gif --scale 4",
             "animtext render *.json --as png --at 1.5s -o stills"}};
}

} // namespace AnimText::animtext
