// The bytes inside a "DescentVector" file, without the Base64 around them.
#include "outlines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = Input(data, size);
    const QVector<int> descents = Lw::HNodeAnimationText::DescentsFrom(bytes);
    // All that were announced, as they stand there, or none.
    if (!descents.isEmpty() && !bytes.startsWith(Serialized(descents)))
        std::abort();
    return 0;
}
