/** @file A border of moving light along the edges of an area. */
#ifndef LW_NEONBORDER_H
#define LW_NEONBORDER_H

#include <QImage>
#include <QSize>

#include <vector>

namespace Lw {

class NeonBorder
{
public:
    /**
     * @param area in pixels, not empty
     * @param style 1 to 28, which share eight looks; any other is the first one
     */
    NeonBorder(QSize area, int style);

    /**
     * Paints the band along the edges and leaves what it encloses as it is.
     * @param image of the area's size, Format_ARGB32 or Format_RGB888
     */
    void Paint(QImage& image, qint64 tick) const;

private:
    struct Spot
    {
        QPoint at;
        int along; ///< pixels clockwise from the left end of the top edge
        int glow;  ///< of 256, more in the middle of a tube
    };

    int look;         ///< 0 to 7
    double thickness; ///< of the band, pixels
    int length;       ///< of the loop, pixels
    std::vector<Spot> spots;
};

} // namespace Lw

#endif
