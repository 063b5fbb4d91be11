/**
 * @file
 * The output of a film: a file or a folder that appears whole or not at all.
 */
#ifndef ANIMTEXT_FILMFILE_H
#define ANIMTEXT_FILMFILE_H

#include "film/colortable.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <functional>

namespace AnimText {

/** The colors of a film whose kind has at most 256. */
struct Palette
{
    ColorTable exact;  ///< all of them; empty when there are more
    QByteArray chosen; ///< else 256, each a QRgb

    bool IsExact() const { return !exact.Colors().isEmpty(); }
};

/** What is known about a film before its first picture. */
struct FilmFormat
{
    QSize size;               ///< of every picture, in pixels
    int firstFrame = 0;       ///< the number of the first picture
    int frames = 0;           ///< how many pictures will come
    bool transparent = false; ///< whether they have transparency
    bool lossless = false;    ///< every pixel as it is, for the formats that can
    /** Finds the palette, for the formats that have one. */
    std::function<bool(Palette* palette, QString* error)> findPalette{};
};

/** Asked now and then; false stops the work. */
using GoOn = std::function<bool()>;

/** Takes the pictures of a film in their order. An unfinished film leaves nothing behind. */
class FilmFile
{
public:
    virtual ~FilmFile() = default;

    /** Each returns false on failure and sets @p error to one line that names the film. */
    virtual bool Open(const FilmFormat& format, QString* error) = 0;
    virtual bool Add(int frame, const QImage& picture, QString* error) = 0;
    /** Checks what was written and moves the complete film to its place. */
    virtual bool Finish(QString* error) = 0;
};

} // namespace AnimText

#endif
