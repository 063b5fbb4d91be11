#include "animtext/shared/lightoptions.h"

#include "cli/interruption.h"
#include "lights/lights.h"
#include "lights/testpattern.h"
#include "player/player.h"

#include <QCoreApplication>
#include <QTimer>

namespace AnimText {

namespace {

/** The options that apply to every controller whose address does not say otherwise. */
const char* const settings[] = {"color-order", "gamma",    "brightness",
                                "universe",    "priority", "sync-universe",
                                "source-name", "ttl",      "interface"};

QVector<Controller> ReadControllers(const CommandLine& line)
{
    Controller standard;
    standard.broadcast = line.IsSet("broadcast");
    QString error;
    const auto apply = [&](const QString& option, const QString& setting) {
        if (!ApplySetting(&standard, setting, &error))
            throw Misuse{option + error};
    };
    for (const QString& words : line.Values("layout")) {
        for (const QString& word : words.split(QLatin1Char(','), Qt::SkipEmptyParts))
            apply(QStringLiteral("--layout: "), word.section(QLatin1Char('='), 0, 0));
    }
    for (const char* option : settings) {
        if (line.IsSet(option))
            apply(QStringLiteral("--"),
                  QStringLiteral("%1=%2").arg(QLatin1String(option), line.Value(option)));
    }
    QVector<Controller> controllers;
    for (const QString& address : line.Values("to")) {
        Controller controller = standard;
        if (!ReadAddress(&controller, address, &error))
            throw Misuse{error};
        controllers.append(controller);
    }
    return controllers;
}

} // namespace

QVector<Option> LightOptions()
{
    return {
        Option::Text("to", "ADDRESS",
                     "Shows the scene on an LED controller: ddp://HOST, sacn://HOST (E1.31; "
                     "sacn:// alone for multicast) or artnet://HOST. May be repeated. "
                     "ddp://HOST/64,0,64x32 shows that rectangle, X,Y,WIDTHxHEIGHT, of the "
                     "display. Settings of this controller follow after commas: "
                     "ddp://HOST/16x16,serpentine,color-order=GRB."),
        Option::Text("layout", "WORDS",
                     "How the LEDs are wired, with commas between the words: rows or columns, "
                     "straight or serpentine, the corner of the first LED (top-left, top-right, "
                     "bottom-left, bottom-right), rotate-90, rotate-180 or rotate-270. Default: "
                     "rows,straight,top-left.")
            .Offering(LayoutWords()),
        Option::Text("color-order", "ORDER",
                     "The order in which an LED takes its colors, such as GRB. Default: RGB."),
        Option::Fraction("gamma", 0.1, 10, "GAMMA",
                         "Darkens middle levels as LEDs need it. Default: 1, off; 2.2 without a "
                         "value.")
            .Alone("2.2"),
        Option::Number("brightness", 0, 100, "Brightness of the LEDs in percent. Default: 100."),
        Option::Number("universe", 0, 63999,
                       "The first universe, of 170 pixels each; E1.31 and Art-Net. Default: 1."),
        Option::Number("priority", 0, 200, "Priority of the source; E1.31. Default: 100."),
        Option::Number("sync-universe", 0, 63999,
                       "The universe on which controllers are told to show a picture that is "
                       "complete; E1.31. Default: 0, none."),
        Option::Text("source-name", "NAME",
                     "The name that receivers show; E1.31. Default: Animated Text."),
        Option::Number("ttl", 1, 255,
                       "How many networks multicast may reach: 1 is this one. Default: 1."),
        Option::Text("interface", "NAME",
                     "The network interface for multicast, such as eth0. Default: the system's."),
        Option::Flag("broadcast", "Allows hosts that are broadcast addresses."),
        Option::Flag("keep", "Leaves the last picture on the LEDs. Without it they go dark."),
        Option::Text("test-pattern", "NAME",
                     "Shows no scene but pictures for setting the LEDs up: corners, order, colors, "
                     "levels, or all in turn.")
            .Alone("all")
            .Offering(TestPatterns()),
        Option::Flag("window", "Shows the scene in a window as well, with --to.")};
}

void CheckLightOptions(const CommandLine& line)
{
    for (const Option& option : LightOptions()) {
        if (line.IsSet(option.name) && !line.IsSet("to"))
            throw Misuse{QStringLiteral("--%1 needs --to").arg(QLatin1String(option.name))};
    }
    for (const char* option : {"fullscreen", "zoom", "leds"}) {
        if (line.IsSet(option) && line.IsSet("to") && !line.IsSet("window"))
            throw Misuse{
                QStringLiteral("--%1 with --to needs --window").arg(QLatin1String(option))};
    }
    const QString pattern = line.Value("test-pattern");
    if (!line.IsSet("test-pattern") && line.Arguments().isEmpty())
        throw Misuse{QStringLiteral("expected SCENE.json")};
    if (line.IsSet("test-pattern") && !line.Arguments().isEmpty())
        throw Misuse{QStringLiteral("--test-pattern shows no scene, so %1 is one word too many")
                         .arg(line.Arguments().first())};
    if (line.IsSet("test-pattern") && pattern != QLatin1String("all") &&
        !TestPatterns().contains(pattern))
        throw Misuse{QStringLiteral("--test-pattern takes %1 or all, not \"%2\"")
                         .arg(TestPatterns().join(QStringLiteral(", ")), pattern)};
}

void AddLights(const CommandLine& line, QSize display, Lights* lights)
{
    QObject::connect(lights, &Lights::Reported, Warn);
    lights->SetKeeps(line.IsSet("keep"));
    for (const Controller& controller : ReadControllers(line)) {
        QString error;
        if (!lights->Add(controller, display, &error))
            throw Failure{BadInput, error};
    }
    Print(lights->Description().toUtf8());
    FlushOutput();
}

int PlayTestPattern(const CommandLine& line)
{
    QSize display;
    for (const Controller& controller : ReadControllers(line)) {
        if (controller.rect.isEmpty())
            throw Misuse{
                QStringLiteral("%1: expected the size of the matrix, such as %2/16x16")
                    .arg(controller.address, controller.address.section(QLatin1Char('/'), 0, 2))};
        const QPoint corner = controller.rect.bottomRight() + QPoint(1, 1);
        display = display.expandedTo(QSize(corner.x(), corner.y()));
    }
    Lights lights;
    AddLights(line, display, &lights);
    WatchForInterruption();
    const int ticks = line.IsSet("seconds") ? int(line.Time("seconds")) / tickLength : -1;
    int tick = 0;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (Interrupted() || tick == ticks)
            QCoreApplication::quit();
        else
            lights.Show(TestPattern(line.Value("test-pattern"), display, tick++));
    });
    timer.start(tickLength);
    QCoreApplication::exec();
    lights.End();
    StopIfInterrupted();
    return Done;
}

} // namespace AnimText
