#include "gallery/picturesheets.h"

#include "film/png.h"

#include <QCryptographicHash>
#include <QPainter>

namespace AnimText::gallery {

int PictureSheets::Add(const QImage& picture)
{
    const QByteArray bytes = QByteArray::fromRawData(
        reinterpret_cast<const char*>(picture.constBits()), int(picture.sizeInBytes()));
    // The fastest there is: most of the time goes into this.
    const QByteArray digest = QCryptographicHash::hash(bytes, QCryptographicHash::Md4);
    const auto found = known.constFind(digest);
    if (found != known.constEnd())
        return *found;
    const int number = known.size();
    known.insert(digest, number);
    open.append(picture);
    if (open.size() == picturesInSheet)
        CloseSheet();
    return number;
}

QVector<QByteArray> PictureSheets::Finish()
{
    if (!open.isEmpty())
        CloseSheet();
    QVector<QByteArray> pngs;
    for (std::future<QByteArray>& sheet : sheets)
        pngs.append(sheet.get());
    return pngs;
}

void PictureSheets::CloseSheet()
{
    const QSize size = open.first().size();
    QImage sheet(size.width(), size.height() * open.size(), QImage::Format_RGB32);
    sheet.fill(Qt::black);
    QPainter painter(&sheet);
    for (int i = 0; i < open.size(); ++i)
        painter.drawImage(0, i * size.height(), open.at(i));
    painter.end();
    sheets.push_back(
        std::async(std::launch::async, film::PngOf, sheet, false, film::PngEffort::Small));
    open.clear();
}

} // namespace AnimText::gallery
