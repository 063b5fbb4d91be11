#include "film/writefilm.h"

#include "film/filmfile.h"

#include <QDir>
#include <QFileInfo>

#include <numeric>

namespace AnimText::film {

namespace {

qint64 SizeOf(const QString& path)
{
    const QFileInfoList files = QFileInfo(path).isDir() ? QDir(path).entryInfoList(QDir::Files)
                                                        : QFileInfoList{QFileInfo(path)};
    return std::accumulate(files.begin(), files.end(), qint64(0),
                           [](qint64 sum, const QFileInfo& file) { return sum + file.size(); });
}

} // namespace

WrittenFilm WriteFilm(Film* film, QPair<int, int> range, const QString& path, bool isLossless,
                      const FilmWatch& watch)
{
    const FilmKind& kind = *FilmKindOf(path);
    QVector<int> wanted(range.second - range.first + 1);
    std::iota(wanted.begin(), wanted.end(), range.first);
    const FilmFormat format{film->FrameSize(), range.first, int(wanted.size()),
                            film->IsTransparent(), isLossless};
    FilmStage stage = FilmStage::Pictures;
    int done = 0;
    const auto tell = [&] { watch(stage, done, format.frames); };
    const bool mayHalve = kind.Has(FilmKind::HalfColors) && !isLossless;
    bool hasColor = false;
    const auto play = [&](FilmStage next, const TakePicture& take) {
        stage = next;
        done = 0;
        film->Play(wanted, [&](int frame, const QImage& picture) {
            hasColor = hasColor || (mayHalve && !picture.allGray());
            take(frame, picture);
            ++done;
            tell();
        });
    };
    if (kind.Has(FilmKind::Folder))
        WritePngFolder(path, format, play);
    else if (kind.Has(FilmKind::Still))
        WriteStill(path, format, play);
    else
        WriteVideo(path, kind, format, play, tell);
    return {format.size, format.frames, SizeOf(path), hasColor};
}

} // namespace AnimText::film
