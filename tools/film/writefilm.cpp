#include "film/writefilm.h"

#include "film/palette.h"
#include "film/pngfolder.h"
#include "film/stillfile.h"
#include "film/videofile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <numeric>

namespace AnimText {

namespace {

std::unique_ptr<FilmFile> MakeFilmFile(const QString& path, const FilmKind& kind, const GoOn& goOn)
{
    if (kind.Has(FilmKind::Folder))
        return std::make_unique<PngFolder>(path);
    if (kind.Has(FilmKind::Still))
        return std::make_unique<StillFile>(path);
    return std::make_unique<VideoFile>(path, kind, goOn);
}

bool HasColor(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const bool isGrey = std::all_of(row, row + picture.width(), [](QRgb pixel) {
            return ((pixel >> 8 ^ pixel) & 0xFFFF) == 0; // red is green and green is blue
        });
        if (!isGrey)
            return true;
    }
    return false;
}

qint64 SizeOf(const QString& path)
{
    const QFileInfoList files = QFileInfo(path).isDir() ? QDir(path).entryInfoList(QDir::Files)
                                                        : QFileInfoList{QFileInfo(path)};
    return std::accumulate(files.begin(), files.end(), qint64(0),
                           [](qint64 sum, const QFileInfo& file) { return sum + file.size(); });
}

} // namespace

bool WriteFilm(Film* film, QPair<int, int> range, const QString& path, bool isLossless,
               const FilmWatch& watch, WrittenFilm* written, QString* error)
{
    const FilmKind& kind = *FilmKindOf(path);
    QVector<int> wanted(range.second - range.first + 1);
    std::iota(wanted.begin(), wanted.end(), range.first);
    *written = WrittenFilm();
    written->size = film->FrameSize();
    written->frames = wanted.size();

    FilmFormat format{written->size, range.first, written->frames, film->IsTransparent(),
                      isLossless};
    format.findPalette = [&](Palette* palette, QString* problem) {
        return FindPalette(film, wanted, watch, palette, problem);
    };
    int done = 0;
    const auto goOn = [&] { return watch(FilmStage::Pictures, done, written->frames); };
    const std::unique_ptr<FilmFile> file = MakeFilmFile(path, kind, goOn);
    if (!file->Open(format, error))
        return false;
    const bool mayHalve = kind.Has(FilmKind::HalfColors) && !isLossless;
    const auto take = [&](int frame, const QImage& picture) {
        written->halvesColors = written->halvesColors || (mayHalve && HasColor(picture));
        if (!file->Add(frame, picture, error))
            return false;
        ++done;
        const bool isWanted = goOn();
        if (!isWanted)
            *error = QStringLiteral("interrupted");
        return isWanted;
    };
    if (!film->Play(wanted, take, error) || !file->Finish(error))
        return false;
    written->bytes = SizeOf(path);
    return true;
}

} // namespace AnimText
