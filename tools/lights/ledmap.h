/**
 * @file
 * From a picture to the channels of its LEDs.
 */
#ifndef ANIMTEXT_LEDMAP_H
#define ANIMTEXT_LEDMAP_H

#include "lights/controller.h"

#include <QImage>
#include <QVector>

#include <array>

namespace AnimText {

/** For each LED along the data line the pixel that it shows, as x + y * width. */
QVector<int> LedOrder(QSize size, const Wiring& wiring);

/** What the values 0 to 255 become: brightness in percent × value to the power of gamma. */
std::array<uchar, 256> Levels(double gamma, int brightness);

/** The channels of one controller: layout, color order, gamma and brightness. */
class LedMap
{
public:
    /** The rectangle of @p controller must be known. */
    explicit LedMap(const Controller& controller);

    /** Three bytes an LED, along the data line; black outside of @p display and under its alpha. */
    QByteArray Channels(const QImage& display) const;

private:
    QRect rect;
    QVector<int> order;
    std::array<int, 3> shifts; // of the colors in a QRgb
    std::array<uchar, 256> levels;
};

} // namespace AnimText

#endif
