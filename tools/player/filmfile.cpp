#include "player/filmfile.h"

#include "player/pngfolder.h"
#include "player/stillfile.h"
#include "player/videofile.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

bool PutInPlace(const QString& from, const QString& to, unsigned mode, QString* error)
{
    const QByteArray name = QFile::encodeName(from);
    const mode_t mask = umask(0);
    umask(mask);
    // A disk that is written later, or far away, tells here that it was full.
    const int file = open(name.constData(), O_RDONLY | O_CLOEXEC);
    const bool whole = file >= 0 && fsync(file) == 0 && fchmod(file, mode & ~mask) == 0 &&
                       std::rename(name.constData(), QFile::encodeName(to).constData()) == 0;
    if (!whole)
        *error = QStringLiteral("%1 cannot be written: %2")
                     .arg(to, QString::fromLocal8Bit(std::strerror(errno)));
    if (file >= 0)
        close(file);
    return whole;
}

} // namespace AnimText
