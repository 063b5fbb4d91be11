#include "animtext/commands.h"
#include "animtext/shared/playoptions.h"
#include "player/callline.h"
#include "scene/json.h"

namespace AnimText {

namespace {

/** The last picture of a node's text layer. */
struct Shown
{
    QSize size{0, 0};
    QByteArray sha1;
};

class Trace
{
public:
    explicit Trace(Player* player)
        : player(player)
        , shown(player->NodeCount())
    {
    }

    QByteArray TickLines();

private:
    QByteArray Line(int node);

    Player* player;
    QVector<Shown> shown;
};

QByteArray Trace::Line(int node)
{
    const int layer = player->Scenery().TextLayer(node);
    if (player->Swapped(node) || player->Tick() == 0) {
        const QImage picture = player->TextPicture(node);
        shown[node] = {picture.size(), Sha1Of(picture)};
    }
    const QSize size = shown.at(node).size;
    const QImage dazzle = player->DazzlePicture(node);
    Json line = Json::Object({{"tick", player->Tick()},
                              {"ms", player->Time()},
                              {"node", node},
                              {"swap", player->Swapped(node)},
                              {"layer", layer < 0 ? 0 : layer},
                              {"w", size.width()},
                              {"h", size.height()},
                              {"sha1", shown.at(node).sha1},
                              {"state", player->State(node)}});
    if (!dazzle.isNull())
        line.Add("background", Sha1Of(dazzle));
    return line.Text() + '\n';
}

QByteArray Trace::TickLines()
{
    QByteArray lines;
    for (const Torv::CallRecord& call : player->Scenery().TakeCalls())
        lines += CallLine(call) + '\n';
    for (int node = 0; node < player->NodeCount(); ++node)
        lines += Line(node);
    return lines;
}

int TraceScene(const CommandLine& line)
{
    const int ticks = line.Number("ticks");
    const Scene scene = OpenReadableScene(line, line.Arguments().first());
    const Playing playing(line);
    const std::unique_ptr<Player> player = playing.Load(scene);

    player->Scenery().KeepCalls(line.IsSet("calls"));
    player->Start(playing.Seed());
    Trace trace(player.get());
    for (;;) {
        Print(trace.TickLines());
        if (player->Tick() == ticks)
            return Done;
        player->Advance();
    }
}

} // namespace

Command TraceCommand()
{
    return {
        "trace",
        "print each tick of a play as JSON lines",
        "SCENE.json",
        1,
        1,
        "Plays a scene on virtual time and prints a JSON line for each text and each tick of 66 "
        "ms, from tick 0: whether the display got a new picture of the text, its layer, its size, "
        "the SHA-1 of its rows, and the renderer's state (0 finished, 1 playing, 2 nothing to "
        "play). A dazzle background adds its SHA-1.",
        WithShowOptions(
            {Option::Number("ticks", 0, 1000000000, "Last tick.").Letter('n').Or("100"),
             Option::Flag("calls", "Print the device calls of each tick before its lines.")}),
        TraceScene,
        {"animtext trace sign.json --ticks 20", "animtext trace sign.json --calls >sign.trace"}};
}

} // namespace AnimText
