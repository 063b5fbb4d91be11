#ifndef ATTRIBUTE_H
#define ATTRIBUTE_H

#include <hdata.h>

namespace Lw {
namespace HNodeAnimationText {

// Not of a const node: hosts are free to read their store with functions that are not const.

/** The number under @p key in the host's store, read afresh; 0 without a node. */
inline int Attribute(HData* node, const char* key)
{
    return node ? node->GetAttributeToInt(QString::fromLatin1(key)) : 0;
}

/** Whether the dazzle background is on at this moment; hosts switch it in mid-play. */
inline bool DazzleIsOn(HData* node)
{
    return Attribute(node, "CheckDazzle") == 1;
}

/** Whether neon is on at this moment. */
inline bool NeonIsOn(HData* node)
{
    return Attribute(node, "CheckNeonBg") == 1;
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
