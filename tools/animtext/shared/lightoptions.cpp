#include "animtext/shared/lightoptions.h"

#include "cli/interruption.h"
#include "lights/lights.h"
#include "lights/testpattern.h"
#include "player/player.h"

#include <QCoreApplication>
#include <QTimer>

namespace AnimText::animtext::shared {

using cli::Option;

namespace {

/** Options that set defaults for all controllers; an address overrides them. */
const char* const settings[] = {"color-order", "gamma",    "brightness",
                                "universe",    "priority", "sync-universe",
                                "source-name", "ttl",      "interface"};

QVector<lights::Controller> ReadControllers(const cli::CommandLine& line)
{
    lights::Controller standard;
    standard.broadcast = line.IsSet("broadcast");
    QString error;
    const auto apply = [&](const QString& option, const QString& setting) {
        if (!lights::ApplySetting(&standard, setting, &error))
            throw cli::Misuse{option + error};
    };
    for (const QString& words : line.Values("layout")) {
        for (const QString& word : words.split(QLatin1Char(','), Qt::SkipEmptyParts))
            apply("--layout: ", word.section(QLatin1Char('='), 0, 0));
    }
    for (const char* option : settings) {
        if (line.IsSet(option))
            apply("--", QStringLiteral("%1=%2").arg(QLatin1String(option), line.Value(option)));
    }
    QVector<lights::Controller> controllers;
    for (const QString& address : line.Values("to")) {
        lights::Controller controller = standard;
        if (!lights::ReadAddress(&controller, address, &error))
            throw cli::Misuse{error};
        controllers.append(controller);
    }
    return controllers;
}

} // namespace

QVector<Option> LightOptions()
{
    return {
        Option::Text(
            "to", "ADDRESS",
            "Play on an LED controller: ddp://HOST, artnet://HOST, sacn://HOST for E1.31, or "
            "sacn:// for E1.31 multicast. May be repeated. ddp://HOST/64,0,64x32 shows only that "
            "part of the display (X,Y,WIDTHxHEIGHT). Settings for one controller follow after "
            "commas: ddp://HOST/16x16,serpentine,color-order=GRB."),
        Option::Text(
            "layout", "WORDS",
            "LED wiring, as words separated by commas: rows or columns; straight or serpentine; "
            "the corner of the first LED (top-left, top-right, bottom-left or bottom-right); "
            "rotate-90, rotate-180 or rotate-270. Default: rows,straight,top-left.")
            .Offering(lights::LayoutWords()),
        Option::Text("color-order", "ORDER", "Order of color channels, such as GRB. Default: RGB."),
        Option::Fraction("gamma", 0.1, 10, "GAMMA",
                         "Gamma correction. Default: 1 (off). Without GAMMA: 2.2.")
            .Alone("2.2"),
        Option::Number("brightness", 0, 100, "LED brightness in percent. Default: 100."),
        Option::Number("universe", 0, 63999,
                       "First universe, for E1.31 and Art-Net; each holds 170 pixels. Default: 1."),
        Option::Number("priority", 0, 200, "Source priority, for E1.31. Default: 100."),
        Option::Number("sync-universe", 0, 63999,
                       "Universe for synchronization packets, for E1.31. Default: 0 (none)."),
        Option::Text("source-name", "NAME",
                     "Source name that receivers show, for E1.31. Default: Animated Text."),
        Option::Number(
            "ttl", 1, 255,
            "How many networks multicast packets may reach; 1 is only the local one. Default: 1."),
        Option::Text("interface", "NAME",
                     "Network interface for multicast, such as eth0. Default: the system's."),
        Option::Flag("broadcast", "Allow broadcast addresses."),
        Option::Flag("keep",
                     "Leave the last picture on the LEDs. Default: turn them off at the end."),
        Option::Text("test-pattern", "NAME",
                     "Show a test pattern instead of a scene: corners, order, colors or levels. "
                     "Without NAME: all in turn.")
            .Alone("all")
            .Offering(lights::TestPatterns()),
        Option::Flag("window", "Open a window too, with --to.")};
}

void CheckLightOptions(const cli::CommandLine& line)
{
    for (const Option& option : LightOptions())
        if (line.IsSet(option.name) && !line.IsSet("to"))
            throw cli::Misuse{QStringLiteral("--%1 needs --to").arg(option.name)};
    for (const char* option : {"fullscreen", "zoom", "leds"})
        if (line.IsSet(option) && line.IsSet("to") && !line.IsSet("window"))
            throw cli::Misuse{QStringLiteral("--%1 with --to needs --window").arg(option)};
    const QString scene = line.Arguments().value(0);
    if (!line.IsSet("test-pattern")) {
        if (scene.isEmpty())
            throw cli::Misuse{"expected SCENE.json"};
        return;
    }
    if (!scene.isEmpty())
        throw cli::Misuse{
            QStringLiteral("--test-pattern shows no scene; unexpected argument \"%1\"").arg(scene)};
    const QString pattern = line.Value("test-pattern");
    if (pattern != "all" && !lights::TestPatterns().contains(pattern))
        throw cli::Misuse{QStringLiteral("--test-pattern is \"%2\"; expected %1 or all")
                              .arg(lights::TestPatterns().join(", "), pattern)};
}

void AddLights(const cli::CommandLine& line, QSize display, lights::Lights* lights)
{
    QObject::connect(lights, &lights::Lights::Reported, cli::Warn);
    lights->SetKeeps(line.IsSet("keep"));
    for (const lights::Controller& controller : ReadControllers(line)) {
        QString error;
        files::FailUnless(lights->Add(controller, display, &error), error, files::BadInput);
    }
    cli::Print(lights->Description().toUtf8());
    cli::FlushOutput();
}

void PlayTestPattern(const cli::CommandLine& line)
{
    QSize display;
    for (const lights::Controller& controller : ReadControllers(line)) {
        if (controller.rect.isEmpty())
            throw cli::Misuse{
                QStringLiteral("%1: expected the size of the matrix, such as %2/16x16")
                    .arg(controller.address, controller.address.section(QLatin1Char('/'), 0, 2))};
        const QPoint corner = controller.rect.bottomRight() + QPoint(1, 1);
        display = display.expandedTo(QSize(corner.x(), corner.y()));
    }
    lights::Lights lights;
    AddLights(line, display, &lights);
    cli::WatchForInterruption();
    const int ticks =
        line.IsSet("seconds") ? int(line.Get<double>("seconds")) / player::tickLength : -1;
    int tick = 0;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (cli::Interrupted() || tick == ticks)
            QCoreApplication::quit();
        else
            lights.Show(lights::TestPattern(line.Value("test-pattern"), display, tick++));
    });
    timer.start(player::tickLength);
    QCoreApplication::exec();
    lights.End();
    cli::StopIfInterrupted();
}

} // namespace AnimText::animtext::shared
