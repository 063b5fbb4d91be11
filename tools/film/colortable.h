/**
 * @file
 * Pictures whose pixels are numbers of colors.
 */
#ifndef ANIMTEXT_COLORTABLE_H
#define ANIMTEXT_COLORTABLE_H

#include <QHash>
#include <QImage>
#include <QVector>

namespace AnimText {

constexpr int mostColors = 256; ///< in a table

/** Numbers colors in the order in which they are first seen. */
class ColorTable
{
public:
    /**
     * @p picture, which has 32 bits a pixel, in QImage::Format_Indexed8. Colors that are new are
     * added; null when there would be too many.
     */
    QImage Indexed(const QImage& picture);
    const QVector<QRgb>& Colors() const { return colors; }

private:
    QVector<QRgb> colors;
    QHash<QRgb, uchar> indices;
};

} // namespace AnimText

#endif
