/**
 * @file
 * A session on a display of its own, with everything about it easy to vary.
 */
#ifndef TESTS_TESTSESSION_H
#define TESTS_TESTSESSION_H

#include "display.h"

#include <QImage>

const unsigned int AlphaWord = 0xFF010201;
const unsigned int KeyWord = 0x00010201;

inline unsigned int PixelWord(int type)
{
    return type == 3 ? AlphaWord : KeyWord;
}

inline QImage SolidImage(int type, int width, int height, QRgb colour)
{
    QImage image(width, height, type == 3 ? QImage::Format_ARGB32 : QImage::Format_RGB888);
    image.fill(QColor::fromRgba(colour));
    return image;
}

/** Makes a session that shows @p image in @p area; it is on no display yet. */
inline PicSession Create(int type, const QImage& image, const QRect& area,
                         const Effect& effect = {0, 0, 0, 0, 0, 66})
{
    const PicImage picture = {image.width(), image.height(), image.bytesPerLine(),
                              image.constBits()};
    const PicPlacement placement = {area.x(), area.y(), area.width(),  area.height(),
                                    0,        0,        image.width(), image.height()};
    return CreatePictureSession(type, &picture, 16, &effect, &placement, PixelWord(type));
}

/** A display with one session whose base layer is filled with one colour. */
struct TestSession
{
    explicit TestSession(int type = 3, QSize size = QSize(8, 4), QRgb colour = 0xFF102030)
        : display(size)
        , session(Create(type, SolidImage(type, size.width(), size.height(), colour),
                         QRect(QPoint(0, 0), size)))
        , image(SolidImage(type, size.width(), size.height(), colour))
    {
        AddPictureSession(display.Handle(), session, 0);
    }
    ~TestSession() { FreePictureSession(session); }

    int Append(int width, int height)
    {
        const int bytes = image.format() == QImage::Format_ARGB32 ? 4 : 3;
        return PicAppendImageLayer(display.Handle(), session, width, height,
                                   (width * bytes + 3) / 4 * 4, AlphaWord);
    }
    int Append() { return Append(image.width(), image.height()); }
    char* Back(int layer) { return GetPicImageLayerPtr(display.Handle(), session, layer, 5); }
    char* Swap(int layer) { return SwapPicImageLayerPtr(display.Handle(), session, layer); }

    /** Fills the layer's back buffer and shows it. */
    void Show(int layer, const QImage& picture)
    {
        memcpy(Back(layer), picture.constBits(), size_t(picture.sizeInBytes()));
        Swap(layer);
    }

    Torv::Display display;
    PicSession session;
    QImage image;
};

#endif
