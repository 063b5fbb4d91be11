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
    int firstFrame = 0;       ///< the number of the first picture
    int frames = 0;           ///< how many pictures will come
    bool transparent = false; ///< whether they let through what lies behind them
    bool lossless = false;    ///< every pixel as it is, for the formats that can
};

/** Asked now and then; false breaks off. */
using GoOn = std::function<bool()>;

/** Takes the pictures of a film in their order. What is not finished leaves nothing behind. */
class FilmFile
{
public:
    virtual ~FilmFile() = default;

    /** Each answers false on failure and sets @p error to one line that names the film. */
    virtual bool Open(const FilmFormat& format, QString* error) = 0;
    virtual bool Add(int frame, const QImage& picture, QString* error) = 0;
    /** Looks at what was written and puts the whole film in its place. */
    virtual bool Finish(QString* error) = 0;

    /** What the format has done to the pictures; empty when they are as they were. */
    virtual QString Remark() const { return QString(); }
};

/** What the films with one ending can do. */
struct FilmKind
{
    const char* ending;       ///< with its dot; "/" for a folder of PNGs
    bool transparent;         ///< can let through what lies behind
    bool evenSides;           ///< needs sides of even length, unless it is lossless
    bool lossless;            ///< can keep every pixel as it is
    bool losslessTransparent; ///< can do both at once
    bool still;               ///< holds one picture
};

const QList<FilmKind>& FilmKinds();

/**
 * The kind of film at @p path: by its ending, or a folder of PNGs when it ends with a slash or is a
 * folder. Null when it is none of these.
 */
const FilmKind* FilmKindOf(const QString& path);

/** The file or folder for @p path, which must be of some kind. */
std::unique_ptr<FilmFile> MakeFilmFile(const QString& path, const GoOn& goOn);

} // namespace AnimText

#endif
