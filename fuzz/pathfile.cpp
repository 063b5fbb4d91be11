// A whole "PathData" file.
#include "outlines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QBuffer file;
    file.setData(Input(data, size));
    file.open(QIODevice::ReadOnly);
    const auto outlines =
        Lw::HNodeAnimationText::OutlinesFrom(Lw::HNodeAnimationText::ReadGlyphData(file));
    CheckOutlines(outlines);
    PaintOutlines(outlines);
    return 0;
}
