/**
 * @file
 * A run of ffmpeg or ffprobe.
 */
#ifndef ANIMTEXT_FILMPROGRAM_H
#define ANIMTEXT_FILMPROGRAM_H

#include "film/filmfile.h"

#include <QElapsedTimer>
#include <QProcess>

namespace AnimText {

/**
 * Whatever the program says on its standard error counts as a failure: ffmpeg can end with status 0
 * after a write that failed. Its arguments must silence everything else.
 */
class FilmProgram
{
public:
    static constexpr int longestWait = 5 * 60 * 1000; ///< milliseconds

    /** @param patience milliseconds for which the program may make no progress */
    explicit FilmProgram(const GoOn& goOn, int patience = longestWait);
    /** Ends the program if it still runs. */
    ~FilmProgram();

    /** ffmpeg's arguments for pictures on standard input, one a tick. */
    static QStringList Reading(QSize size, const char* pixelFormat);

    /** @param output the file that it writes; its growth counts as progress; may be empty */
    bool Start(const QString& program, const QStringList& words, const QString& output,
               QString* error);
    /** Sends the program the pixels of @p picture, and its 256 colors where it has a table. */
    bool Take(const QImage& picture, QString* error);
    /** Waits for the program's end. */
    bool Finish(QString* error);
    QByteArray Answer() { return process.readAllStandardOutput(); }

private:
    bool WaitUntil(const std::function<bool()>& done, QString* error);
    qint64 Progress() const;
    QString Complaint(const QByteArray& said);

    GoOn goOn;
    int patience;
    QString output;
    QProcess process;
};

} // namespace AnimText

#endif
