// The engine's state: what it takes from its node, and its beginning and end.
#include "engine/animationrealization.h"

#include "device/device.h"
#include "node/attribute.h"
#include "node/hanimationtextnode.h"
#include "node/motions.h"
#include "text/limits.h"
#include "text/pagedivision.h"

#include <happconfig.h>
#include <hpluginmanager.h>

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

#include <cstring>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int lastNeonBorder = 28; // neon effects above it show pictures

// Metrics come from files and attributes and can have any value. These bounds are far outside every
// picture and keep the sums of the layout within an int.
const int metricLimit = 1 << 20;
const int positionLimit = 1 << 28;

int Bounded(int value, int limit)
{
    return qBound(-limit, value, limit);
}

/** Qt's reader reports a negative height for a bitmap that is stored from the top down. */
qint64 PixelCount(const QSize& size)
{
    return qAbs(qint64(size.width())) * qAbs(qint64(size.height()));
}

} // namespace

animationRealization::animationRealization(QObject* parent)
    : QObject(parent)
    , painter(new QPainter)
    , neonBg(new DrawNeonBg)
    , frameInterval(tickInterval)
{
    // Once around the color circle, ending with the first color.
    for (int i = 0; i < 30; ++i)
        dazzleColors.append(QColor::fromHsv(12 * i, 207, 255, 255));
    dazzleColors.append(QColor::fromHsv(0, 207, 255, 255));
    uint32_t ring[DazzleMap::ringColors];
    for (int i = 0; i < DazzleMap::ringColors; ++i)
        ring[i] = dazzleColors.at(i).rgb();
    dazzle.SetColors(ring);

    KeepTime(dazzleTimer);
    // Connected once: after a second connection every tick would draw the background twice.
    connect(&dazzleTimer, SIGNAL(timeout()), this, SLOT(UpdateDazzleBackground()));
}

animationRealization::~animationRealization()
{
    delete painter;
    painter = 0;
    delete neonBg;
    neonBg = 0;
}

int animationRealization::Init(HAnimationTextNode* newNode)
{
    if (!newNode)
        return 0;
    node = newNode;

    layerBuffer = 0;
    dazzle.Repaint();
    maxTextWidth = Bounded(node->MaxTextWidth(), metricLimit);
    totalTextWidth = node->GetTotalTextWith();
    text = node->Text();
    animationEffect = Attribute(node, "AnimationEffect");
    effectType = Attribute(node, "EffectType");
    areaSize = node->Size();
    playTimes = Attribute(node, "PlayTimes");
    holdTime = node->GetHoldTime();
    stayImageReady = 0;
    continueStyle = Attribute(node, "ContinueStyle");
    neonBgEnabled = Attribute(node, "CheckNeonBg");
    shadowEnabled = Attribute(node, "CheckShadowEffect");
    dazzleEnabled = Attribute(node, "CheckDazzle");
    gradientEnabled = Attribute(node, "CheckColorGradient");
    gradientType = Attribute(node, "ColorGradient");
    stroke = Attribute(node, "Stroke");
    hollow = Attribute(node, "Hollow");
    pictureFillEnabled = Attribute(node, "CheckPictureFills");
    initFive = 5;

    const int width = areaSize.width();
    const int height = areaSize.height();
    linearGradient = QLinearGradient(0, 0, width, 0);
    radialGradient =
        QRadialGradient(QPointF(width / 2, height / 2), width / 2, QPointF(width / 2, height / 2));
    conicalGradient = QConicalGradient(QPointF(width / 2, height), 0);
    strokePen = QPen(QBrush(HAppConfig::IntToColor(Attribute(node, "StrokeColor"))), 1);
    frameInterval = tickInterval;

    charPaths = node->GetPainterPaths();
    if (charPaths.size() > text.size())
        charPaths.resize(text.size()); // the rest belongs to no character
    textPath.Clear();
    glyphs.clear();
    glyphs.resize(size_t(charPaths.size()));
    canvas.ForgetGlyphs();
    charDescents = node->GetDescentData();
    for (int i = 0; i < charDescents.size(); ++i)
        charDescents[i] = Bounded(charDescents.at(i), metricLimit);

    if (pictureFillEnabled == 1)
        LoadFillPicture();
    if (neonBgEnabled == 1)
        neonBg->InitNode(node);
    return 1;
}

void animationRealization::LoadFillPicture()
{
    const QString file = node->GetFirstFile(QString::fromLatin1("FillImage"));
    QImage picture;
    // Opening a pipe would wait for a writer that may never come.
    if (QFileInfo(file).isFile()) {
        QImageReader reader(file);
        // A few bytes can decode to gigabytes, so the size is checked first. Some formats know it
        // only after they are read.
        QSize size = reader.size();
        if (PixelCount(size) <= maxPicturePixels) {
            picture = reader.read();
            size = picture.size();
        }
        if (PixelCount(size) > maxPicturePixels) {
            qDebug() << "Fill picture is too large, ignored:" << file << size;
            picture = QImage();
        }
    }
    fillImageSize = picture.size();
    pictureBrush = QBrush(picture);
}

/** A picture of zero bytes; null when the size holds no pixel or too many. */
QImage animationRealization::NewCanvas(const QSize& size, QImage::Format format)
{
    const int bytesPerPixel = format == QImage::Format_RGB888 ? 3 : 4;
    if (size.width() <= 0 || size.height() <= 0 ||
        qint64(size.width()) * size.height() > maxCanvasBytes / bytesPerPixel)
        return QImage();
    QImage canvas(size, format);
    // Also the bytes that pad the rows, which fill() leaves alone: the tail of a long line is
    // copied in whole rows, and their padding may end up within the picture.
    if (!canvas.isNull())
        std::memset(canvas.bits(), 0, size_t(canvas.bytesPerLine()) * size_t(canvas.height()));
    return canvas;
}

