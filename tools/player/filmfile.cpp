#include "player/filmfile.h"

#include "player/pngfolder.h"
#include "player/videofile.h"

#include <QFileInfo>

namespace AnimText {

const QStringList& FilmEndings()
{
    static const QStringList endings{QStringLiteral(".gif"), QStringLiteral(".apng"),
                                     QStringLiteral(".webp"), QStringLiteral(".mp4"),
                                     QStringLiteral(".webm")};
    return endings;
}

bool IsOpaqueFilm(const QString& path)
{
    return path.endsWith(QLatin1String(".mp4"), Qt::CaseInsensitive);
}

std::unique_ptr<FilmFile> MakeFilmFile(const QString& path)
{
    if (path.endsWith(QLatin1Char('/')) || QFileInfo(path).isDir())
        return std::make_unique<PngFolder>(path);
    for (const QString& ending : FilmEndings()) {
        if (path.endsWith(ending, Qt::CaseInsensitive))
            return std::make_unique<VideoFile>(path, ending.mid(1));
    }
    return nullptr;
}

} // namespace AnimText
