#include "film/colortable.h"

namespace AnimText {

QImage ColorTable::Indexed(const QImage& picture)
{
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    QRgb lastPixel = 0;
    int lastIndex = -1;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        uchar* to = indexed.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            if (from[x] != lastPixel || lastIndex < 0) {
                lastPixel = from[x];
                const auto known = indices.constFind(lastPixel);
                const bool isNew = known == indices.constEnd();
                if (isNew && colors.size() == mostColors)
                    return QImage();
                lastIndex = isNew ? colors.size() : *known;
                if (isNew) {
                    indices.insert(lastPixel, uchar(lastIndex));
                    colors.append(lastPixel);
                }
            }
            to[x] = uchar(lastIndex);
        }
    }
    indexed.setColorTable(colors);
    return indexed;
}

} // namespace AnimText
