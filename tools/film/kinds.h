/**
 * @file
 * The kinds of film: what each can do and how ffmpeg encodes it.
 */
#pragma once

#include <QList>
#include <QString>

namespace AnimText::film {

struct FilmKind
{
    /** What films of a kind can do, or need. */
    enum Trait {
        Transparent = 1 << 0,   ///< can let through what is behind the display
        Lossless = 1 << 1,      ///< can keep every pixel
        LosslessAlpha = 1 << 2, ///< can do both at once
        EvenSides = 1 << 3,     ///< unless lossless, width and height must be even
        HalfColors = 1 << 4,    ///< unless lossless, stores colors at half the resolution
        Palette = 1 << 5,       ///< has at most 256 colors
        Still = 1 << 6,         ///< holds one picture
        Folder = 1 << 7         ///< is a folder of pictures
    };

    const char* ending; ///< of its name, with the dot; "/" for a folder of PNGs
    int traits;
    /** Arguments for ffmpeg: of every film, and of those that are opaque, transparent, lossless. */
    const char *all, *opaque, *transparent, *lossless;

    bool Has(Trait trait) const { return (traits & trait) != 0; }
    /** "gif", which is also what ffmpeg calls the format. */
    QString Name() const { return QString::fromLatin1(ending + 1); }
    /** The arguments for films that are @p isTransparent and @p isLossless. */
    QStringList Encoding(bool isTransparent, bool isLossless) const;
};

const QList<FilmKind>& FilmKinds();

/**
 * The kind of film at @p path: by its ending, or a folder of PNGs when it ends with a slash or is a
 * folder. Null when it is none of these.
 */
const FilmKind* FilmKindOf(const QString& path);

} // namespace AnimText::film
