/**
 * @file
 * A session on its own display, with all properties easy to vary.
 */
#pragma once

#include "display.h"

#include <QImage>

const unsigned int KeyWord = 0x00010201;
const Effect NoEffect = {0, 0, 0, 0, 0, 66};

inline QImage SolidImage(int type, QSize size, QRgb color)
{
    QImage image(size, type == 3 ? QImage::Format_ARGB32 : QImage::Format_RGB888);
    image.fill(QColor::fromRgba(color));
    return image;
}

/** Makes a session that shows @p image in @p area; it is on no display yet. */
inline PicSession Create(int type, const QImage& image, const QRect& area,
                         const Effect& effect = NoEffect)
{
    const QSize size = image.size();
    const PicImage picture = {size.width(), size.height(), int(image.bytesPerLine()),
                              image.constBits()};
    const PicPlacement placement = {area.x(), area.y(), area.width(), area.height(),
                                    0,        0,        size.width(), size.height()};
    return CreatePictureSession(type, &picture, 16, &effect, &placement, KeyWord);
}

/** A display with one session. */
struct TestSession
{
    /** The session fills its display with one color. */
    explicit TestSession(int type = 3, QSize size = QSize(8, 4), QRgb color = 0xFF102030)
        : TestSession(size, type, SolidImage(type, size, color), QRect(QPoint(0, 0), size))
    {
    }
    TestSession(QSize displaySize, int type, const QImage& image, const QRect& area,
                const Effect& effect = NoEffect)
        : display(displaySize)
        , on(display.Handle())
        , session(Create(type, image, area, effect))
        , image(image)
    {
        AddPictureSession(on, session, 0);
    }
    ~TestSession() { FreePictureSession(session); }

    int Append(int width, int height)
    {
        const int row = QImage(width, 1, image.format()).bytesPerLine();
        return PicAppendImageLayer(on, session, width, height, row, KeyWord);
    }
    int Append() { return Append(image.width(), image.height()); }
    char* Back(int layer) { return GetPicImageLayerPtr(on, session, layer, 5); }
    char* Swap(int layer) { return SwapPicImageLayerPtr(on, session, layer); }
    QImage Front(int layer) const { return Torv::FrontImage(session, layer); }
    void Paint(int layer, const QImage& picture)
    {
        memcpy(Back(layer), picture.constBits(), size_t(picture.sizeInBytes()));
    }

    Torv::Display display;
    PicDisplay on;
    PicSession session;
    QImage image;
};
