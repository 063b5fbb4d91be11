/**
 * @file
 * What becomes of outlines after they have been read: they are shaped, collected and painted.
 */
#pragma once

#include "support/serialized.h"
#include "text/glyphdata.h"
#include "text/limits.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QTransform>

#include <cstdint>
#include <cstdlib>

/** The input as bytes that are not copied. */
inline QByteArray Input(const uint8_t* data, size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

/** What the reader promises of every outline that it lets through. */
inline void CheckOutlines(const QVector<QPainterPath>& outlines)
{
    using namespace Lw::HNodeAnimationText;
    for (const QPainterPath& outline : outlines) {
        if (outline.elementCount() > maxOutlineElements)
            std::abort();
        for (int i = 0; i < outline.elementCount(); ++i) {
            const QPainterPath::Element element = outline.elementAt(i);
            if (!(qAbs(element.x) <= maxOutlineCoordinate) ||
                !(qAbs(element.y) <= maxOutlineCoordinate))
                std::abort();
        }
    }
    // Sound data comes through as it is: written again it reads the same.
    const QByteArray written = Serialized(outlines);
    if (Serialized(OutlinesFrom(written)) != written)
        std::abort();
}

/** Paints a few of @p outlines the ways that the effects do. */
inline void PaintOutlines(const QVector<QPainterPath>& outlines)
{
    const int mostPainted = 6;
    static QImage picture(40, 24, QImage::Format_ARGB32);
    picture.fill(0);
    QPainter painter(&picture);
    painter.setPen(QPen(QBrush(Qt::yellow), 0));
    painter.setBrush(QBrush(Qt::red, Qt::SolidPattern));

    QPainterPath page;
    for (int i = 0; i < qMin(outlines.size(), mostPainted); ++i) {
        const QPainterPath& outline = outlines.at(i);
        QTransform shape;
        switch (i % 4) {
        case 0: break;
        case 1:
            shape.translate(4, -8);
            shape.rotate(33);
            shape.translate(-4, 8);
            break;
        case 2: shape.shear(0.8, 0); break;
        case 3: shape.scale(5, -0.01); break;
        }
        page.addPath(shape.map(outline).translated(7 * i, 20));
        painter.drawPath(outline.translated(7 * i, outline.boundingRect().height()));
    }
    painter.drawPath(page);
    painter.scale(0.3, 0.3);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(page);
}
