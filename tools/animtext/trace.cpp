#include "animtext/commands.h"
#include "animtext/shared/playoptions.h"
#include "player/callline.h"
#include "scene/json.h"

namespace AnimText::animtext {

namespace {

QByteArray TickLine(player::Player* player, int node)
{
    const int layer = player->Scenery().TextLayer(node);
    const player::NodeTick now = player->Look(node);
    scene::Json line = scene::Json::Object({{"tick", now.tick},
                                            {"ms", player->Time()},
                                            {"node", node},
                                            {"swap", now.swapped},
                                            {"layer", layer < 0 ? 0 : layer},
                                            {"w", now.size.width()},
                                            {"h", now.size.height()},
                                            {"sha1", now.sha1},
                                            {"state", now.state}});
    if (!now.background.isEmpty())
        line.Add("background", now.background);
    return line.Text() + '\n';
}

void TraceScene(const cli::CommandLine& line)
{
    const int ticks = line.Get<int>("ticks");
    const scene::Scene scene = shared::OpenReadableScene(line, line.Arguments().first());
    const std::unique_ptr<player::Player> player = shared::PlayerOf(line, scene);

    if (line.IsSet("calls"))
        player->Scenery().WatchCalls(
            [](const Torv::CallRecord& call) { cli::Print(player::CallLine(call) + '\n'); });
    player->Start(shared::SeedOf(line));
    for (;; player->Advance()) {
        for (int node = 0; node < player->NodeCount(); ++node)
            cli::Print(TickLine(player.get(), node));
        if (player->Tick() == ticks)
            return;
    }
}

} // namespace

cli::Command TraceCommand()
{
    return {
        "trace",
        "print each tick of a play as JSON lines",
        {"SCENE.json", 1, 1},
        "Plays a scene on virtual time and prints a JSON line for each text and each tick of 66 "
        "ms, from tick 0: whether the display got a new picture of the text, its layer, its size, "
        "the SHA-1 of its rows, and the renderer's state (0 finished, 1 playing, 2 nothing to "
        "play). A dazzle background adds its SHA-1.",
        shared::WithShowOptions(
            {Option::Number("ticks", 0, 1000000000, "Last tick.").Letter('n').Or("100"),
             Option::Flag("calls", "Print the device calls of each tick before its lines.")}),
        TraceScene,
        {"animtext trace sign.json --ticks 20", "animtext trace sign.json --calls >sign.trace"}};
}

} // namespace AnimText::animtext
