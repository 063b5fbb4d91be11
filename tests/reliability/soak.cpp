// Plays scenes in turn for hours of virtual time, half a minute each, and prints what is left of
// it: sessions, layers and memory. Without a scene it plays every motion before every background,
// at all speeds. Fails when something is left, when a call of the device was wrong, or when memory
// grows after the first hour.
//
//     soak [--growth MIB] HOURS [SCENE.json...]
//
// --growth is how many mebibytes memory may grow; 0: not judged. Default: 1.
#include "samples.h"
#include "testsign.h"

#include "cli/interruption.h"
#include "cli/messages.h"
#include "cli/progress.h"
#include "player/player.h"

#include <QCommandLineParser>
#include <QFile>

#include <cmath>
#include <cstdio>

#include <unistd.h>

using namespace AnimText;

namespace {

constexpr double millisecondsPerHour = 3600.0 * 1000;
constexpr double ticksPerHour = millisecondsPerHour / player::tickLength;
constexpr int turnTicks = 455; // half a minute: then the next scene
constexpr int pauseTicks = 20; // once in a turn

/** Memory of this process that is not paged out, in KiB. */
qint64 ResidentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * (sysconf(_SC_PAGESIZE) / 1024);
}

QByteArray Mebibytes(qint64 kibibytes)
{
    return QByteArray::number(double(kibibytes) / 1024, 'f', 2) + " MiB";
}

class Soak
{
public:
    Soak(const QVector<scene::Scene>& scenes, double hours)
        : scenes(scenes)
        , ticksWanted(qint64(std::ceil(hours * ticksPerHour)))
    {
    }

    /** Until the time is over, or Ctrl+C. */
    void Run();
    QByteArray Table(double mostGrowth) const;
    bool IsSound(double mostGrowth) const;

private:
    void PlayTurn(player::Player* player);
    void Advance(player::Player* player, int count);

    bool IsGrowthKnown() const { return memoryAtHour >= 0 && double(ticks) > ticksPerHour; }
    qint64 Growth() const { return memoryAtEnd - memoryAtHour; }

    QVector<scene::Scene> scenes;
    qint64 ticksWanted;

    qint64 turnsPlayed = 0;
    qint64 ticks = 0;
    int mostLayers = 0;
    int sessionsLeft = 0; // live after a turn that stopped them all
    int layersLeft = 0;
    qint64 memoryAtHour = -1; // KiB
    qint64 memoryAtEnd = 0;
    Torv::Accounting accounts = {};
};

void Soak::Advance(player::Player* player, int count)
{
    for (int i = 0; i < count; ++i)
        player->Advance();
    ticks += count;
}

/** As hosts do: a start, a look at the state now and then, a pause, a second start, a stop. */
void Soak::PlayTurn(player::Player* player)
{
    player->Start();
    Advance(player, turnTicks / 2);
    for (int pausing = 0; pausing < 2; ++pausing) {
        for (int node = 0; node < player->NodeCount(); ++node)
            player->Scenery().Render(node)->Pause();
        Advance(player, pauseTicks);
    }
    player->Picture();
    mostLayers = qMax(mostLayers, Torv::Accounts().liveLayers);
    player->Start();
    Advance(player, turnTicks - turnTicks / 2 - 2 * pauseTicks);
    player->Scenery().Stop();
}

void Soak::Run()
{
    Torv::ResetAccounts();
    cli::Progress progress;
    while (ticks < ticksWanted && !cli::Interrupted()) {
        {
            player::Player player(player::VirtualDispatcher::Current(), TestSign::Plugin());
            player.Load(scenes.at(int(turnsPlayed % scenes.size())));
            PlayTurn(&player);
        }
        ++turnsPlayed;
        accounts = Torv::Accounts();
        sessionsLeft = qMax(sessionsLeft, accounts.liveSessions);
        layersLeft = qMax(layersLeft, accounts.liveLayers);
        memoryAtEnd = ResidentMemory();
        if (memoryAtHour < 0 && double(ticks) >= ticksPerHour)
            memoryAtHour = memoryAtEnd;
        progress.Show("soaking, minutes", ticks * player::tickLength / 60000,
                      ticksWanted * player::tickLength / 60000);
    }
}