void animationRealization::Start()
{
    if (!node)
        return;
    charIndex = 0;
    pageIndex = 1;
    stayPageIndex = 1;
    stepSize = 1;
    moveOffset = 0;
    stayCounter = 1;
    frameCount = 0;
    tickCounter = 0;
    progressF = 0;
    charCount = text.size();
    moveOffset2 = 0;
    isDrawing = true;
    playCount = 0;
    scrollOffset = 0;
    playFinished = false;

    maxTextHeight = Bounded(node->MaxTextHeight(), metricLimit);
    MeasureText(node->TextWidths());
    switch (Attribute(node, "EffectType")) {
    case Mode::Entrance: speed = Attribute(node, "AnimationSpeed"); break;
    case Mode::Scroll: speed = Attribute(node, "ContinueSpeed"); break;
    default: speed = 5; break;
    }
    CountTotalHeight();
    CountPageNum();

    imageFormat = HPluginManager::instance()->SuportAlphaBlend(node) ? QImage::Format_ARGB32
                                                                     : QImage::Format_RGB888;
    drawImage = NewCanvas(CountSize(true), imageFormat);
    stayImage = NewCanvas(areaSize, imageFormat);
    if (!drawImage.isNull())
        drawImage.fill(HAppConfig::IntToColor(colorKey));
    else if (!CountSize(true).isEmpty())
        qDebug() << "Text picture is too large, nothing is painted:" << CountSize(true);
    if (!stayImage.isNull())
        stayImage.fill(0);
    dazzle.Repaint();

    if (neonBgEnabled != 0) {
        neonBg->StartTimerDraw(tickInterval);
        // The host's store may fetch a file when it is looked up. The result does not matter here:
        // the animator copes with a missing file.
        if (node->GetNeonEffect() > lastNeonBorder)
            QFile::exists(node->GetFirstFile(QString::fromLatin1("NeonGifPath")));
    }
    if (DazzleIsOn(node))
        dazzleTimer.start(tickInterval);
}

void animationRealization::MeasureText(const LineWidths& line)
{
    const QVector<int> heights = node->TextHeights();
    const int length = text.size();
    charWidths.resize(length);
    charHeights.resize(length);
    charPositions.resize(length);
    for (int i = 0; i < length; ++i) {
        charWidths[i] = Bounded(line.Width(i), metricLimit);
        charHeights[i] = Bounded(heights.value(i), metricLimit);
        charPositions[i] = Bounded(line.CountWith(i), positionLimit);
    }
}

void animationRealization::Pause(bool pause)
{
    paused = pause;
    if (paused) {
        neonBg->StopTimerDraw();
        dazzleTimer.stop();
        return;
    }
    neonBg->StartTimerDraw(tickInterval);
    if (!DazzleIsOn(node))
        return;
    // The frog effects draw the dazzle background themselves, while a page is held.
    if (PlaysFrogs(effectType, animationEffect))
        dazzleTimer.stop();
    else
        dazzleTimer.start(tickInterval);
}

void animationRealization::Stop() {}

QSize animationRealization::CountSize(bool forContent) const
{
    if (IsScrolledByDevice(effectType, continueStyle) && (neonBgEnabled != 1 || forContent))
        return QSize(totalTextWidth, areaSize.height());
    return areaSize;
}

void animationRealization::CountTotalHeight()
{
    qint64 sum = 0;
    for (int i = 0; i < charHeights.size(); ++i)
        sum += charHeights.at(i);
    totalHeight = static_cast<int>(qBound(qint64(-positionLimit), sum, qint64(positionLimit)));
}

void animationRealization::CountPageNum()
{
    pageBreaks.clear();
    pageOffsets.clear();
    // The one effect whose pages fill from their end.
    SelectPath(animationEffect == Entrance::FlyFromRight ? 0 : 1);
}

void animationRealization::SelectPath(int forward)
{
    if (!node)
        return;
    const LineWidths line = node->TextWidths();
    if (!forward) {
        CutBackward(line, text.size(), areaSize.width(), pageBreaks, pageOffsets);
    } else {
        CutForward(line, text.size(), areaSize.width(), pageBreaks, pageOffsets);
        if (pageBreaks.last() == text.size()) {
            pageOffsets.last() = line.Total();
        } else {
            pageBreaks.append(text.size());
            pageOffsets.append(line.Total());
        }
    }
    for (int i = 0; i < pageOffsets.size(); ++i)
        pageOffsets[i] = Bounded(pageOffsets.at(i), positionLimit);
}

void animationRealization::SwapPage()
{
    ++pageIndex;
    isDrawing = holdTime <= 0;
}

void animationRealization::SetPictureSession(void* session, int a, int b)
{
    pictureSession = session;
    sessionDisplay = a;
    sessionLayer = b;
    layerBytes = -1;
}

void animationRealization::SetDazzleLayer(int layer)
{
    dazzleLayer = layer;
    dazzleLayerWrapped = false;
}

/** The session is about to end: from now on nothing may paint into its layers. */
void animationRealization::ForgetSession()
{
    if (pictureSession) {
        layerBuffer = 0;
        drawImage = QImage();
        stayImage = QImage();
        dazzle.Forget();
    }
    SetPictureSession(0, 0, 0);
    SetDazzleLayer(0);
    neonBg->StopTimerDraw();
    neonBg->pictureSession = 0;
    neonBg->displayHandle = 0;
    neonBg->layer = 0;
}

int animationRealization::GetDisplayTimes() const
{
    return isDrawing ? playCount : 0;
}

} // namespace HNodeAnimationText
} // namespace Lw
