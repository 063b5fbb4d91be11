/**
 * @file
 * Where a film goes: a file or a folder that appears whole or not at all.
 */
#ifndef ANIMTEXT_FILMFILE_H
#define ANIMTEXT_FILMFILE_H

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace AnimText {

/** What is known of a film before its first picture. */
struct FilmFormat
{
    QSize size;               ///< of every picture, in pixels
    int frames = 0;           ///< how many pictures will come
    bool transparent = false; ///< whether they let through what lies behind them
};

/** Takes the pictures of a film in their order. What is not finished leaves nothing behind. */
class FilmFile
{
public:
    virtual ~FilmFile() = default;

    /** Each answers false on failure and sets @p error to one line. */
    virtual bool Open(const FilmFormat& format, QString* error) = 0;
    virtual bool Add(const QImage& picture, QString* error) = 0;
    /** Puts the whole film in its place. Asks @p goOn now and then; false breaks off. */
    virtual bool Finish(const std::function<bool()>& goOn, QString* error) = 0;
};

/** The endings of the films that can be written, each with its dot. */
const QStringList& FilmEndings();

/** Whether films with the ending of @p path cannot be transparent and have even sides. */
bool IsOpaqueFilm(const QString& path);

/**
 * The file or folder for @p path: by its ending, or a folder of PNGs when it ends with a slash or
 * is a folder. Null when it is none of these.
 */
std::unique_ptr<FilmFile> MakeFilmFile(const QString& path);

} // namespace AnimText

#endif
