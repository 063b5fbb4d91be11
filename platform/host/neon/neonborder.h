/**
 * @file
 * A border of moving light along the edges of an area.
 */
#ifndef LW_NEONBORDER_H
#define LW_NEONBORDER_H

#include "neonpatterns.h"

#include <QImage>
#include <QSize>

namespace Lw {

class NeonBorder
{
public:
    /**
     * @param area in pixels, not empty
     * @param style see NeonLightAt()
     */
    NeonBorder(QSize area, int style);

    /**
     * Paints the band along the edges and leaves what it encloses as it is.
     * @param image of the area's size, Format_ARGB32 or Format_RGB888
     */
    void Paint(QImage& image, qint64 tick) const;

private:
    int GapStart(int y) const;
    NeonSpot SpotAt(int x, int y) const;

    QSize area;
    int style;
    int thickness;
    double radius;        ///< of the middle of the band in the corners
    double straightWidth; ///< of the edges between the corners
    double straightHeight;
    double length; ///< round the middle of the band
};

} // namespace Lw

#endif
