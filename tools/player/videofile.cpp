#include "player/videofile.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <sys/stat.h>

namespace AnimText {

namespace {

constexpr qint64 mostWaiting = 16 << 20; // bytes that ffmpeg has not taken yet
constexpr qint64 mostHeld = 256 << 20;   // bytes of pictures that ffmpeg may hold for a palette

QStringList GifEncoding(const FilmFormat& format)
{
    // One palette for all is the steadiest, but it is known only when all have been seen. A film
    // too long to be held that long gets a palette for each picture.
    const qint64 bytes = qint64(format.size.width()) * format.size.height() * 4 * format.frames;
    const bool one = bytes <= mostHeld;
    const QString filter = QStringLiteral("split[a][b];[a]palettegen=reserve_transparent=%1%2[p];"
                                          "[b][p]paletteuse=alpha_threshold=128%3")
                               .arg(format.transparent ? 1 : 0)
                               .arg(one ? QString() : QStringLiteral(":stats_mode=single"),
                                    one ? QString() : QStringLiteral(":new=1"));
    return {QStringLiteral("-filter_complex"), filter, QStringLiteral("-loop"),
            QStringLiteral("0")};
}

} // namespace

VideoFile::VideoFile(const QString& path, const QString& kind)
    : path(QFileInfo(path).absoluteFilePath())
    , kind(kind)
{
}

VideoFile::~VideoFile()
{
    if (encoder.state() == QProcess::NotRunning)
        return;
    encoder.kill();
    encoder.waitForFinished(-1);
}

QStringList VideoFile::Encoding(const FilmFormat& format) const
{
    if (kind == QLatin1String("gif"))
        return GifEncoding(format);
    if (kind == QLatin1String("apng"))
        return {QStringLiteral("-pix_fmt"),
                format.transparent ? QStringLiteral("rgba") : QStringLiteral("rgb24"),
                QStringLiteral("-plays"), QStringLiteral("0")};
    if (kind == QLatin1String("webp"))
        return {QStringLiteral("-c:v"),      QStringLiteral("libwebp_anim"),
                QStringLiteral("-pix_fmt"),  QStringLiteral("bgra"),
                QStringLiteral("-lossless"), QStringLiteral("1"),
                QStringLiteral("-loop"),     QStringLiteral("0")};
    if (kind == QLatin1String("mp4"))
        return {QStringLiteral("-c:v"),      QStringLiteral("libx264"),
                QStringLiteral("-pix_fmt"),  QStringLiteral("yuv420p"),
                QStringLiteral("-crf"),      QStringLiteral("16"),
                QStringLiteral("-tune"),     QStringLiteral("animation"),
                QStringLiteral("-movflags"), QStringLiteral("+faststart")};
    return {QStringLiteral("-c:v"),
            QStringLiteral("libvpx-vp9"),
            QStringLiteral("-pix_fmt"),
            format.transparent ? QStringLiteral("yuva420p") : QStringLiteral("yuv420p"),
            QStringLiteral("-crf"),
            QStringLiteral("18"),
            QStringLiteral("-b:v"),
            QStringLiteral("0"),
            QStringLiteral("-auto-alt-ref"), // its hidden pictures lose the transparency
            QStringLiteral("0"),
            QStringLiteral("-row-mt"),
            QStringLiteral("1"),
            QStringLiteral("-cpu-used"),
            QStringLiteral("4")};
}

bool VideoFile::Open(const FilmFormat& format, QString* error)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
    if (program.isEmpty()) {
        *error = QStringLiteral("the program ffmpeg, which writes %1 files, is not installed: "
                                "apt-get install ffmpeg, or name a folder for PNGs")
                     .arg(kind.toUpper());
        return false;
    }
    const QFileInfo info(path);
    unfinished.setFileTemplate(info.absolutePath() + QStringLiteral("/.") + info.fileName() +
                               QStringLiteral(".XXXXXX"));
    if (!unfinished.open()) {
        *error = QStringLiteral("%1 cannot be written: %2").arg(path, unfinished.errorString());
        return false;
    }
    const QString size = QStringLiteral("%1x%2").arg(format.size.width()).arg(format.size.height());
    QStringList words{
        QStringLiteral("-nostdin"),   QStringLiteral("-v"),       QStringLiteral("error"),
        QStringLiteral("-f"),         QStringLiteral("rawvideo"), QStringLiteral("-pix_fmt"),
        QStringLiteral("bgra"),       QStringLiteral("-s"),       size,
        QStringLiteral("-framerate"), QStringLiteral("500/33"),   QStringLiteral("-i"),
        QStringLiteral("pipe:0")};
    words += Encoding(format);
    words += {QStringLiteral("-f"), kind, QStringLiteral("-y"), unfinished.fileName()};
    encoder.setStandardOutputFile(QProcess::nullDevice());
    encoder.start(program, words);
    if (!encoder.waitForStarted(-1)) {
        *error = QStringLiteral("ffmpeg does not start: %1").arg(encoder.errorString());
        return false;
    }
    return true;
}

/** What ffmpeg says last, on one line. */
QString VideoFile::Complaint()
{
    encoder.waitForFinished(-1);
    const QString said = QString::fromLocal8Bit(encoder.readAllStandardError()).trimmed();
    const QString last = said.mid(said.lastIndexOf(QLatin1Char('\n')) + 1).trimmed();
    return QStringLiteral("ffmpeg failed: %1").arg(last.isEmpty() ? encoder.errorString() : last);
}

bool VideoFile::Add(const QImage& picture, QString* error)
{
    const int rowBytes = picture.width() * 4;
    for (int y = 0; y < picture.height(); ++y)
        encoder.write(reinterpret_cast<const char*>(picture.constScanLine(y)), rowBytes);
    while (encoder.bytesToWrite() > mostWaiting && encoder.waitForBytesWritten(-1)) {
    }
    if (encoder.state() == QProcess::Running && encoder.bytesToWrite() <= mostWaiting)
        return true;
    *error = Complaint();
    return false;
}

bool VideoFile::Finish(const std::function<bool()>& goOn, QString* error)
{
    while (encoder.bytesToWrite() > 0 && encoder.waitForBytesWritten(-1)) {
    }
    encoder.closeWriteChannel();
    constexpr int glance = 200; // milliseconds
    while (!encoder.waitForFinished(glance) && encoder.state() != QProcess::NotRunning) {
        if (!goOn()) {
            *error = QStringLiteral("interrupted");
            return false;
        }
    }
    if (encoder.exitStatus() != QProcess::NormalExit || encoder.exitCode() != 0) {
        *error = Complaint();
        return false;
    }
    // A temporary file is nobody else's; the one that people asked for is as theirs are.
    const mode_t mask = umask(0);
    umask(mask);
    const QByteArray from = QFile::encodeName(unfinished.fileName());
    chmod(from.constData(), 0666 & ~mask);
    if (std::rename(from.constData(), QFile::encodeName(path).constData()) != 0) {
        *error = QStringLiteral("%1 cannot be written: %2")
                     .arg(path, QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    unfinished.setAutoRemove(false);
    return true;
}

} // namespace AnimText
