#include "film/film.h"

#include "files/failure.h"
#include "film/lamps.h"

#include <hneonnodebase.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace AnimText::film {

namespace {

constexpr int ticksOfAnHour = 3600 * 1000 / player::tickLength;

int TicksOf(qint64 milliseconds)
{
    const qint64 ticks = (milliseconds + player::tickLength - 1) / player::tickLength;
    return int(std::min<qint64>(ticks, ticksOfAnHour + 1));
}

} // namespace

Film::Film(player::Player* player, const scene::Scene& scene, const FilmSettings& settings,
           const FilmWatch& watch)
    : player(player)
    , scene(scene)
    , settings(settings)
{
    const int wanted = std::max(1, int(std::lround(settings.seconds * 1000 / player::tickLength)));
    schedule = settings.schedule ? player::HostSchedule(scene, player->Durations())
                                 : player::AllAtOnce(player->NodeCount());
    if (settings.schedule) {
        frameCount = std::max(1, TicksOf(schedule.length));
        if (settings.seconds > 0)
            frameCount = std::min(frameCount, wanted);
    } else {
        frameCount = settings.seconds > 0 ? wanted : FindEnd(watch);
    }
    files::FailUnless(
        frameCount <= ticksOfAnHour || settings.seconds > 0,
        QStringLiteral("%1: does not end within an hour; choose a part of it, for instance "
                       "--seconds 60")
            .arg(scene.path),
        files::BadInput);
}

QSize Film::FrameSize() const
{
    const QSize size = scene.display * settings.scale;
    const QSize odd(size.width() % 2, size.height() % 2);
    return settings.evenSize ? size + odd : size;
}

int Film::FindEnd(const FilmWatch& watch)
{
    const timing::BlankScene blank(scene);
    player->Load(blank.Get());
    const auto look = [&](int tick) {
        if (watch)
            watch(FilmStage::End, tick, 0);
    };
    const QVector<timing::NodePlay> plays =
        timing::PlayToEnd(player, ticksOfAnHour + 1, settings.seed, look);
    int frames = 1;
    for (int node = 0; node < plays.size(); ++node) {
        const timing::NodePlay& play = plays.at(node);
        if (play.ending == timing::Ending::TooLong)
            return ticksOfAnHour + 1;
        if (play.ending != timing::Ending::Finishes) {
            frames = std::max(frames, TicksOf(play.end)); // the one after the last is the first
            continue;
        }
        const int hold = player->Scenery().Node(node)->GetHoldTime();
        const int rest = settings.restAtEnd ? std::max(0, hold) : 0;
        frames = std::max(frames, TicksOf(play.end + rest * 100LL) + 1);
        restTick = std::max(restTick, play.finishedTick);
    }
    return frames;
}

/** @p shown, scaled to @p part, in a picture of @p size with the background. */
QImage Film::OnBackground(const QImage& shown, QSize part, QSize size) const
{
    if (shown.size() == size && IsTransparent())
        return shown;
    QImage frame(size, IsTransparent() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    frame.fill(IsTransparent() ? QColor(Qt::transparent) : settings.background);
    QPainter painter(&frame);
    if (IsTransparent())
        painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QRect(QPoint(0, 0), part), shown);
    return frame;
}

QImage Film::Picture() const
{
    QImage shown = player->Picture();
    if (settings.pitch > 0)
        shown = AsLamps(OnBackground(shown, scene.display, scene.display), settings.scale,
                        settings.pitch);
    return OnBackground(shown, scene.display * settings.scale, FrameSize());
}

void Film::Play(const QVector<int>& wanted, const TakePicture& take)
{
    // Some state outlives a restart, for example the dazzle colors.
    player->Load(scene);
    player->Start(schedule, settings.seed);
    for (int frame : wanted) {
        while (player->Tick() < frame) {
            Rest();
            player->Advance();
        }
        take(frame, Picture());
    }
}

/** Freezes what has finished, once its last hold is over. */
void Film::Rest()
{
    if (player->Tick() != restTick)
        return;
    for (int node = 0; node < player->NodeCount(); ++node) {
        if (player->State(node) == 0 && !player->Scenery().Motion(node).IsSideways())
            player->Scenery().Render(node)->Pause();
    }
}

} // namespace AnimText::film
