// The bytes inside a "PathData" file, without the Base64 around them.
#include "outlines.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto outlines = Lw::HNodeAnimationText::OutlinesFrom(Input(data, size));
    CheckOutlines(outlines);
    PaintOutlines(outlines);
    return 0;
}
