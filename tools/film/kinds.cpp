#include "film/kinds.h"

#include <QFileInfo>
#include <QStringList>

namespace AnimText::film {

const QList<FilmKind>& FilmKinds()
{
    using K = FilmKind;
    constexpr int keepsAll = K::Transparent | K::Lossless | K::LosslessAlpha;
    // libx264: "veryfast" halves the time for about the same size, but lossless films would be up
    // to twice as large. libvpx: the hidden pictures of alternate references lose transparency.
    static const QList<FilmKind> kinds{
        {".gif", K::Transparent | K::Palette, "-loop 0", "", "", ""},
        {".apng", keepsAll, "-plays 0", "-pix_fmt rgb24", "-pix_fmt rgba", ""},
        {".webp", keepsAll, "-c:v libwebp_anim -pix_fmt bgra -lossless 1 -loop 0", "", "", ""},
        {".mp4", K::Lossless | K::EvenSides | K::HalfColors, "-movflags +faststart",
         "-c:v libx264 -pix_fmt yuv420p -preset veryfast -crf 16 -tune animation", "",
         "-c:v libx264rgb -pix_fmt rgb24 -crf 0"},
        {".webm", K::Transparent | K::Lossless | K::HalfColors,
         "-c:v libvpx-vp9 -b:v 0 -auto-alt-ref 0 -row-mt 1 -cpu-used 4", "-pix_fmt yuv420p -crf 18",
         "-pix_fmt yuva420p -crf 18", "-pix_fmt gbrp -lossless 1"},
        {".png", keepsAll | K::Still, "", "", "", ""},
        {"/", keepsAll | K::Folder, "", "", "", ""},
    };
    return kinds;
}

QStringList FilmKind::Encoding(bool isTransparent, bool isLossless) const
{
    const bool isOther = isLossless && *lossless != '\0'; // else every film of the kind is lossless
    const char* own = isOther ? lossless : isTransparent ? transparent : opaque;
    return QStringLiteral("%1 %2")
        .arg(QLatin1String(all), QLatin1String(own))
        .split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const FilmKind* FilmKindOf(const QString& path)
{
    if (QFileInfo(path).isDir())
        return &FilmKinds().last();
    for (const FilmKind& kind : FilmKinds()) {
        if (path.endsWith(QLatin1String(kind.ending), Qt::CaseInsensitive))
            return &kind;
    }
    return nullptr;
}

} // namespace AnimText::film
