// Frog effects: a frog hops along the top edge and brings the characters one by one. Each character
// takes five frames; the speed sets the ticks between two frames.
#include "engine/frame.h"

#include "node/attribute.h"
#include "node/hanimationtextnode.h"
#include "paint/pictureblend.h"

#include <happconfig.h>

#include <QDebug>
#include <QFileInfo>
#include <QImageReader>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const int framesPerCharacter = 5;
const qint64 maxFrogPixels = 4 * 1000 * 1000;

QString FrogFile(int number)
{
    const QString file = QString::fromLatin1("/root/Box/image/Frog%1.png").arg(number);
#ifdef LW_DEVICE_FILES
    return HAppConfig::DeviceFile(file); // on a desktop, the device's files are elsewhere
#else
    return file;
#endif
}

QImage ReadFrog(int number)
{
    const QString file = FrogFile(number);
    QImage frog;
    if (QFileInfo(file).isFile()) {
        QImageReader reader(file);
        const QSize size = reader.size();
        if (size.isValid() && qint64(size.width()) * size.height() <= maxFrogPixels)
            frog = reader.read();
    }
    if (!frog.isNull())
        return frog.convertToFormat(QImage::Format_ARGB32);
    qDebug() << "Frog picture cannot be read, no frog is drawn:" << file;
    return frog;
}

} // namespace

/** The frog of one of the five frames, over the character that it brings. */
void animationRealization::DrawFrog(int frame)
{
    if (frogPictures.isEmpty())
        frogPictures.resize(framesPerCharacter);
    Frog& frog = frogPictures[frame];
    if (!frog.read) {
        frog.picture = ReadFrog(frame + 1);
        frog.read = true;
    }
    if (!frog.picture.isNull())
        BlendPicture(PictureOf(frog.picture), RestX(charIndex), 0, PictureOf(drawImage));
}

/** The characters in place, the current one as painted by @p drawCharacter, and the frog. */
template <typename DrawCharacter>
void animationRealization::DrawFrogFrame(const DrawCharacter& drawCharacter)
{
    if (DazzleIsOn(node))
        DrawDazzleBackground();
    const int frame = qBound(0, moveOffset, framesPerCharacter - 1);
    if (BeginFrame()) {
        AddStanding();
        canvas.DrawText(textPath);
        drawCharacter(frame + 1);
        ShowFrame();
        DrawFrog(frame);
    }
    Advance(moveOffset, 1);
    if (moveOffset >= framesPerCharacter)
        TakeNextCharacter();
}

void animationRealization::EffectTopWithFrogAppearsVerbatim()
{
    // Each frame reveals another fifth of the character, from the top.
    DrawFrogFrame([&](int fifths) {
        if (!HasGlyph(charIndex) || GlyphOf(charIndex).Shape().IsEmpty())
            return;
        if (fifths < framesPerCharacter) {
            // One more pixel on the sides and above, for the width of the outline.
            const Bounds& glyph = GlyphOf(charIndex).Box();
            const QRectF box =
                QRectF(QPointF(glyph.left, glyph.top), QPointF(glyph.right, glyph.bottom))
                    .translated(RestX(charIndex), RestY(charIndex));
            const QRectF shown(box.left() - 1, box.top() - 1, box.width() + 2,
                               box.height() * fifths / framesPerCharacter + 1);
            const QRect pixels = shown.toAlignedRect();
            const Box clip = {pixels.left(), pixels.top(), pixels.right() + 1, pixels.bottom() + 1};
            canvas.SetClip(clip);
        }
        DrawGlyph(charIndex, RestX(charIndex), RestY(charIndex));
    });
}

void animationRealization::EffectTopWithFrog()
{
    // From the top edge to the slot in five equal falls.
    DrawFrogFrame([&](int fifths) {
        DrawGlyph(charIndex, RestX(charIndex), RestY(charIndex) * fifths / framesPerCharacter);
    });
}

} // namespace HNodeAnimationText
} // namespace Lw
