#ifndef DAZZLEPAINTER_H
#define DAZZLEPAINTER_H

#include "paint/dazzlemap.h"
#include "paint/fixedpoint.h"
#include "paint/picture.h"

namespace Lw {
namespace HNodeAnimationText {

/**
 * The dazzle background: colors that travel through an area, and a scrim over them that makes room
 * for the text. A pixel is looked up twice: its step in the map, the step's color in a table that
 * is made for each frame.
 */
class DazzlePainter
{
public:
    /** What one frame differs in from another. */
    struct Frame
    {
        int leading;      // the color of the ring that the gradient begins with
        bool isLightText; // the scrim is dark behind light text, light behind dark text
        Box within;       // what is painted; the rest of the picture becomes 0

        bool operator==(const Frame& other) const
        {
            return leading == other.leading && isLightText == other.isLightText &&
                   within == other.within;
        }
    };

    DazzlePainter();

    /** The ring's colors, DazzleMap::ringColors of them, 0xRRGGBB. */
    void SetColors(const uint32_t* colors);
    void SetShape(DazzleMap::Shape newShape) { shape = newShape; }

    /**
     * Paints all of @p picture, unless it is the frame that was painted last.
     * @return whether it was painted
     */
    bool Paint(const Frame& frame, const Picture& picture);
    /** The next frame is painted even if it is the same: the picture is another one. */
    void Repaint() { hasPainted = false; }
    /** Frees the map and the row. */
    void Forget();

    /** What is kept for the area, in bytes. */
    size_t Bytes() const { return map.Bytes() + row.capacity(); }

private:
    void MakeTable(int leading, Picture::Format format);
    void MakeScrimmed(int density, bool isDark);
    void FillRow(int y, const Box& within, Picture::Format format);
    template <int bytesPerPixel>
    void FillRun(const uint8_t* steps, const uint32_t* colors, int begin, int end);

    uint32_t ring[DazzleMap::ringColors];
    DazzleMap::Shape shape = DazzleMap::Plain;
    DazzleMap map;
    uint32_t table[DazzleMap::steps]; // words whose bytes are those of the picture's pixels
    uint32_t scrimmed[DazzleMap::steps];
    uint32_t opaque = 0;            // the bits of such a word that are alpha
    std::vector<unsigned char> row; // one of the picture and a byte
    bool hasPainted = false;
    Frame painted = Frame();
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
