#include "animtext/commands.h"
#include "animtext/shared/lightoptions.h"
#include "animtext/shared/playoptions.h"
#include "cli/interruption.h"
#include "cli/messages.h"
#include "lights/lights.h"
#include "live/livewindow.h"
#include "live/scenewatcher.h"
#include "player/plugin.h"

#include <QApplication>
#include <QFileInfo>
#include <QScreen>

namespace AnimText {

namespace {

constexpr int lookTime = 100; // milliseconds from one look for a signal to the next

/** Plays what has changed; where that cannot be read, what was there goes on. */
void Reload(const CommandLine& line, LivePlayer* player, SceneWatcher* watcher,
            const LiveSettings& settings)
{
    try {
        const Scene scene = OpenPlayableScene(line, line.Arguments().first());
        watcher->Watch(scene);
        QString error;
        if (!player->Play(scene, settings, &error))
            throw Failure{BadInput, error};
    } catch (const Failure& failure) {
        Warn(failure.message + QStringLiteral(" (what was read before plays on)"));
    }
}

QByteArray Report(const Punctuality& kept)
{
    return QStringLiteral("played %1 s, %2 ticks: %3 pictures of the first text; the screen came "
                          "at most %4 ms late, and %5 ticks were made up for\n")
        .arg(double(kept.time) / 1000, 0, 'f', 1)
        .arg(kept.due)
        .arg(kept.pictures)
        .arg(kept.latest)
        .arg(kept.madeUp)
        .toUtf8();
}

int PlayLive(const CommandLine& line)
{
    CheckLightOptions(line);
    const bool hasWindow = !line.IsSet("to") || line.IsSet("window");
    if (!hasWindow)
        qputenv("QT_QPA_PLATFORM", "offscreen"); // the machine may have no display
    int count = 1;
    char name[] = "animtext";
    char* words[] = {name, nullptr};
    const QApplication application(count, words);
    QCoreApplication::setApplicationName(QLatin1String(name));
    if (!QGuiApplication::primaryScreen())
        throw Failure{FailedRun, NoDisplay()};

    if (line.IsSet("test-pattern"))
        return PlayTestPattern(line);

    const QString path = line.Arguments().first();
    const Scene scene = OpenPlayableScene(line, path);
    const Playing playing(line);
    LiveSettings settings;
    settings.loop = line.IsSet("loop");
    settings.schedule = line.IsSet("schedule");
    settings.seed = playing.Seed();

    Lights lights;
    AddLights(line, scene.display, &lights);

    LivePlayer player(playing.Plugin());
    QObject::connect(&player, &LivePlayer::Shown, &lights, &Lights::Show);
    LiveWindow window(&player);
    if (line.IsSet("zoom"))
        window.SetZoom(line.Number("zoom"));
    if (line.IsSet("leds"))
        window.SetPitch(line.Fraction("leds"));
    if (hasWindow)
        window.Open(QFileInfo(path).fileName(), scene.display, line.IsSet("fullscreen"));
    else if (!line.IsSet("watch"))
        QObject::connect(&player, &LivePlayer::Ended, &application, &QCoreApplication::quit);

    SceneWatcher watcher;
    if (line.IsSet("watch")) {
        QObject::connect(&watcher, &SceneWatcher::Changed, &player,
                         [&] { Reload(line, &player, &watcher, settings); });
        watcher.Watch(scene);
    }
    WatchForInterruption();
    QTimer look;
    const qint64 end = line.IsSet("seconds") ? qint64(line.Time("seconds")) : -1;
    QElapsedTimer shown;
    QObject::connect(&look, &QTimer::timeout, &application, [&] {
        if (Interrupted() || (end >= 0 && shown.elapsed() >= end))
            QCoreApplication::quit();
    });
    look.start(lookTime);

    QString error;
    shown.start();
    if (!player.Play(scene, settings, &error))
        throw Failure{BadInput, error};
    QApplication::exec();
    lights.End();
    if (line.IsSet("timing"))
        Print(Report(player.Kept()) + lights.Report());
    StopIfInterrupted();
    return Done;
}

} // namespace

Command PlayCommand()
{
    return {
        "play",
        "plays a scene live in a window, as a sign or on LEDs",
        "SCENE.json",
        0,
        1,
        "Plays a scene on the clock, in a window: what the plugin paints, as the display shows "
        "it. Space pauses, F fills the screen, Esc ends. When all is done the last picture "
        "stays, and Space begins anew. QT_QPA_PLATFORM=linuxfb shows it on a board's screen "
        "without a desktop, QT_QPA_PLATFORM=vnc to VNC viewers. --to shows it on LED controllers "
        "in "
        "the network, without a window.",
        WithShowOptions(
            {Option::Flag("loop", "Begins anew when all is done."),
             Option::Flag("schedule",
                          "Plays as the host does: the pages, and the texts of an area, one "
                          "after another, each for the time that the host is told. Without it "
                          "all texts play at once."),
             Option::Flag("fullscreen", "Fills the screen."),
             Option::Number("zoom", 1, 64,
                            "Points of the desk to a pixel; as large as fits unless told."),
             Option::Fraction("leds", 1, 4, "PITCH",
                              "Shows round lamps, that many of their diameters apart.")
                 .Alone("1.25"),
             Option::Flag("watch", "Plays the scene anew whenever it or its data files change."),
             Option::Time("seconds", 1000, 0.1, 86400 * 366.0, "TIME",
                          "Ends after that long, as in 10s or 90min."),
             Option::Flag("timing", "Tells in the end how the play has kept up with the "
                                    "clock.")}) +
            LightOptions(),
        PlayLive};
}

} // namespace AnimText
