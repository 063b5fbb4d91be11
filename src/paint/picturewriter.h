#ifndef PICTUREWRITER_H
#define PICTUREWRITER_H

#include "paint/picture.h"
#include "paint/plane.h"

namespace Lw {
namespace HNodeAnimationText {

/**
 * Writes planes to pictures: ink in a color, everything else 0. The tables of one color are made
 * when it is first used and kept.
 */
class PictureWriter
{
public:
    /**
     * Pixels beyond the plane are 0. Bytes from the end of a row's pixels to the next row stay as
     * they are.
     */
    void Write(const Plane& ink, uint32_t argb, const Picture& to);

private:
    static const int pixelsAtOnce = 8;
    static const int mostBytes = 4 * pixelsAtOnce;

    void SetColor(Picture::Format format, uint32_t argb);
    template <int bytesPerPixel>
    void WriteRow(const Plane& ink, int y, unsigned char* row, int width) const;

    Picture::Format tableFormat = Picture::Argb32;
    uint32_t tableColor = 0;
    bool hasTable = false;
    uint64_t table[256 * mostBytes / sizeof(uint64_t)]; // bytes of every row of eight pixels
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
