// What a tick does: nothing, paint the next frame of the effect, or hold the finished page.
#include "engine/animationrealization.h"

#include "device/device.h"
#include "node/attribute.h"
#include "node/hanimationtextnode.h"
#include "node/motions.h"

namespace Lw {
namespace HNodeAnimationText {

namespace {

// Speeds are 0 to 9. Others are slower or faster, as far as the counters allow.
const qint64 maxTicksPerFrame = 1 << 24;
const qint64 maxStep = 1 << 16;

int Successor(int counter)
{
    return static_cast<int>((static_cast<unsigned int>(counter) + 1u) & 0x7FFFFFFFu);
}

} // namespace

void animationRealization::PrepareImage()
{
    if (text.isEmpty() || paused)
        return;

    if (IsPacedByTicks(effectType, animationEffect)) {
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
    if (tickCounter % ticks == 0 || IsScrolledByDevice(effectType, continueStyle)) {
        stepSize = 1;
        // From 2, not 1: at these speeds every hold after the first is one tick shorter.
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
        // The device has no buffer for this frame. The motion continues as if it had one.
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
    if (effectType == Mode::Scroll) {
        switch (continueStyle) {
        case Scroll::Left: ContinueEffectLeft(); break;
        case Scroll::Right: ContinueEffectRight(); break;
        case Scroll::Up: ContinueEffectUp(); break;
        case Scroll::Down: ContinueEffectDown(); break;
        default: break;
        }
        return;
    }
    if (effectType != Mode::Entrance)
        return;
    switch (animationEffect) {
    case Entrance::FlyFromLeft: FlyFromLeftEffect(); break;
    case Entrance::FlyFromRight: FlyFromRightEffect(); break;
    case Entrance::FlyFromTop: FlyFromTopEffect(); break;
    case Entrance::FlyFromBottom: FlyFromBottomEffect(); break;
    case Entrance::WordForWordOutput: WordForWordOutputEffect(); break;
    case Entrance::Waves: WavesEffect(); break;
    case Entrance::Swing: SwingEffect(); break;
    case Entrance::BeforeAfterScal: BeforeAfterScalEffect(); break;
    case Entrance::Tremble: TrembleEffect(); break;
    case Entrance::WordForWordAmplification: WordForWordAmplificationEffect(); break;
    case Entrance::WordForWordNarrow: WordForWordNarrowEffect(); break;
    case Entrance::Rotation: RotationEffect(); break;
    case Entrance::RotationTrundle: RotationTrundleEffect(); break;
    case Entrance::AngleRotation: AngleRotationEffect(); break;
    case Entrance::InTurnFlips: EffectInTurnFlips(); break;
    case Entrance::InTurnUpwardZoom: EffectInTurnUpwardZoom(); break;
    case Entrance::InTurnDrop: EffectInTurnDrop(); break;
    case Entrance::AngleDrop45Degree: Effect45DegreeAngleDrop(); break;
    case Entrance::ZoomIn: EffectZoomIn(); break;
    case Entrance::TopWithFrogAppearsVerbatim: EffectTopWithFrogAppearsVerbatim(); break;
    case Entrance::TopWithFrog: EffectTopWithFrog(); break;
    case Entrance::RightToEnlarge: EffectRightToEnlarge(); break;
    case Entrance::DiagonalMoves: EffectDiagonalMoves(); break;
    case Entrance::RepeatTheWhereabouts: EffectRepeatTheWhereabouts(); break;
    case Entrance::FromBothSidesInOrderToEnlarge: EffectFromBothSidesInOrderToEnlarge(); break;
    case Entrance::HorizontalRotation3D: Effect3DHorizontalRotation(); break;
    case Entrance::FlipsInto: EffectFlipsInto(); break;
    case Entrance::RotateInto: EffectRotateInto(); break;
    case Entrance::TextZoom: EffectTextZoom(); break;
    case Entrance::Shake: EffectShake(); break;
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
    if (DazzleIsOn(node) && PlaysFrogs(effectType, animationEffect))
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
    if (animationEffect != Entrance::FlyFromRight) {
        for (int k = first; k < bound && k < charPaths.size(); ++k)
            AddGlyph(k, charPositions.value(k) - offset, middle - charDescents.value(k) + half);
        return;
    }
    // Pages that are counted from the end of the text are aligned to the right edge.
    const int right = drawImage.width() - offset - charWidths.value(first);
    for (int k = first; k > bound; --k)
        AddGlyph(k, right + charPositions.value(k), middle - charDescents.value(k) + half);
}

void animationRealization::UpdateDazzleBackground()
{
    if (!DazzleIsOn(node))
        return;
    if (PlaysFrogs(effectType, animationEffect)) {
        dazzleTimer.stop();
        return;
    }
    dazzleTimer.start(frameInterval);
    DrawDazzleBackground();
}

} // namespace HNodeAnimationText
} // namespace Lw
