#include "film/writefilm.h"

#include "files/failure.h"
#include "files/wholefile.h"
#include "files/wholefolder.h"
#include "film/png.h"
#include "film/videofile.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <deque>
#include <future>
#include <numeric>
#include <thread>

namespace AnimText::film {

namespace {

/** The pictures of a film in @p folder. Other programs use the same names. */
QStringList Frames(const QDir& folder)
{
    static const QRegularExpression frame("^frame-[0-9]{4,}\\.png$");
    QStringList names;
    for (const QString& name : folder.entryList(QDir::Files | QDir::NoSymLinks).filter(frame)) {
        if (IsOurPng(folder.filePath(name)))
            names.append(name);
    }
    return names;
}

/** One picture, as a PNG. */
void WriteStill(const QString& path, bool isTransparent, const PlayPictures& play)
{
    const QString place = QFileInfo(path).absoluteFilePath();
    files::FindTarget(place); // before playing
    play(FilmStage::Pictures,
         [&](int, const QImage& picture) { WritePng(place, PngOf(picture, isTransparent)); });
}

/**
 * frame-0000.png and on; each has the number of its frame. Compresses the pictures on all
 * processors.
 * @return bytes
 */
qint64 WriteFolder(const QString& path, int lastFrame, bool isTransparent, const PlayPictures& play)
{
    const int digits = std::max(4, int(QString::number(lastFrame).size()));
    files::WholeFolder folder(path);
    folder.Open(Frames);
    using Png = std::shared_future<QByteArray>;
    std::deque<std::pair<int, Png>> waiting;
    const auto writeNext = [&] {
        const auto [frame, made] = waiting.front();
        waiting.pop_front();
        const QByteArray png = made.get();
        const QString name =
            QStringLiteral("frame-%1.png").arg(frame, digits, 10, QLatin1Char('0'));
        files::FailUnless(!png.isEmpty(),
                          QStringLiteral("%1/%2 cannot be written: the picture is too large")
                              .arg(folder.Path(), name));
        folder.Add(name, png);
    };
    QImage last; // and its PNG: held pages are compressed once
    Png lastPng;
    play(FilmStage::Pictures, [&](int frame, const QImage& picture) {
        if (!lastPng.valid() || picture != last) {
            last = picture;
            lastPng =
                std::async(std::launch::async, PngOf, picture, isTransparent, PngEffort::Fast);
        }
        waiting.emplace_back(frame, lastPng);
        if (waiting.size() > std::max(1U, std::thread::hardware_concurrency()))
            writeNext();
    });
    while (!waiting.empty())
        writeNext();
    folder.Finish();
    return folder.Bytes();
}

} // namespace

WrittenFilm WriteFilm(Film* film, QPair<int, int> range, const QString& path, bool isLossless,
                      const FilmWatch& watch)
{
    const FilmKind& kind = *FilmKindOf(path);
    QVector<int> wanted(range.second - range.first + 1);
    std::iota(wanted.begin(), wanted.end(), range.first);
    const FilmFormat format{film->FrameSize(), int(wanted.size()), film->IsTransparent(),
                            isLossless};
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
        return {format.size, format.frames,
                WriteFolder(path, range.second, format.transparent, play), false};
    if (kind.Has(FilmKind::Still))
        WriteStill(path, format.transparent, play);
    else
        WriteVideo(path, kind, format, play, tell);
    return {format.size, format.frames, QFileInfo(path).size(), hasColor};
}

} // namespace AnimText::film
