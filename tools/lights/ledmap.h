/**
 * @file
 * Converts a picture to LED channels.
 */
#pragma once

#include "lights/controller.h"

#include <QImage>
#include <QVector>

#include <array>

namespace AnimText::lights {

/** The pixel of each LED along the data line, as x + y * width. */
QVector<int> LedOrder(QSize size, const Wiring& wiring);

/** The channels of one controller: layout, color order, gamma and brightness. */
class LedMap
{
public:
    /** The rectangle of @p controller must be set. */
    explicit LedMap(const Controller& controller);

    /** Three bytes per LED along the data line; black outside @p display and behind its alpha. */
    QByteArray Channels(const QImage& display) const;

private:
    QRect rect;
    QVector<int> order;
    std::array<int, 3> shifts; // of the colors in a QRgb
    std::array<uchar, 256> levels;
};

} // namespace AnimText::lights
