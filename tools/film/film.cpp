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

int Film::PlannedFrames(const QVector<timing::NodePlay>& plays)
{
    int lastTick = 0;
    restTick = -1;
    comesToRest = QVector<bool>(plays.size(), false);
    for (int node = 0; node < plays.size(); ++node) {
        Lw::HNeonNodeBase* animated = player->Scenery().Node(node);
        switch (plays.at(node).ending) {
        case timing::Ending::Finishes: {
            comesToRest[node] = true;
            const int rest = settings.restAtEnd ? std::max(0, animated->GetHoldTime()) : 0;
            restTick = std::max(restTick, plays.at(node).finishedTick);
            lastTick = std::max(lastTick, plays.at(node).finishedTick + TicksOf(rest * 100LL));
            break;
        }
        case timing::Ending::ScrollsOn:
            // The picture after the last one is the first.
            lastTick = std::max(lastTick, TicksOf(timing::ScrollPass(player->Scenery(), node)) - 1);
            break;
        case timing::Ending::StandsStill:
            lastTick = std::max(lastTick, TicksOf(animated->Duration()) - 1);
            break;
        case timing::Ending::NothingToPlay: break;
        case timing::Ending::TooLong: return ticksOfAnHour + 1;
        }
    }
    return lastTick + 1;
}

int Film::FindEnd(const FilmWatch& watch)
{
    const timing::BlankScene blank(scene);
    QString error;
    files::FailUnless(player->Load(blank.Get(), &error), error, files::BadInput);
    const auto look = [&](int tick) {
        if (watch)
            watch(FilmStage::End, tick, 0);
        return true;
    };
    return PlannedFrames(timing::PlayToEnd(player, ticksOfAnHour + 1, settings.seed, look));
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
    QString error;
    files::FailUnless(player->Load(scene, &error), error);
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
    for (int node = 0; node < comesToRest.size(); ++node) {
        if (comesToRest.at(node))
            player->Scenery().Render(node)->Pause();
    }
}

} // namespace AnimText::film
