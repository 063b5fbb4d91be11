// The renderer's picture session on the device: its layers, their stacking and its scrolling.
#include "render/hanimationtextrender.h"

#include "device/device.h"
#include "engine/animationrealization.h"
#include "node/attribute.h"
#include "node/hanimationtextnode.h"
#include "text/wrapping.h"

#include <hpluginmanager.h>

#include <QDebug>

#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int forEver = 1000000000;

qint64 ByteCount(const QImage& image)
{
    return qint64(image.bytesPerLine()) * image.height();
}

int ChildCount(HNode* node)
{
    return node ? node->ChildNodes().size() : 0;
}

} // namespace

unsigned int HAnimationTextRender::PixelWord() const
{
    return colorKey | (HPluginManager::instance()->SuportAlphaBlend(node) ? opaqueWord : 0u);
}

void HAnimationTextRender::SetSession(Effect* effect, QImage& image)
{
    if (!node)
        return;
    const QPoint pos = node->Pos();
    const QSize area = node->Size();
    const PicImage picture = {image.width(), image.height(), int(image.bytesPerLine()),
                              image.constBits()};
    const PicPlacement placement = {pos.x(), pos.y(), area.width(),  area.height(),
                                    0,       0,       image.width(), image.height()};
    const int type = HPluginManager::instance()->SuportAlphaBlend(node) ? alphaSession : keySession;
    session = CreatePictureSession(type, &picture, sessionFlags, effect, &placement, PixelWord());
    AddPictureSession(displayHandle, session, 0);
}

int HAnimationTextRender::GetLayerNum(QSize size, int bytesPerLine)
{
    return PicAppendImageLayer(displayHandle, session, size.width(), size.height(), bytesPerLine,
                               PixelWord());
}

/** Removes and frees the session, if any, once nothing paints into its layers any more. */
void HAnimationTextRender::ReleaseSession()
{
    if (!session)
        return;
    if (engine)
        engine->ForgetSession();
    RemovePictureSession(displayHandle, session);
    FreePictureSession(session);
    session = 0;
}

/** One pass of the line over the device, in milliseconds. */
int HAnimationTextRender::LineDuration()
{
    const QSize line = engine->CountSize(true);
    const int code = ScrollCode(Attribute(node, "ContinueStyle"));
    return GeteffectDuration(line.width(), line.height(), code,
                             WrappingSum(Attribute(node, "ContinueSpeed"), -1));
}

/** How long the device scrolls, which depends on what else the host plays. */
int HAnimationTextRender::ScheduledDuration()
{
    HNode* const area = node->ParentNode();
    HNode* const page = area ? area->ParentNode() : 0;
    HNode* const program = page ? page->ParentNode() : 0;
    const bool aloneInArea = ChildCount(area) == 1;

    // The only node of the only page scrolls practically forever. The product overflows, and the
    // device takes what remains of it.
    if (aloneInArea && ChildCount(program) == 1)
        return WrappingProduct(LineDuration(), forEver);

    const int own = WrappingProduct(LineDuration(), Attribute(node, "PlayTimes"));
    if (!aloneInArea)
        return own;
    // As long as the longest node on the page.
    const QList<HNode*> areas = page ? page->ChildNodes() : QList<HNode*>();
    int longest = areas.isEmpty() ? 0 : areas.first()->Duration();
    for (int i = 1; i < areas.size(); ++i)
        longest = qMax(longest, areas.at(i)->Duration());
    return qMax(own, longest);
}

void HAnimationTextRender::StartInit(QImage& image)
{
    // Stop() also stops the timers; those that were running must continue.
    const bool ticking = drawTimer.isActive();
    const bool dazzling = engine->dazzleTimer.isActive();
    Stop();
    if (ticking)
        drawTimer.start();
    if (dazzling)
        engine->dazzleTimer.start();
    if (!node)
        return;

    Effect effect = {0, 0, 0, 0, 0, tickInterval};
    if (ScrollsSideways()) {
        const int code = ScrollCode(Attribute(node, "ContinueStyle"));
        const QSize area = node->Size();
        effect.effect1 = effect.effect2 = effect.effect3 = code;
        effect.duration1 = GeteffectDuration(area.width(), area.height(), code,
                                             WrappingSum(Attribute(node, "ContinueSpeed"), -1));
        effect.duration2 = ScheduledDuration();
        effect.duration3 = 0;
    }
    SetSession(&effect, image);
}

void HAnimationTextRender::InitRenderSession(QImage& image)
{
    Stop();
    if (!node)
        return;
    Effect still = {0, 0, 0, 0, 0, tickInterval};
    SetSession(&still, image);
}

