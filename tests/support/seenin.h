// What a person sees of the picture in a view.
#pragma once

#include "live/pictureview.h"

/** The upper left corner of each of the picture's pixels, read back from the painted widget. */
inline QImage SeenIn(AnimText::live::PictureView* view)
{
    const QImage screen = view->grab().toImage();
    QImage seen(view->Picture().size(), QImage::Format_RGB32);
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x)
            seen.setPixel(x, y, screen.pixel(view->ToWidget().map(QPoint(x, y))));
    }
    return seen;
}
