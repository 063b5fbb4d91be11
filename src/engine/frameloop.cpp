// What a tick does: lets it pass, paints the next frame of the effect, or holds the finished page.
#include "engine/animationrealization.h"

#include "node/hanimationtextnode.h"

#include <torvsdk.h>

#include <QPainter>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int writeMode = 5; // of GetPicImageLayerPtr

// Speeds are 0 .. 9. What lies outside slows down or hurries up, within what counters can hold.
const qint64 maxTicksPerFrame = 1 << 24;
const qint64 maxStep = 1 << 16;

PicSession SessionHandle(void* session)
{
    return static_cast<PicSession>(reinterpret_cast<quintptr>(session));
}

int Successor(int counter)
{
    return static_cast<int>((static_cast<unsigned int>(counter) + 1u) & 0x7FFFFFFFu);
}

} // namespace

void animationRealization::PrepareImage()
{
    if (text.isEmpty() || paused)
        return;

    // Characters that appear or shake at once are paced by the ticks between two frames.
    const bool slowFamily = effectType == 0 && (animationEffect == 4 || animationEffect == 8 ||
                                                animationEffect == 19 || animationEffect == 20);
    if (slowFamily) {
        const qint64 ticks = qBound(qint64(1), qint64(10) - speed, maxTicksPerFrame);
        if (tickCounter % ticks == 0) {
            stepSize = static_cast<int>(ticks);
            DrawOrHold(ticks, 1);
        }
        tickCounter = Successor(tickCounter);
        return;
    }

    if (speed > 4) {
        stepSize = static_cast<int>(qMin(qint64(speed) - 4, maxStep));
        DrawOrHold(1, 1);
        return;
    }

    const qint64 ticks = qMin(qint64(6) - speed, maxTicksPerFrame);
    const bool everyTick = effectType == 1 && (continueStyle == 0 || continueStyle == 1);
    if (tickCounter % ticks == 0 || everyTick) {
        stepSize = 1;
        // From 2, not 1: at these speeds every hold after the first is one visit shorter.
        DrawOrHold(ticks, 2);
    }
    tickCounter = Successor(tickCounter);
}

void animationRealization::DrawOrHold(qint64 ticksPerFrame, int counterAfterHold)
{
    if (isDrawing) {
        DrawAndUpdateImage();
        return;
    }
    UpdateStayImage();
    if (qint64(stayCounter) * frameInterval * ticksPerFrame >= qint64(holdTime) * 100) {
        stayCounter = counterAfterHold;
        isDrawing = true;
    } else {
        stayCounter = Successor(stayCounter);
    }
}

void animationRealization::DrawAndUpdateImage()
{
    stayImageReady = 0;
    if (text.isEmpty() || paused)
        return;
    WrapLayer();
    runEnded = false;
    Dispatch();
    SwapLayer();
    if (playCount >= playTimes)
        playFinished = true;
}

/** Makes the layer's back buffer the picture, so that painting writes straight into it. */
void animationRealization::WrapLayer()
{
    if (!pictureSession)
        return;
    if (!layerBuffer)
        layerBuffer = reinterpret_cast<uchar*>(
            GetPicImageLayerPtr(static_cast<PicDisplay>(sessionDisplay),
                                SessionHandle(pictureSession), sessionLayer, writeMode));

    const QSize size(CountSize(true).width(), areaSize.height());
    QImage layer;
    if (layerBuffer && size.width() > 0 && size.height() > 0)
        layer = QImage(layerBuffer, size.width(), size.height(), imageFormat);
    const qint64 bytes = qint64(layer.bytesPerLine()) * layer.height();
    if (layer.isNull() || (layerBytes >= 0 && bytes > layerBytes)) {
        // The device has no buffer for this frame. The motion goes on as if it had one.
        drawImage = NewCanvas(size, imageFormat);
        return;
    }
    drawImage = layer;
}

/** Shows what was painted. */
void animationRealization::SwapLayer()
{
    if (!pictureSession)
        return;
    layerBuffer = reinterpret_cast<uchar*>(SwapPicImageLayerPtr(
        static_cast<PicDisplay>(sessionDisplay), SessionHandle(pictureSession), sessionLayer));
}

