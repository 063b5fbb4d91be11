#include "animtext/commands.h"
#include "animtext/shared/playoptions.h"
#include "animtext/soakmix.h"
#include "cli/interruption.h"
#include "cli/progress.h"

#include "files/wholefile.h"

#include <display.h>

#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <memory>

#include <unistd.h>

namespace AnimText {

namespace {

constexpr double millisecondsPerHour = 3600.0 * 1000;
constexpr double ticksPerHour = millisecondsPerHour / tickLength;
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
    Soak(const QVector<Scene>& scenes, double hours, const Playing& playing)
        : scenes(scenes)
        , ticksWanted(qint64(std::ceil(hours * ticksPerHour)))
        , playing(playing)
    {
    }

    /** Until the time is over or somebody breaks it off. */
    void Run();
    QByteArray Table(double mostGrowth) const;
    bool IsSound(double mostGrowth) const;

private:
    void PlayTurn(Player* player);
    void Advance(Player* player, int count);

    bool IsGrowthKnown() const { return memoryAtHour >= 0 && double(ticks) > ticksPerHour; }
    qint64 Growth() const { return memoryAtEnd - memoryAtHour; }

    QVector<Scene> scenes;
    qint64 ticksWanted;
    Playing playing;

    qint64 turnsPlayed = 0;
    qint64 ticks = 0;
    int mostLayers = 0;
    int sessionsLeft = 0; // live after a turn that stopped them all
    int layersLeft = 0;
    qint64 memoryAtHour = -1; // KiB
    qint64 memoryAtEnd = 0;
    Torv::Accounting accounts = {};
};

void Soak::Advance(Player* player, int count)
{
    for (int i = 0; i < count; ++i)
        player->Advance();
    ticks += count;
}

/** As hosts do: a start, a look at the state now and then, a pause, a second start, a stop. */
void Soak::PlayTurn(Player* player)
{
    player->Start(playing.Seed());
    Advance(player, turnTicks / 2);
    for (int pausing = 0; pausing < 2; ++pausing) {
        for (int node = 0; node < player->NodeCount(); ++node)
            player->Scenery().Render(node)->Pause();
        Advance(player, pauseTicks);
    }
    player->Picture();
    mostLayers = qMax(mostLayers, Torv::Accounts().liveLayers);
    player->Start(playing.Seed());
    Advance(player, turnTicks - turnTicks / 2 - 2 * pauseTicks);
    player->Scenery().Stop();
}

void Soak::Run()
{
    Torv::ResetAccounts();
    Progress progress(QStringLiteral("soaking, minutes"), ticksWanted * tickLength / 60000);
    while (ticks < ticksWanted && !Interrupted()) {
        {
            const Scene& scene = scenes.at(int(turnsPlayed % scenes.size()));
            const std::unique_ptr<Player> player = playing.Load(scene);
            PlayTurn(player.get());
        }
        ++turnsPlayed;
        accounts = Torv::Accounts();
        sessionsLeft = qMax(sessionsLeft, accounts.liveSessions);
        layersLeft = qMax(layersLeft, accounts.liveLayers);
        memoryAtEnd = ResidentMemory();
        if (memoryAtHour < 0 && double(ticks) >= ticksPerHour)
            memoryAtHour = memoryAtEnd;
        progress.Show(ticks * tickLength / 60000);
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

int SoakScenes(const CommandLine& line)
{
    QVector<Scene> scenes;
    for (const QString& path : line.Arguments())
        scenes.append(OpenReadableScene(line, path));
    WatchForInterruption(); // before there is a folder to leave behind
    std::unique_ptr<QTemporaryDir> folder;
    if (scenes.isEmpty()) {
        QString error;
        folder = std::make_unique<QTemporaryDir>(TemporaryName());
        if (!IsMade(*folder, &error))
            throw Failure{FailedRun, error};
        scenes = SoakMix(
            QDir(folder->path()), [] { return !Interrupted(); }, &error);
        StopIfInterrupted();
        if (scenes.isEmpty())
            throw Failure{FailedRun, error};
    }
    Soak soak(scenes, line.Time("hours") / millisecondsPerHour, Playing(line));
    soak.Run();
    Print(soak.Table(line.Fraction("growth")));
    StopIfInterrupted();
    if (!soak.IsSound(line.Fraction("growth")))
        throw Failure{FailedRun, QStringLiteral("the soak failed")};
    return Done;
}

} // namespace

Command SoakCommand()
{
    return {"soak",
            "plays scenes for hours of virtual time and tells what is left of it",
            "[SCENE.json...]",
            0,
            10000,
            "Plays scenes in turn for hours of virtual time, half a minute each, and tells what "
            "is left of it: sessions, layers and memory. Without a scene it plays every motion "
            "before every background. The exit status is 1 when something is left, when a call "
            "of the device was wrong, or when memory grows after the first hour.",
            WithShowOptions(
                {Option::Time("hours", int(millisecondsPerHour), 0, 24 * 366, "TIME",
                              "How long in virtual time, as in 24h or 90min.")
                     .Or("24h"),
                 Option::Fraction("growth", 0, 1e6, "MIB",
                                  "How much memory may grow after the first hour; 0: not judged.")
                     .Or("1")}),
            SoakScenes};
}

} // namespace AnimText
