// The dazzle background: colors that travel behind the text, in their own layer. It shares only
// the count of frames with the text.
#include "engine/animationrealization.h"

#include "device/device.h"
#include "node/hanimationtextnode.h"
#include "node/motions.h"
#include "paint/pictureblend.h"

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int pictureBorder = 3; // px

DazzleMap::Shape ShapeOf(int gradientEnabled, int gradientType)
{
    if (gradientEnabled != 1)
        return DazzleMap::Plain;
    return gradientType == 0   ? DazzleMap::Linear
           : gradientType == 1 ? DazzleMap::Radial
                               : DazzleMap::Conical;
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
    dazzle.Repaint();
}

/** The color that leads now; each frame hands the lead to the next one. */
int animationRealization::LeadingColor()
{
    // A line that scrolls sideways is painted only once and counts no frames.
    if (IsScrolledByDevice(effectType, continueStyle)) {
        const int index = dazzleColorIndex;
        dazzleColorIndex = (dazzleColorIndex + 1) % DazzleMap::ringColors;
        return index;
    }
    return qMax(frameCount, 0) % DazzleMap::ringColors;
}

void animationRealization::DrawDazzleBackground()
{
    const int leading = LeadingColor();
    WrapDazzleLayer();
    if (!node || stayImage.isNull())
        return;

    const Picture picture = PictureOf(stayImage);
    // With neon on, the neon border paints the rim.
    const int rim = neonBgEnabled == 1 ? qMax(2, qMin(picture.width, picture.height) / 8) : 0;
    const Box within = {rim, rim, picture.width - rim, picture.height - rim};
    // The middle of the picture is behind the text, so the colors fade there: to dark behind light
    // text, to light behind dark text.
    const DazzlePainter::Frame frame = {leading, qGray(node->GetTextColor(0).rgb()) >= 96, within};
    dazzle.SetShape(ShapeOf(gradientEnabled, gradientType));
    if (dazzle.Paint(frame, picture) && pictureFillEnabled == 1 && !within.IsEmpty())
        DrawPictureBorder(within, picture);
}

/** A frame cut from the fill picture, which is repeated from the left upper corner of the area. */
void animationRealization::DrawPictureBorder(const Box& within, const Picture& picture)
{
    if (pictureBrush.style() != Qt::TexturePattern)
        return;
    picturePen.setBrush(pictureBrush);
    picturePen.setWidth(pictureBorder);
    QImage tile = pictureBrush.textureImage().convertToFormat(QImage::Format_ARGB32);
    if (!tile.isNull())
        BlendBorder(PictureOf(tile), within, picturePen.width(), picture);
}

} // namespace HNodeAnimationText
} // namespace Lw
