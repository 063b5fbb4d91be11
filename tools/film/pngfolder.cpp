#include "film/pngfolder.h"

#include "film/stillfile.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <thread>

namespace AnimText {

namespace {

/** The pictures of a film in @p folder. Other programs use the same names. */
QStringList Frames(const QDir& folder)
{
    static const QRegularExpression frame(QStringLiteral("^frame-[0-9]{4,}\\.png$"));
    QStringList names = folder.entryList(QDir::Files | QDir::NoSymLinks).filter(frame);
    names.erase(
        std::remove_if(names.begin(), names.end(),
                       [&](const QString& name) { return !IsOurPng(folder.filePath(name)); }),
        names.end());
    return names;
}

} // namespace

PngFolder::PngFolder(const QString& path)
    : folder(path)
{
}

bool PngFolder::Open(const FilmFormat& wanted, QString* error)
{
    format = wanted;
    return folder.Open(Frames, error);
}

bool PngFolder::Add(int frame, const QImage& picture, QString* error)
{
    if (!lastPng.valid() || picture != last) {
        last = picture;
        lastPng =
            std::async(std::launch::async, PngOf, picture, format.transparent, PngEffort::Fast)
                .share();
    }
    waiting.push_back({frame, lastPng});
    return waiting.size() <= std::max(1U, std::thread::hardware_concurrency()) || WriteNext(error);
}

bool PngFolder::WriteNext(QString* error)
{
    const Page page = waiting.front();
    waiting.pop_front();
    const QByteArray png = page.png.get();
    const int digits =
        std::max(4, int(QString::number(format.firstFrame + format.frames - 1).size()));
    const QString name =
        QStringLiteral("frame-%1.png").arg(page.frame, digits, 10, QLatin1Char('0'));
    if (png.isEmpty()) {
        *error = QStringLiteral("%1/%2 cannot be written: the picture is too large")
                     .arg(folder.Path(), name);
        return false;
    }
    return folder.Add(name, png, error);
}

bool PngFolder::Finish(QString* error)
{
    while (!waiting.empty()) {
        if (!WriteNext(error))
            return false;
    }
    return folder.Finish(error);
}

} // namespace AnimText
