// Fill and outline of the text.
#include "engine/animationrealization.h"

#include "node/attribute.h"
#include "node/hanimationtextnode.h"

#include <QColor>

namespace Lw {
namespace HNodeAnimationText {

/** Clears the picture: transparent, or black where the device blends by color key. */
void animationRealization::DrawInit()
{
    if (!drawImage.isNull())
        drawImage.fill(0);
}

void animationRealization::SetPainterBrush(int)
{
    // The first character's color is used for all. Gradient, stroke and picture fill belong to the
    // dazzle background.
    textColor = (node ? node->GetTextColor(0) : QColor(255, 0, 0)).rgba();
    canvas.SetHollow(hollow == 1);
    canvas.SetTranslucent(qAlpha(textColor) < 255);
}

/** Adds the character's shadow to auxPath. Text is painted without one; hosts may call it. */
void animationRealization::DrawShadow(int index)
{
    if (Attribute(node, "CheckShadowEffect") != 1)
        return;
    const int distance = Attribute(node, "TextShadowBox");
    if (index >= 0 && index < charPaths.size())
        auxPath.Append(Transform().map(GlyphOf(index).Shape(), float(distance), float(distance)));
}

} // namespace HNodeAnimationText
} // namespace Lw
