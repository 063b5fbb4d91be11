#ifndef ATTRIBUTE_H
#define ATTRIBUTE_H

#include <hdata.h>

namespace Lw {
namespace HNodeAnimationText {

// The node is not const, because hosts may read their store with functions that are not const.

/** The number under @p key in the host's store, read now; 0 without a node. */
inline int Attribute(HData* node, const char* key)
{
    return node ? node->GetAttributeToInt(QString::fromLatin1(key)) : 0;
}

/** Whether the dazzle background is on now; hosts switch it during play. */
inline bool DazzleIsOn(HData* node)
{
    return Attribute(node, "CheckDazzle") == 1;
}

/** Whether neon is on now. */
inline bool NeonIsOn(HData* node)
{
    return Attribute(node, "CheckNeonBg") == 1;
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
