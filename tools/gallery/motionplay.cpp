#include "gallery/motionplay.h"

#include "files/failure.h"

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
    QString error;
    files::FailUnless(player->Load(scene, &error), error);
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
    const auto watch = [&](int) {
        goOn();
        return true;
    };
    const QVector<timing::NodePlay> plays =
        timing::MeasurePages(player, scene, longest, watch, &error);
    files::FailUnless(!plays.isEmpty(), error);
    play.pages = plays.first().pages;
    return play;
}

} // namespace AnimText::gallery
