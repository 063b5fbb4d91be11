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
 * after a write that failed. It must be told to keep everything else to itself.
 */
class FilmProgram
{
public:
    /** @param patience milliseconds for which the program may stand still */
    FilmProgram(const GoOn& goOn, int patience);
    /** Ends the program if it still runs. */
    ~FilmProgram();

    /** @param output the file that it writes; its growth is a sign of life; may be empty */
    bool Start(const QString& program, const QStringList& words, const QString& output,
               QString* error);
    /** Gives the program the pixels of @p picture, which have four bytes each. */
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
