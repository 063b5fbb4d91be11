#include "film/filmfile.h"

#include "film/pngfolder.h"
#include "film/stillfile.h"
#include "film/videofile.h"

#include <QFileInfo>

namespace AnimText {

const QList<FilmKind>& FilmKinds()
{
    static const QList<FilmKind> kinds{
        {".gif", true, false, false, false, false}, {".apng", true, false, true, true, false},
        {".webp", true, false, true, true, false},  {".mp4", false, true, true, false, false},
        {".webm", true, false, true, false, false}, {".png", true, false, true, true, true},
        {"/", true, false, true, true, false},
    };
    return kinds;
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

std::unique_ptr<FilmFile> MakeFilmFile(const QString& path, const GoOn& goOn)
{
    const FilmKind* kind = FilmKindOf(path);
    if (kind == &FilmKinds().last())
        return std::make_unique<PngFolder>(path);
    if (kind->still)
        return std::make_unique<StillFile>(path);
    return std::make_unique<VideoFile>(path, QString::fromLatin1(kind->ending + 1), goOn);
}

} // namespace AnimText
