/**
 * @file
 * A film as a folder of PNGs, frame-0000.png and on.
 */
#ifndef ANIMTEXT_PNGFOLDER_H
#define ANIMTEXT_PNGFOLDER_H

#include "files/wholefolder.h"
#include "film/filmfile.h"

#include <deque>
#include <future>

namespace AnimText {

/**
 * The pictures are written into a temporary folder, which takes the place of the named one at the
 * end. An existing folder is replaced if it holds only such pictures. Each file has the number of
 * its frame. They are compressed on all processors.
 */
class PngFolder : public FilmFile
{
public:
    explicit PngFolder(const QString& path);

    bool Open(const FilmFormat& format, QString* error) override;
    bool Add(int frame, const QImage& picture, QString* error) override;
    bool Finish(QString* error) override;

private:
    struct Page
    {
        int frame;
        std::shared_future<QByteArray> png;
    };

    bool WriteNext(QString* error);

    FilmFormat format;
    WholeFolder folder;
    std::deque<Page> waiting;
    QImage last; // and its PNG: held pages are compressed once
    std::shared_future<QByteArray> lastPng;
};

} // namespace AnimText

#endif
