#include "files/failure.h"
#include "files/wholefile.h"
#include "files/wholefolder.h"
#include "film/filmfile.h"
#include "film/png.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <deque>
#include <future>
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

} // namespace

void WriteStill(const QString& path, const FilmFormat& format, const PlayPictures& play)
{
    const QString place = QFileInfo(path).absoluteFilePath();
    QString target;
    QString error;
    files::FailUnless(files::FindTarget(place, &target, &error), error); // before playing
    play(FilmStage::Pictures,
         [&](int, const QImage& picture) { WritePng(place, PngOf(picture, format.transparent)); });
}

/** Compresses the pictures on all processors. */
void WritePngFolder(const QString& path, const FilmFormat& format, const PlayPictures& play)
{
    const int digits =
        std::max(4, int(QString::number(format.firstFrame + format.frames - 1).size()));
    files::WholeFolder folder(path);
    QString error;
    files::FailUnless(folder.Open(Frames, &error), error);
    using Png = std::shared_future<QByteArray>;
    std::deque<std::pair<int, Png>> waiting;
    const auto writeNext = [&] {
        const auto [frame, made] = waiting.front();
        waiting.pop_front();
        const QByteArray png = made.get();
        const QString name =
            QStringLiteral("frame-%1.png").arg(frame, digits, 10, QLatin1Char('0'));
        error = QStringLiteral("%1/%2 cannot be written: the picture is too large")
                    .arg(folder.Path(), name);
        files::FailUnless(!png.isEmpty() && folder.Add(name, png, &error), error);
    };
    QImage last; // and its PNG: held pages are compressed once
    Png lastPng;
    play(FilmStage::Pictures, [&](int frame, const QImage& picture) {
        if (!lastPng.valid() || picture != last) {
            last = picture;
            lastPng =
                std::async(std::launch::async, PngOf, picture, format.transparent, PngEffort::Fast);
        }
        waiting.emplace_back(frame, lastPng);
        if (waiting.size() > std::max(1U, std::thread::hardware_concurrency()))
            writeNext();
    });
    while (!waiting.empty())
        writeNext();
    files::FailUnless(folder.Finish(&error), error);
}

} // namespace AnimText::film
