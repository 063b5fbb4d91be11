// The renderer's play operations and its tick.
#include "render/hanimationtextrender.h"

#include "device/device.h"
#include "engine/animationrealization.h"
#include "node/attribute.h"
#include "node/hanimationtextnode.h"
#include "node/motions.h"

#include <hpluginmanager.h>

namespace Lw {
namespace HNodeAnimationText {

namespace {

enum State { Finished = 0, Playing = 1, NothingToPlay = 2 };

} // namespace

HAnimationTextRender::HAnimationTextRender(HAnimationTextNode* node)
    : node(node)
    , state(Playing)
    , engine(new animationRealization(0))
    , imageFormat(HPluginManager::instance()->SuportAlphaBlend(node) ? QImage::Format_ARGB32
                                                                     : QImage::Format_RGB888)
{
    KeepTime(drawTimer);
    connect(&drawTimer, SIGNAL(timeout()), this, SLOT(UpdateDraw()));
}

HAnimationTextRender::~HAnimationTextRender()
{
    drawTimer.stop();
    engine->Stop();
    // Before the session, because the engine paints into its layers.
    delete engine;
    engine = 0;
    ReleaseSession();
}

/** Whether the device moves the text. */
bool HAnimationTextRender::ScrollsSideways() const
{
    return IsScrolledByDevice(Attribute(node, "EffectType"), Attribute(node, "ContinueStyle"));
}

void HAnimationTextRender::Start(unsigned int newDisplayHandle)
{
    if (!node || newDisplayHandle == 0) {
        state = NothingToPlay;
        return;
    }
    displayHandle = newDisplayHandle;
    state = Playing;
    playedTimes = 0;
    firstTick = true;
    startTime = QDateTime::currentDateTime();
    Stop();

    if (node->Text().trimmed().isEmpty()) {
        state = NothingToPlay;
        return;
    }
    engine->Init(node);
    engine->Start();
    UpdateDraw();
    drawTimer.start(tickInterval);
    // The device scrolls until it is stopped; the host need not wait for it.
    if (ScrollsSideways())
        state = Finished;
}

void HAnimationTextRender::Pause()
{
    paused = !paused;
    engine->Pause(paused);
    if (paused)
        drawTimer.stop();
    else
        drawTimer.start(tickInterval);
}

void HAnimationTextRender::Stop()
{
    drawTimer.stop();
    engine->dazzleTimer.stop();
    ReleaseSession();
}

void HAnimationTextRender::Remove()
{
    Stop();
}

void HAnimationTextRender::PlayNext()
{
    if (!paused && node)
        node->Text();
}

int HAnimationTextRender::renderState()
{
    return state;
}

void HAnimationTextRender::UpdateDraw()
{
    // Before Start() there is no display, although Pause() may have started the timer.
    if (paused || displayHandle == 0 || !node || node->Text().isEmpty())
        return;
    if (firstTick) {
        firstTick = false;
        DrawFirstTick();
        return;
    }
    const int mode = Attribute(node, "EffectType");
    const int style = Attribute(node, "ContinueStyle");
    const bool frameByFrame =
        mode == Mode::Entrance ||
        (mode == Mode::Scroll && (style == Scroll::Up || style == Scroll::Down));
    if (!frameByFrame)
        return;

    engine->PrepareImage();
    playedTimes = engine->GetDisplayTimes();
    if (playedTimes >= Attribute(node, "PlayTimes")) {
        playedTimes = 0;
        state = Finished;
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
