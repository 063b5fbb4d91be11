// The dazzle background: colours that travel behind the text, in a layer of their own. It shares
// nothing with the text's frame but the count of frames.
#include "engine/animationrealization.h"

#include "device/device.h"
#include "node/hanimationtextnode.h"
#include "node/motions.h"

#include <QPainter>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int colorCycle = 30;    // the 31st of the dazzle colours is the first again
const int linearStops = 40;   // at i / 40
const int circularStops = 30; // at i / 30
const int pictureBorder = 3;  // px

// Text is read against the middle of the picture, so the colours step back there: behind light text
// into the dark, behind dark text into the light. Along the edges they stand pure.
QLinearGradient Scrim(const QColor& text, const QRect& rect)
{
    const bool light = qGray(text.rgb()) >= 96;
    QColor clear = light ? QColor(0, 0, 0, 0) : QColor(255, 255, 255, 0);
    QColor dense = clear;
    dense.setAlpha(light ? 165 : 190);
    QLinearGradient scrim(rect.left(), rect.top(), rect.left(), rect.top() + rect.height());
    scrim.setColorAt(0, clear);
    scrim.setColorAt(qreal(0.22), dense);
    scrim.setColorAt(qreal(0.78), dense);
    scrim.setColorAt(1, clear);
    return scrim;
}

} // namespace

/** Makes the dazzle layer's buffer stayImage. It is never swapped, so it is fetched only once. */
void animationRealization::WrapDazzleLayer()
{
    if (!pictureSession || dazzleLayer <= 0 || dazzleLayerWrapped)
        return;
    const QSize size = areaSize;
    char* const buffer = GetPicImageLayerPtr(static_cast<PicDisplay>(sessionDisplay),
                                             SessionHandle(pictureSession), dazzleLayer, writeMode);
    if (!buffer || size.width() <= 0 || size.height() <= 0)
        return;
    stayImage = QImage(reinterpret_cast<uchar*>(buffer), size.width(), size.height(), imageFormat);
    dazzleLayerWrapped = true;
}

/** The colour that leads now; each frame hands the lead to the next one. */
int animationRealization::LeadingColor()
{
    // A line that scrolls sideways is painted only once and counts no frames.
    if (IsScrolledByDevice(effectType, continueStyle)) {
        const int index = dazzleColorIndex;
        dazzleColorIndex = (dazzleColorIndex + 1) % colorCycle;
        return index;
    }
    return qMax(frameCount, 0) % colorCycle;
}

QBrush animationRealization::DazzleBrush(int leading)
{
    if (gradientEnabled != 1)
        return QBrush(dazzleColors.at(leading));

    const int count = gradientType == 0 ? linearStops : circularStops;
    QGradientStops stops;
    for (int i = 0; i < count; ++i)
        stops.append(QGradientStop(qreal(i) / count, dazzleColors.at((leading + i) % colorCycle)));
    switch (gradientType) {
    case 0: linearGradient.setStops(stops); return QBrush(linearGradient);
    case 1: radialGradient.setStops(stops); return QBrush(radialGradient);
    default: conicalGradient.setStops(stops); return QBrush(conicalGradient);
    }
}

void animationRealization::DrawDazzleBackground()
{
    const int leading = LeadingColor();
    WrapDazzleLayer();
    if (!node || stayImage.isNull())
        return;

    QRect rect = stayImage.rect();
    // With neon on, the rim is left to its border.
    if (neonBgEnabled == 1) {
        const int rim = qMax(2, qMin(rect.width(), rect.height()) / 8);
        rect.adjust(rim, rim, -rim, -rim);
    }
    const QColor text = node->GetTextColor(0);
    stayImage.fill(0);
    QPainter background(&stayImage);
    background.fillRect(rect, DazzleBrush(leading));
    background.fillRect(rect, Scrim(text, rect));
    if (pictureFillEnabled == 1 && pictureBrush.style() == Qt::TexturePattern) {
        picturePen.setBrush(pictureBrush);
        picturePen.setWidth(pictureBorder);
        picturePen.setJoinStyle(Qt::MiterJoin);
        background.setPen(picturePen);
        background.drawRect(rect.adjusted(1, 1, -2, -2));
    }
}

} // namespace HNodeAnimationText
} // namespace Lw