/** Makes the session and its layers and shows the first frame. */
void HAnimationTextRender::DrawFirstTick()
{
    if (ScrollsSideways())
        ShowLine();
    else
        ShowFrames();
    SetPicLayerProperty();
}

/** The whole line at once, in layer 0; the device moves it. */
void HAnimationTextRender::ShowLine()
{
    engine->PrepareImage();
    StartInit(engine->drawImage);
    engine->SetPictureSession(Opaque(session), static_cast<int>(displayHandle), 0);
    engine->layerBytes = ByteCount(engine->drawImage);
    if (NeonIsOn(node)) {
        const QImage& neon = engine->neonBg->Image();
        const int layer = GetLayerNum(neon.size(), neon.bytesPerLine());
        if (layer >= 0)
            GiveNeonLayer(layer, ByteCount(neon));
    }
    AppendDazzleLayer();
}

/** Frame by frame. Neon, when on, has the session's base layer and the text the next one. */
void HAnimationTextRender::ShowFrames()
{
    QImage base = animationRealization::NewCanvas(engine->CountSize(false), imageFormat);
    if (!base.isNull())
        base.fill(0);
    StartInit(base);

    if (NeonIsOn(node)) {
        const QImage& text = engine->drawImage;
        const int layer = GetLayerNum(text.size(), text.bytesPerLine());
        if (layer >= 0) {
            engine->SetPictureSession(Opaque(session), static_cast<int>(displayHandle), layer);
            engine->layerBytes = ByteCount(text);
            GiveNeonLayer(0, ByteCount(base));
        }
    } else {
        engine->SetPictureSession(Opaque(session), static_cast<int>(displayHandle), 0);
        engine->layerBytes = ByteCount(base);
    }
    AppendDazzleLayer();
    if (DazzleIsOn(node))
        engine->DrawDazzleBackground();
    engine->PrepareImage();
}

/** Lets the neon animator paint a layer, unless its pictures would not fit there. */
void HAnimationTextRender::GiveNeonLayer(int layer, qint64 layerBytes)
{
    DrawNeonBg* const neon = engine->neonBg;
    if (ByteCount(neon->Image()) > layerBytes) {
        qDebug() << "Neon picture does not fit its layer, no neon is shown:"
                 << neon->Image().size();
        return;
    }
    neon->pictureSession = Opaque(session);
    neon->displayHandle = displayHandle;
    neon->layer = layer;
}

void HAnimationTextRender::AppendDazzleLayer()
{
    if (!DazzleIsOn(node))
        return;
    const QImage& dazzle = engine->stayImage;
    const int layer = GetLayerNum(dazzle.size(), dazzle.bytesPerLine());
    if (layer >= 0)
        engine->SetDazzleLayer(layer);
}

void HAnimationTextRender::SetPicLayerProperty()
{
    // Layers with value 0 are at the bottom, those with 2 above, those with 1 on top. A line that
    // scrolls is the base layer with its backgrounds appended; otherwise neon is the base and the
    // text comes after it.
    static const int values[2][4][3] = {
        {{0, -1, -1}, {0, 2, -1}, {1, 2, -1}, {0, 1, 2}}, // frames
        {{2, -1, -1}, {2, 0, -1}, {1, 2, -1}, {1, 0, 2}}, // a line that scrolls
    };
    const int neon = Attribute(node, "CheckNeonBg");
    const int dazzle = Attribute(node, "CheckDazzle");
    const int row = neon == 0 && dazzle == 0   ? 0
                    : neon == 1 && dazzle == 0 ? 1
                    : neon == 0 && dazzle == 1 ? 2
                                               : 3;
    const int* const stack = values[ScrollsSideways() ? 1 : 0][row];
    for (int layer = 0; layer < 3 && stack[layer] >= 0; ++layer)
        SetPicLayerBlend(displayHandle, session, layer, stack[layer]);
}

void HAnimationTextRender::SwapImageData(char** buffer, QImage& image, int layer)
{
    if (!*buffer)
        *buffer = GetPicImageLayerPtr(displayHandle, session, layer, writeMode);
    if (!*buffer)
        return;
    const bool blend = HPluginManager::instance()->SuportAlphaBlend(node);
    if (blend && image.depth() != 32)
        image = image.convertToFormat(QImage::Format_ARGB32);
    else if (!blend && image.format() != QImage::Format_RGB888)
        image = image.convertToFormat(QImage::Format_RGB888);
    std::memcpy(*buffer, image.constBits(), static_cast<size_t>(ByteCount(image)));
    *buffer = SwapPicImageLayerPtr(displayHandle, session, layer);
}

} // namespace HNodeAnimationText
} // namespace Lw
