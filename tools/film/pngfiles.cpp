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

class StillFile : public FilmFile
{
public:
    StillFile(const QString& path, bool transparent)
        : path(QFileInfo(path).absoluteFilePath())
        , transparent(transparent)
    {
        QString target;
        QString error;
        files::FailUnless(files::FindTarget(this->path, &target, &error), error);
    }

    void Add(int, const QImage& picture) override { png = PngOf(picture, transparent); }
    void Finish() override { WritePng(path, png); }

private:
    const QString path;
    const bool transparent;
    QByteArray png;
};

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

/** Compresses the pictures on all processors. */
class PngFolder : public FilmFile
{
public:
    PngFolder(const QString& path, const FilmFormat& format)
        : folder(path)
        , transparent(format.transparent)
        , digits(std::max(4, int(QString::number(format.firstFrame + format.frames - 1).size())))
    {
        QString error;
        files::FailUnless(folder.Open(Frames, &error), error);
    }

    void Add(int frame, const QImage& picture) override
    {
        if (!lastPng.valid() || picture != last) {
            last = picture;
            lastPng = std::async(std::launch::async, PngOf, picture, transparent, PngEffort::Fast);
        }
        waiting.push_back({frame, lastPng});
        if (waiting.size() > std::max(1U, std::thread::hardware_concurrency()))
            WriteNext();
    }

    void Finish() override
    {
        while (!waiting.empty())
            WriteNext();
        QString error;
        files::FailUnless(folder.Finish(&error), error);
    }

private:
    using Png = std::shared_future<QByteArray>;

    void WriteNext()
    {
        const auto [frame, made] = waiting.front();
        waiting.pop_front();
        const QByteArray png = made.get();
        const QString name =
            QStringLiteral("frame-%1.png").arg(frame, digits, 10, QLatin1Char('0'));
        QString error = QStringLiteral("%1/%2 cannot be written: the picture is too large")
                            .arg(folder.Path(), name);
        files::FailUnless(!png.isEmpty() && folder.Add(name, png, &error), error);
    }

    files::WholeFolder folder;
    const bool transparent;
    const int digits;
    std::deque<std::pair<int, Png>> waiting;
    QImage last; // and its PNG: held pages are compressed once
    Png lastPng;
};

} // namespace

FilmFilePointer MakeStill(const QString& path, const FilmFormat& format)
{
    return std::make_unique<StillFile>(path, format.transparent);
}

FilmFilePointer MakePngFolder(const QString& path, const FilmFormat& format)
{
    return std::make_unique<PngFolder>(path, format);
}

} // namespace AnimText::film
