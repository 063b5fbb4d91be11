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
    FilmStage stage = FilmStage::Colors;
    int done = 0;
    const auto tell = [&] { watch(stage, done, format.frames); };
    const auto play = [&](const std::function<void(const QImage&)>& take) {
        film->Play(wanted, [&](int, const QImage& picture) {
            take(picture);
            ++done;
            tell();
        });
    };
    const FilmFilePointer file = kind.Has(FilmKind::Folder) ? MakePngFolder(path, format)
                                 : kind.Has(FilmKind::Still)
                                     ? MakeStill(path, format)
                                     : MakeVideo(path, kind, format, play, tell);
    stage = FilmStage::Pictures;
    done = 0;
    const bool mayHalve = kind.Has(FilmKind::HalfColors) && !isLossless;
    bool hasColor = false;
    film->Play(wanted, [&](int frame, const QImage& picture) {
        hasColor = hasColor || (mayHalve && !picture.allGray());
        file->Add(frame, picture);
        ++done;
        tell();
    });
    file->Finish();
    return {format.size, format.frames, SizeOf(path), hasColor};
}

} // namespace AnimText::film
