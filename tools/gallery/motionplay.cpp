#include "gallery/motionplay.h"

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

MotionPlay PlayMotion(player::Player* player, const scene::Scene& scene, uint seed,
                      const std::function<void()>& goOn, PictureSheets* sheets)
{
    player->Load(scene);
    MotionPlay play;
    play.planned = player->Durations().first();
    player->Start(seed);
    int shown = sheets->Add(player->Picture());
    Show(shown, &play);

    const scene::NodeMotion motion = player->Scenery().Motion(0);
    const bool isDevices = motion.IsSideways();
    const qint64 pass = isDevices ? timing::ScrollPass(player->Scenery(), 0) : 0;
    const int longest = isDevices ? int(pass / player::tickLength) : timing::ticksOfADay;
    while (player->Tick() < longest && (isDevices || player->State(0) == 1)) {
        player->Advance();
        goOn();
        if (isDevices || player->Swapped(0))
            shown = sheets->Add(player->Picture());
        Show(shown, &play);
    }
    if (isDevices)
        return play;
    play.actual = player->Time();
    if (motion.mode != scene::Mode::Entrance)
        return play;
    const auto watch = [&](int) { goOn(); };
    play.pages = timing::MeasurePages(player, scene, longest, watch).first().pages;
    return play;
}

} // namespace AnimText::gallery
