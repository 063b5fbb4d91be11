#include "plugin/hnodeanimationtext.h"

#include "node/hanimationtextnode.h"
#include "render/hanimationtextrender.h"

namespace Lw {
namespace HNodeAnimationText {

HNodeAnimationText::HNodeAnimationText() {}

int HNodeAnimationText::level()
{
    return 4;
}

QString HNodeAnimationText::type()
{
    return QString::fromLatin1("LW_animationText_Plugin");
}

IContentRender* HNodeAnimationText::CreateAreaRender(HNode* node)
{
    return new HAnimationTextRender(static_cast<HAnimationTextNode*>(node));
}

HNode* HNodeAnimationText::Create()
{
    return new HAnimationTextNode;
}

} // namespace HNodeAnimationText
} // namespace Lw