QByteArray Soak::Table(double mostGrowth) const
{
    QByteArray table;
    const auto add = [&](const char* name, const QByteArray& value) {
        table += QByteArray(name).leftJustified(20) + value.rightJustified(16) + '\n';
    };
    const auto number = [](qint64 value) { return QByteArray::number(value); };
    add("simulated hours", QByteArray::number(double(ticks) / ticksPerHour, 'f', 2));
    add("scenes", number(scenes.size()));
    add("turns", number(turnsPlayed));
    add("ticks", number(ticks));
    add("pictures shown", number(accounts.calls[Torv::OpSwapPicImageLayerPtr]));
    add("sessions made", number(accounts.calls[Torv::OpCreatePictureSession]));
    add("most layers at once", number(mostLayers));
    add("live sessions", number(sessionsLeft));
    add("live layers", number(layersLeft));
    add("wrong calls", number(accounts.Misuses()));
    add("refused, too large", number(accounts.refused));
    add("memory at hour 1", memoryAtHour < 0 ? "not reached" : Mebibytes(memoryAtHour));
    add("memory at the end", Mebibytes(memoryAtEnd));
    add("growth", IsGrowthKnown() ? Mebibytes(Growth()) : "not known");
    if (mostGrowth > 0)
        add("growth allowed", QByteArray::number(mostGrowth, 'f', 2) + " MiB");
    return table;
}

bool Soak::IsSound(double mostGrowth) const
{
    const bool grows = mostGrowth > 0 && IsGrowthKnown() && double(Growth()) >= mostGrowth * 1024;
    return ticks >= ticksWanted && sessionsLeft == 0 && layersLeft == 0 &&
           accounts.Misuses() == 0 && !grows;
}

/** A scene for every motion before every background, with and without alpha blending. */
QVector<scene::Scene> Mix(const QVector<const Sample*>& samples)
{
    QVector<scene::Scene> scenes;
    for (int i = 0; i < BackgroundCount * motionCount; ++i) {
        scene::SceneNode node =
            samples[i % samples.size()]->Node(i % motionCount, i / motionCount, i % 10);
        node.neonEffect = i % 29;
        node.hold = i % 4 * 10;
        node.attributes[QStringLiteral("PlayTimes")] = 1 + i % 3;
        node.attributes[QStringLiteral("Hollow")] = i % 5 == 0 ? 1 : 0;
        scene::Scene scene;
        scene.display = node.size;
        scene.alphaBlend = i % 2 == 0;
        scene.pages = {scene::ScenePage{{scene::SceneArea{{node}}}}};
        scenes.append(scene);
    }
    return scenes;
}

} // namespace

int main(int argc, char** argv)
{
    cli::InstallMessages();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setEventDispatcher(new CountingDispatcher);
    const QGuiApplication application(argc, argv);
    QCommandLineParser line;
    line.addOption(
        {QStringLiteral("growth"), QString(), QStringLiteral("MIB"), QStringLiteral("1")});
    line.process(application);
    const QStringList words = line.positionalArguments();
    bool isTime = false, isGrowth = false;
    const double hours = words.value(0).toDouble(&isTime);
    const double growth = line.value(QStringLiteral("growth")).toDouble(&isGrowth);
    if (!isTime || !isGrowth || !(hours >= 0 && hours <= 24 * 366) || !(growth >= 0)) {
        std::fputs("expected: soak [--growth MIB] HOURS [SCENE.json...]\n", stderr);
        return 2;
    }

    cli::EndAtInterruption();
    cli::WatchForInterruption(); // before there are folders to leave behind
    QVector<scene::Scene> scenes;
    for (const QString& path : words.mid(1)) {
        QString error;
        scenes.append(scene::Scene());
        if (!scene::ReadScene(path, &scenes.last(), &error)) {
            std::fprintf(stderr, "%s\n", qPrintable(error));
            return 2;
        }
    }
    // A text of one page, one of several, and one with characters that have no outline.
    const QSize area(96, 24);
    const Sample one(QStringLiteral("Hello"), area);
    const Sample several(QStringLiteral("Platform 7 departs at noon"), area);
    const Sample gaps(QStringLiteral("a b c"), area);
    Soak soak(scenes.isEmpty() ? Mix({&one, &several, &gaps}) : scenes, hours);
    soak.Run();
    std::fputs(soak.Table(growth).constData(), stdout);
    if (cli::Interrupted())
        return cli::InterruptionStatus();
    if (!soak.IsSound(growth)) {
        std::fputs("The soak failed.\n", stderr);
        return 1;
    }
    return 0;
}
