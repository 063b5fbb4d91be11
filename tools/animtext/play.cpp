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

namespace AnimText::animtext {

namespace {

constexpr int lookTime = 100; // milliseconds between checks for a signal

/** Plays the changed scene; if it cannot be read, the previous one continues. */
void Reload(const cli::CommandLine& line, live::LivePlayer* player, live::SceneWatcher* watcher,
            const live::LiveSettings& settings)
{
    try {
        const scene::Scene scene = shared::OpenPlayableScene(line, line.Arguments().first());
        watcher->Watch(scene);
        player->Play(scene, settings);
    } catch (const files::Failure& failure) {
        cli::Warn(failure.message + " (still playing the previous version)");
    }
}

QByteArray Report(const live::Punctuality& kept)
{
    return QStringLiteral("played %1 s, %2 ticks: %3 pictures of the first text; screen at most %4 "
                          "ms late, %5 ticks delivered late\n")
        .arg(double(kept.time) / 1000, 0, 'f', 1)
        .arg(kept.due)
        .arg(kept.pictures)
        .arg(kept.latest)
        .arg(kept.madeUp)
        .toUtf8();
}

void PlayLive(const cli::CommandLine& line)
{
    shared::CheckLightOptions(line);
    const bool hasWindow = !line.IsSet("to") || line.IsSet("window");
    if (!hasWindow)
        qputenv("QT_QPA_PLATFORM", "offscreen"); // the machine may have no display
    int count = 1;
    char name[] = "animtext";
    char* words[] = {name, nullptr};
    const QApplication application(count, words);
    QCoreApplication::setApplicationName(QLatin1String(name));
    files::FailUnless(QGuiApplication::primaryScreen(), cli::NoDisplay());

    if (line.IsSet("test-pattern"))
        return shared::PlayTestPattern(line);

    const QString path = line.Arguments().first();
    const scene::Scene scene = shared::OpenPlayableScene(line, path);
    Lw::INodePlugin* plugin = shared::PluginOf(line);
    live::LiveSettings settings;
    settings.loop = line.IsSet("loop");
    settings.schedule = line.IsSet("schedule");
    settings.seed = shared::SeedOf(line);

    lights::Lights lights;
    shared::AddLights(line, scene.display, &lights);

    live::LivePlayer player(plugin);
    QObject::connect(&player, &live::LivePlayer::Shown, &lights, &lights::Lights::Show);
    live::LiveWindow window(&player);
    if (line.IsSet("zoom"))
        window.SetZoom(line.Get<int>("zoom"));
    if (line.IsSet("leds"))
        window.SetPitch(line.Get<double>("leds"));
    if (hasWindow)
        window.Open(QFileInfo(path).fileName(), scene.display, line.IsSet("fullscreen"));
    else if (!line.IsSet("watch"))
        QObject::connect(&player, &live::LivePlayer::Ended, &application, &QCoreApplication::quit);

    live::SceneWatcher watcher;
    if (line.IsSet("watch")) {
        QObject::connect(&watcher, &live::SceneWatcher::Changed, &player,
                         [&] { Reload(line, &player, &watcher, settings); });
        watcher.Watch(scene);
    }
    cli::WatchForInterruption();
    QTimer look;
    const qint64 end = line.IsSet("seconds") ? qint64(line.Get<double>("seconds")) : -1;
    QElapsedTimer shown;
    QObject::connect(&look, &QTimer::timeout, &application, [&] {
        if (cli::Interrupted() || (end >= 0 && shown.elapsed() >= end))
            QCoreApplication::quit();
    });
    look.start(lookTime);

    shown.start();
    player.Play(scene, settings);
    QApplication::exec();
    lights.End();
    if (line.IsSet("timing"))
        cli::Print(Report(player.Kept()) + lights.Report());
    cli::StopIfInterrupted();
}

} // namespace

cli::Command PlayCommand()
{
    return {"play",
            "play a scene live in a window or on LEDs",
            {"SCENE.json", 0, 1},
            "Plays a scene in real time, in a window. Space pauses, F switches to full screen and "
            "Esc quits. At the end the last picture stays; press Space to play again. --to plays "
            "on LED controllers in the network instead of in a window. Set QT_QPA_PLATFORM to "
            "linuxfb to play on a board's own screen without a desktop, or to vnc for VNC viewers.",
            shared::WithShowOptions(
                {Option::Flag("loop", "Repeat until stopped."),
                 Option::Flag("schedule",
                              "Play like the host: pages, and texts in an area, one after another, "
                              "each for its planned time. Default: all texts at once."),
                 Option::Flag("fullscreen", "Fill the screen."),
                 Option::Number("zoom", 1, 64,
                                "Screen pixels per display pixel. Default: as many as fit."),
                 Option::Fraction(
                     "leds", 1, 4, "PITCH",
                     "Draw round LEDs, PITCH times their diameter apart. Without PITCH: 1.25.")
                     .Alone("1.25"),
                 Option::Flag("watch", "Restart when the scene or its data files change."),
                 Option::Time("seconds", 0.1, 86400 * 366.0,
                              "Stop after this time, such as 10s or 90min. Default: no limit."),
                 Option::Flag("timing",
                              "Print at the end how well the play kept up with the clock.")}) +
                shared::LightOptions(),
            PlayLive,
            {"animtext play sign.json --loop --leds",
             "animtext play sign.json --to ddp://192.168.1.50 --gamma"}};
}

} // namespace AnimText::animtext