void animationRealization::Dispatch()
{
    if (effectType == 1) {
        switch (continueStyle) {
        case 0: ContinueEffectLeft(); break;
        case 1: ContinueEffectRight(); break;
        case 2: ContinueEffectUp(); break;
        case 3: ContinueEffectDown(); break;
        default: break;
        }
        return;
    }
    if (effectType != 0)
        return;
    switch (animationEffect) {
    case 0: FlyFromLeftEffect(); break;
    case 1: FlyFromRightEffect(); break;
    case 2: FlyFromTopEffect(); break;
    case 3: FlyFromBottomEffect(); break;
    case 4: WordForWordOutputEffect(); break;
    case 5: WavesEffect(); break;
    case 6: SwingEffect(); break;
    case 7: BeforeAfterScalEffect(); break;
    case 8: TrembleEffect(); break;
    case 9: WordForWordAmplificationEffect(); break;
    case 10: WordForWordNarrowEffect(); break;
    case 11: RotationEffect(); break;
    case 12: RotationTrundleEffect(); break;
    case 13: AngleRotationEffect(); break;
    case 14: EffectInTurnFlips(); break;
    case 15: EffectInTurnUpwardZoom(); break;
    case 16: EffectInTurnDrop(); break;
    case 17: Effect45DegreeAngleDrop(); break;
    case 18: EffectZoomIn(); break;
    case 19: EffectTopWithFrogAppearsVerbatim(); break;
    case 20: EffectTopWithFrog(); break;
    case 21: EffectRightToEnlarge(); break;
    case 22: EffectDiagonalMoves(); break;
    case 23: EffectRepeatTheWhereabouts(); break;
    case 24: EffectFromBothSidesInOrderToEnlarge(); break;
    case 25: Effect3DHorizontalRotation(); break;
    case 26: EffectFlipsInto(); break;
    case 27: EffectRotateInto(); break;
    case 28: EffectTextZoom(); break;
    case 29: EffectShake(); break;
    default: break;
    }
}

void animationRealization::UpdateStayImage()
{
    if (!stayImageReady) {
        stayImageReady = 1;
        WrapLayer();
        if (BeginFrame()) {
            AddHeldPage();
            EndFrame();
        }
        SwapLayer();
    }
    if (node && node->GetAttributeToInt(QString::fromLatin1("CheckDazzle")) == 1 && PlaysFrogs())
        DrawDazzleBackground();
    ++frameCount;
}

/** The finished page at rest. */
void animationRealization::AddHeldPage()
{
    const int first = pageBreaks.value(stayPageIndex - 1);
    const int bound = pageBreaks.value(stayPageIndex);
    const int offset = pageOffsets.value(stayPageIndex - 1);
    const int middle = maxTextHeight / 2;
    const int half = drawImage.height() / 2;
    if (animationEffect != 1) {
        for (int k = first; k < bound && k < charPaths.size(); ++k)
            AddGlyph(k, charPositions.value(k) - offset, middle - charDescents.value(k) + half);
        return;
    }
    // Pages that are counted from the end of the text stand at the right edge.
    const int right = drawImage.width() - offset - charWidths.value(first);
    for (int k = first; k > bound; --k)
        AddGlyph(k, right + charPositions.value(k), middle - charDescents.value(k) + half);
}

/** The effects that draw the dazzle background with their own frames. */
bool animationRealization::PlaysFrogs() const
{
    return effectType == 0 && (animationEffect == 19 || animationEffect == 20);
}

void animationRealization::UpdateDazzleBackground()
{
    if (!node || node->GetAttributeToInt(QString::fromLatin1("CheckDazzle")) != 1)
        return;
    if (PlaysFrogs()) {
        dazzleTimer.stop();
        return;
    }
    dazzleTimer.start(frameInterval);
    DrawDazzleBackground();
}

} // namespace HNodeAnimationText
} // namespace Lw
