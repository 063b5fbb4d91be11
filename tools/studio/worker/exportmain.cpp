// The process that makes a film: it says on standard output how far it is, and breaks off when its
// standard input ends.
#include "studio/worker/exporting.h"

#include "film/film.h"
#include "film/filmfile.h"
#include "live/pictureview.h"
#include "player/plugin.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGuiApplication>

#include <csignal>
#include <cstdio>
#include <numeric>
#include <poll.h>
#include <unistd.h>

namespace AnimText {
namespace {

constexpr int sayEvery = 50; // milliseconds

bool IsWanted()
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, 0) == 0;
}

/** Says how far it is, now and then. */
class Teller
{
public:
    explicit Teller(int output)
        : output(output)
    {
        clock.start();
    }

    void Say(const QByteArray& line) const
    {
        const QByteArray bytes = line + '\n';
        if (write(output, bytes.constData(), size_t(bytes.size())) < 0)
            return; // nobody listens, and then the input has ended too
    }
    void SayProgress(qint64 done, qint64 all)
    {
        if (clock.elapsed() < sayEvery && done != all)
            return;
        clock.restart();
        Say(QByteArray::number(done) + ' ' + QByteArray::number(all));
    }

private:
    int output;
    QElapsedTimer clock;
};

bool MakeFilm(const QString& scenePath, const QString& pluginPath, const ExportWishes& wishes,
              VirtualDispatcher* dispatcher, Teller* teller, QString* error)
{
    Scene scene;
    const FilmKind* kind = FilmKindOf(wishes.output);
    if (!kind) {
        *error = QStringLiteral("%1: no film has that ending").arg(wishes.output);
        return false;
    }
    Lw::INodePlugin* plugin = LoadPlugin(PluginPath(pluginPath), error);
    if (!plugin || !ReadScene(scenePath, &scene, error))
        return false;
    Player player(dispatcher, plugin);
    if (!player.Load(scene, error))
        return false;
    FilmSettings settings;
    const bool isLamps = wishes.lamps > 0;
    settings.scale = isLamps ? 1 : wishes.scale;
    settings.schedule = wishes.schedule;
    settings.evenSize = kind->evenSides && !wishes.lossless && !isLamps;
    if (wishes.transparent)
        settings.background = QColor();
    Film film(&player, scene, settings);
    const auto planned = [&](qint64 done, qint64) {
        teller->SayProgress(done, 0);
        return IsWanted();
    };
    if (!film.Plan(planned, error))
        return false;
    const std::unique_ptr<FilmFile> file = MakeFilmFile(wishes.output, IsWanted);
    const int end = film.FrameCount() - 1;
    const int last = wishes.last < 0 ? end : std::min(wishes.last, end);
    const int first = std::min(wishes.first, last);
    QVector<int> all(last - first + 1);
    std::iota(all.begin(), all.end(), first);
    const QSize size = film.FrameSize() * (isLamps ? wishes.scale : 1);
    if (!file->Open({size, first, int(all.size()), film.IsTransparent(), wishes.lossless}, error))
        return false;
    const auto take = [&](int frame, const QImage& picture) {
        if (!file->Add(frame, isLamps ? AsLamps(picture, wishes.scale, wishes.lamps) : picture,
                       error))
            return false;
        teller->SayProgress(frame - first + 1, all.size());
        return IsWanted();
    };
    return film.Play(all, take, error) && file->Finish(error);
}

} // namespace

int ExportMain(int argc, char** argv)
{
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    Teller teller(dup(STDOUT_FILENO));
    dup2(STDERR_FILENO, STDOUT_FILENO);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    auto* dispatcher = new VirtualDispatcher;
    QCoreApplication::setEventDispatcher(dispatcher);
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    int ownName = 1;
    QGuiApplication application(ownName, argv);

    QCommandLineParser parser;
    parser.addOptions(
        {{QStringLiteral("export"), QString(), QStringLiteral("SCENE")},
         {QStringLiteral("plugin"), QString(), QStringLiteral("FILE")},
         {QStringLiteral("o"), QString(), QStringLiteral("OUT")},
         {QStringLiteral("scale"), QString(), QStringLiteral("N"), QStringLiteral("1")},
         {QStringLiteral("schedule"), QString()},
         {QStringLiteral("frames"), QString(), QStringLiteral("A-B")},
         {QStringLiteral("lamps"), QString(), QStringLiteral("PITCH")},
         {QStringLiteral("transparent"), QString()},
         {QStringLiteral("lossless"), QString()}});
    QString error = QStringLiteral("the words are not understood");
    if (parser.parse(words)) {
        ExportWishes wishes;
        wishes.output = parser.value(QStringLiteral("o"));
        wishes.scale = parser.value(QStringLiteral("scale")).toInt();
        const QString frames = parser.value(QStringLiteral("frames"));
        wishes.first = frames.section(QLatin1Char('-'), 0, 0).toInt();
        if (!frames.isEmpty())
            wishes.last = frames.section(QLatin1Char('-'), 1).toInt();
        wishes.lamps = parser.value(QStringLiteral("lamps")).toDouble();
        wishes.schedule = parser.isSet(QStringLiteral("schedule"));
        wishes.transparent = parser.isSet(QStringLiteral("transparent"));
        wishes.lossless = parser.isSet(QStringLiteral("lossless"));
        if (MakeFilm(parser.value(QStringLiteral("export")), parser.value(QStringLiteral("plugin")),
                     wishes, dispatcher, &teller, &error))
            return 0;
    }
    teller.Say("error " + error.toUtf8());
    return 1;
}

} // namespace AnimText
