// A whole "DescentVector" file.
#include "outlines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QBuffer file;
    file.setData(Input(data, size));
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = Lw::HNodeAnimationText::ReadGlyphData(file);
    const QVector<int> descents = Lw::HNodeAnimationText::DescentsFrom(bytes);
    if (!descents.isEmpty() && !bytes.startsWith(Serialized(descents)))
        std::abort();
    return 0;
}
