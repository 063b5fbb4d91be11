#include "animtext/commands.h"
#include "animtext/opening.h"
#include "animtext/progress.h"
#include "player/film.h"
#include "player/filmfile.h"

#include <QDir>
#include <QFileInfo>

#include <numeric>

namespace AnimText {

namespace {

/** The pictures from the first to the last of them that are wanted, both included. */
struct Range
{
    int first = 0;
    int last = -1; ///< negative: the film's last
};

bool ReadRange(const QString& text, Range* range)
{
    const QStringList ends = text.split(QLatin1Char('-'));
    bool first = false;
    bool last = false;
    range->first = ends.value(0).toInt(&first);
    range->last = ends.value(1).toInt(&last);
    return ends.size() == 2 && first && last && range->last >= range->first;
}

/** What the words ask for. */
struct Job
{
    QString output;
    FilmSettings settings;
    Range range;
};

bool ReadJob(CommandLine* line, Job* job)
{
    job->output = line->Value(QStringLiteral("output"));
    if (job->output.isEmpty()) {
        line->Misused(QStringLiteral("expected -o and the name of the film"));
        return false;
    }
    job->settings.evenSize = IsOpaqueFilm(job->output);
    if (!line->Number(QStringLiteral("scale"), 1, 16, &job->settings.scale))
        return false;
    if (line->IsSet(QStringLiteral("seconds"))) {
        bool isNumber = false;
        const QString seconds = line->Value(QStringLiteral("seconds"));
        job->settings.seconds = seconds.toDouble(&isNumber);
        if (!isNumber || !(job->settings.seconds > 0) || job->settings.seconds > 86400) {
            line->Misused(QStringLiteral("--seconds takes a number above 0 and up to 86400, not "
                                         "\"%1\"")
                              .arg(seconds));
            return false;
        }
    }
    if (line->IsSet(QStringLiteral("frames")) &&
        !ReadRange(line->Value(QStringLiteral("frames")), &job->range)) {
        line->Misused(QStringLiteral("--frames takes the first and the last, such as 0-99, not "
                                     "\"%1\"")
                          .arg(line->Value(QStringLiteral("frames"))));
        return false;
    }
    if (line->IsSet(QStringLiteral("background"))) {
        const QString name = line->Value(QStringLiteral("background"));
        job->settings.background = QColor(name);
        if (!job->settings.background.isValid()) {
            line->Misused(
                QStringLiteral("--background takes a colour such as black or #203040, not \"%1\"")
                    .arg(name));
            return false;
        }
        job->settings.background.setAlpha(255);
    } else if (IsOpaqueFilm(job->output)) {
        job->settings.background = Qt::black;
    }
    return true;
}

Status Write(Film* film, const Range& range, FilmFile* file)
{
    QString error;
    const int last = range.last < 0 ? film->FrameCount() - 1 : range.last;
    const int frames = last - range.first + 1;
    if (!file->Open({film->FrameSize(), frames, film->IsTransparent()}, &error))
        return Status(Fail(FailedRun, error));
    {
        Progress progress(QStringLiteral("rendering"), frames);
        QVector<int> wanted(frames);
        std::iota(wanted.begin(), wanted.end(), range.first);
        const auto take = [&](int index, const QImage& picture) {
            if (!file->Add(picture, &error))
                return false;
            progress.Show(index - range.first + 1);
            if (Interrupted())
                error = QStringLiteral("interrupted");
            return !Interrupted();
        };
        if (!film->Play(wanted, take, &error))
            return Status(Fail(FailedRun, error));
    }
    if (!file->Finish([] { return !Interrupted(); }, &error))
        return Status(Fail(FailedRun, error));
    return Done;
}

} // namespace

int RunRender(const QStringList& words)
{
    CommandLine line(
        QStringLiteral("render"), QStringLiteral("SCENE.json -o OUT.gif|apng|webp|mp4|webm|DIR/"),
        QStringLiteral("Plays a scene on virtual time, as fast as it can be painted, and writes "
                       "what the display shows, a picture for each tick of 66 ms. Without "
                       "--seconds it plays until every text has finished and stood for one hold "
                       "more; a text that the device scrolls goes through its area once. A name "
                       "that ends with a slash becomes a folder of PNGs; all else needs the "
                       "program ffmpeg. The output appears when it is whole."));
    line.AddOption({QStringLiteral("o"), QStringLiteral("output")},
                   QStringLiteral("Where the film goes; its ending tells the format."),
                   QStringLiteral("OUT"));
    line.AddOption({QStringLiteral("seconds")}, QStringLiteral("Plays that long."),
                   QStringLiteral("S"));
    line.AddOption({QStringLiteral("frames")},
                   QStringLiteral("Writes only these pictures, the first one being 0."),
                   QStringLiteral("A-B"));
    line.AddOption({QStringLiteral("scale")},
                   QStringLiteral("Makes each pixel a square of N by N."), QStringLiteral("N"),
                   QStringLiteral("1"));
    line.AddOption({QStringLiteral("background")},
                   QStringLiteral("Paints this colour under the display. Without it the film is "
                                  "transparent, MP4 black."),
                   QStringLiteral("COLOUR"));
    AddPlayOptions(&line);
    Job job;
    if (!line.Parse(words, 1, 1))
        return line.ExitStatus();
    if (!ReadJob(&line, &job))
        return BadInput;
    const std::unique_ptr<FilmFile> file = MakeFilmFile(job.output);
    if (!file)
        return line.Misused(QStringLiteral("%1: expected a name that ends with %2, or with / for "
                                           "a folder of PNGs")
                                .arg(job.output, FilmEndings().join(QStringLiteral(", "))));

    Scene scene;
    Playing playing;
    if (const Status status = OpenSceneAndPlugin(&line, &scene, &playing))
        return status;
    job.settings.seed = playing.seed;
    const std::unique_ptr<Player> player = playing.Load(scene);
    if (!player)
        return BadInput;

    WatchForInterruption();
    Film film(player.get(), scene, job.settings);
    {
        QString error;
        Progress progress(QStringLiteral("finding the end"), 0);
        const auto watch = [&](qint64 done, qint64) {
            progress.Show(done);
            return !Interrupted();
        };
        if (!film.Plan(watch, &error))
            return Fail(Interrupted() ? FailedRun : BadInput, error);
    }
    if (job.range.first >= film.FrameCount() || job.range.last >= film.FrameCount())
        return line.Misused(QStringLiteral("the film has the pictures 0 to %1, not %2")
                                .arg(film.FrameCount() - 1)
                                .arg(line.Value(QStringLiteral("frames"))));
    return Write(&film, job.range, file.get());
}

} // namespace AnimText
