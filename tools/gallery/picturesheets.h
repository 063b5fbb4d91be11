/**
 * @file
 * Packs many small pictures of one size into a few large ones, for a web page.
 */
#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QVector>

#include <future>
#include <vector>

namespace AnimText::gallery {

/** Equal pictures are stored once. */
class PictureSheets
{
public:
    /** How many pictures stand in a sheet, one below another; the last sheet may have fewer. */
    static constexpr int picturesInSheet = 64;

    /** The number of @p picture, which is of the same size as all others. */
    int Add(const QImage& picture);
    /** All sheets as PNGs; nothing can be added after that. */
    QVector<QByteArray> Finish();

private:
    void CloseSheet();

    QHash<QByteArray, int> known; // numbers by digest
    QVector<QImage> open;         // of the sheet that is not full yet
    std::vector<std::future<QByteArray>> sheets;
};

} // namespace AnimText::gallery
