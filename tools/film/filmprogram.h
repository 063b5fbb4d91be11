/**
 * @file
 * A run of ffmpeg or ffprobe.
 */
#pragma once

#include "film/videofile.h"

#include <QElapsedTimer>
#include <QProcess>

namespace AnimText::film {

/**
 * Whatever the program says on its standard error counts as a failure: ffmpeg can end with status 0
 * after a write that failed. Its arguments must silence everything else. On failure, everything
 * throws Failure.
 */
class FilmProgram
{
public:
    /**
     * Starts @p program.
     * @param film the name that errors begin with
     * @param patience milliseconds for which the program may make no progress
     * @param output the file that it writes; its growth counts as progress
     */
    FilmProgram(const QString& film, const GoOn& goOn, int patience, const QString& program,
                const QStringList& words, const QString& output = QString());
    /** Ends the program if it still runs. */
    ~FilmProgram();

    /** ffmpeg's arguments for pictures on standard input, one a tick. */
    static QStringList Reading(QSize size, const char* pixelFormat);

    /** Sends the program the pixels of @p picture. */
    void Take(const QImage& picture);
    /** Waits for the program's end. @return what it wrote to its standard output */
    QByteArray Finish();

private:
    void WaitUntil(const std::function<bool()>& done);
    qint64 Progress() const;
    [[noreturn]] void Fail(const QString& problem) const;
    [[noreturn]] void Fail(const QByteArray& said) const;

    const QString film;
    const GoOn goOn;
    const int patience;
    const QString output;
    QProcess process;
};

} // namespace AnimText::film
