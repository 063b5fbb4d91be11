#include "gallery/motionplay.h"

#include "scene/motion.h"

namespace AnimText::gallery {

namespace {

/** Adds a tick in which @p picture is seen. */
void Show(int picture, MotionPlay* play)
{
    if (play->runs.isEmpty() || play->runs.last().picture != picture)
        play->runs.append({picture, 0});
    ++play->runs.last().ticks;
    ++play->ticks;
}

} // namespace

bool PlayMotion(player::Player* player, const scene::Scene& scene, uint seed,
                const std::function<bool()>& goOn, PictureSheets* sheets, MotionPlay* play,
                QString* error)
{
    *play = MotionPlay();
    if (!player->Load(scene, error))
        return false;
    play->planned = player->Durations().first();
    player->Start(seed);
    int shown = sheets->Add(player->Picture());
    Show(shown, play);

    const bool isDevices = player->Scenery().Motion(0).IsSideways();
    const qint64 pass = isDevices ? timing::ScrollPass(player->Scenery(), 0) : 0;
    const int longest = isDevices ? int(pass / player::tickLength) : timing::ticksOfADay;
    while (player->Tick() < longest && (isDevices || player->State(0) == 1)) {
        player->Advance();
        if (!goOn()) {
            *error = "interrupted";
            return false;
        }
        if (isDevices || player->Swapped(0))
            shown = sheets->Add(player->Picture());
        Show(shown, play);
    }
    if (isDevices)
        return true;
    play->actual = player->Time();
    if (scene::MotionOf(*scene.Nodes().first()).mode != scene::Mode::Entrance)
        return true;
    const auto watch = [&](int) { return goOn(); };
    const QVector<timing::NodePlay> plays =
        timing::MeasurePages(player, scene, longest, watch, error);
    if (plays.isEmpty()) {
        if (error->isEmpty())
            *error = "interrupted";
        return false;
    }
    play->pages = plays.first().pages;
    return true;
}

} // namespace AnimText::gallery
