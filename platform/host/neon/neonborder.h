/** @file A border of moving light along the edges of an area. */
#ifndef LW_NEONBORDER_H
#define LW_NEONBORDER_H

#include <QImage>
#include <QSize>

#include <vector>

namespace Lw {

struct NeonLight
{
    QRgb color;
    double brightness; ///< 1 is full
};

/** Lengths are in units that are as long as the band is thick. */
struct NeonLook
{
    /** @param along the loop, clockwise from the left end of the top edge */
    NeonLight (*light)(double along, double length, double tick);
    bool isFlat;  ///< an even strip, not a glowing tube
    double slant; ///< by which the inner edge lags behind the outer one
};

/** @param style 1 to 28, which share eight looks; any other is the first one */
const NeonLook& NeonLookOf(int style);

class NeonBorder
{
public:
    /**
     * @param area in pixels, not empty
     * @param style as NeonLookOf() takes it
     */
    NeonBorder(QSize area, int style);

    /**
     * Paints the band along the edges and leaves what it encloses as it is.
     * @param image of the area's size, Format_ARGB32 or Format_RGB888
     */
    void Paint(QImage& image, qint64 tick) const;

private:
    struct Spot // a pixel of the band
    {
        int x;
        int y;
        int along; ///< pixels clockwise from the left end of the top edge
        int glow;  ///< of 256, more in the middle of a tube
    };

    const NeonLook& look;
    int length;  ///< of the loop, pixels
    double unit; ///< pixels
    std::vector<Spot> spots;
};

} // namespace Lw

#endif
